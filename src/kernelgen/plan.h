// Factor trees: how a length is computed. The factor tables of the families are written with the
// builders below and read like the mathematics; each builder refuses what its algorithm cannot do.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace kfm::kernelgen {

struct Plan {
    enum class Kind {
        direct,       // 2, 4, or the symmetric pairs of an odd length
        factored5,    // the 5-point module with four products saved to three
        powerOfTwo,   // conjugate-pair split radix
        evenOdd,      // the same, but even and odd samples side by side where there are two lanes
        pfa,          // Good-Thomas: first x second, coprime, no twiddle factors
        ct,           // Cooley-Tukey: first x second with twiddle factors between
        rader,        // a prime as a cyclic convolution of length n - 1
        paddedRader   // the same, the convolution continued to a longer one
    };

    Plan(int length);   // an integer in a factor tree: the direct module, or a power of two

    int n = 0;
    Kind kind = Kind::direct;
    std::vector<Plan> parts;   // pfa, ct: first, second; rader: the plan of the convolution;
                               // paddedRader: of a fourth of it
    int root = 0;              // rader: the primitive root,
    int shift = 0;             //        and the power of it that comes first among the inputs

    const Plan& first() const { return parts[0]; }
    const Plan& second() const { return parts[1]; }
    bool paired = false;   // direct: the terms of a sum are added in pairs, not one by one

    std::string text() const;

private:
    Plan(int length, Kind kind, std::vector<Plan> parts);
    friend Plan factored5();
    friend Plan evenOdd(int);
    friend Plan pfa(const Plan&, const Plan&);
    friend Plan ct(const Plan&, const Plan&);
    friend Plan rader(const Plan&, int, int);
    friend Plan paddedRader(int, const Plan&);
};

Plan factored5();
// The direct module of an odd length, its sums in pairs.
Plan paired(int n);
// A power of two from 8 up.
Plan evenOdd(int n);
// The transforms of length `first` are taken first, those of length `second` across them.
Plan pfa(const Plan& first, const Plan& second);
Plan ct(const Plan& first, const Plan& second);
// The prime p = convolution.n + 1. Every primitive root and every shift of the inputs, and so of
// the constants, gives the same transform with other roundings; root 0 takes the smallest.
Plan rader(const Plan& convolution, int root = 0, int shift = 0);
// The prime by a convolution padded to 4 * quarter.n points, a fourth of which is one transform.
Plan paddedRader(int prime, const Plan& quarter);

// A tree that does the same with other roundings: with random roots and shifts of its Rader steps,
// orders of prime factors and pairs in direct modules.
Plan roundedOtherwise(const Plan& plan, std::minstd_rand& random);
// Whether two trees have the same steps in the same order.
bool sameSteps(const Plan& a, const Plan& b);

bool isPrimitiveRoot(int g, int prime);
int powerModulo(int base, int exponent, int modulus);
// The k below n1*n2 with k = k1 modulo n1 and k = k2 modulo n2.
int chineseRemainder(int k1, int n1, int k2, int n2);

}   // namespace kfm::kernelgen
