// The constants and the orders of Rader's step, whatever its lanes hold: in the order of the powers
// of a primitive root the outputs of a prime p but X[0] are convolutions with the roots of unity.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/constants.h"
#include "kernelgen/plan.h"

namespace kfm::kernelgen {

struct ComplexConstant {
    Constant re, im;
};

ComplexConstant scaled(ComplexConstant c, const Constant& weight);

// Transform of the sequence c[t], t = 0..n-1, of constants: bin k.
ComplexConstant constantBin(std::span<const Constant> sequence, int k);

// What a bin weighs in the synthesis of n samples: 2/n, or 1/n without a mirror image.
Constant binWeight(int k, int n);
// Bin k of a sequence, weighted for its synthesis.
ComplexConstant weightedBin(std::span<const Constant> sequence, int k);

// The order in which Rader's step takes inputs and outputs of the prime p, with the constants of
// its convolution: c[t] = cos(2 pi g^(s-t) / p), s[t] = sin(2 pi g^(s-t) / p) with the shift s.
struct RaderOrder {
    explicit RaderOrder(const Plan& plan);
    int prime;
    std::vector<int> input;    // g^(m+s)
    std::vector<int> output;   // g^-j
    std::vector<Constant> cosines, sines;
};

// The order of a prime p = 2q + 1, q odd: with b taken with the sign (-1)^m both parts of the
// convolution are cyclic of length q.
class OddRader {
public:
    explicit OddRader(const Plan& plan);

    // z[m] and z[m+H], exchanged for odd m.
    int z(int m) const { return order_.input[m % 2 == 0 ? m : m + q]; }
    int mirror(int m) const { return order_.input[m % 2 == 0 ? m + q : m]; }
    // Output number of C[j] + i*sign*S[j] with the sign of S put right.
    int output(int j) const { return j % 2 == 0 ? order_.output[j] : prime - order_.output[j]; }

    // Bin k of the roots, weighted for the synthesis.
    ComplexConstant cosineBin(int k) const { return weightedBin(cosines_, k); }
    ComplexConstant sineBin(int k) const { return weightedBin(sines_, k); }

    int prime, q;

private:
    RaderOrder order_;
    std::vector<Constant> cosines_, sines_;
};

}   // namespace kfm::kernelgen
