// What the Rader lane mappings share: sums and differences of mirrored inputs in, and sums of
// cosine and sine parts out.
//
// With z[m] = x[g^m], H = (p-1)/2, a[m] = z[m] + z[m+H] and b[m] = z[m] - z[m+H] the outputs are
// X[g^-j] = x0 + C[j] - i S[j], where C is a cyclic convolution of a with the cosines and S a
// negacyclic one of b with the sines. The lanes of a vector hold (a, a', b, b') of two positions
// or two columns, so one real network serves all four.
#pragma once

#include <span>
#include <vector>

#include "dft/complex/single_direct.h"
#include "dft/complex/single_graphs.h"

namespace kfm::dft::complex {

using kernelgen::Constant;

// Element numbers of z[m] and z[m+H] for both positions; -1 where there is none.
struct MirroredPair {
    std::array<int, 2> z, mirror;
};

// Vectors (a, a', b, b'), one for each pair; two pairs share their loads.
std::vector<Complex> sumsAndDifferences(Graph& g, std::span<const MirroredPair> pairs);

// Constants of one bin: value * own + neighbour's value * other, in each lane.
struct BinConstants {
    std::array<kernelgen::ComplexConstant, 4> own, other;
};

// Real and imaginary networks of the convolution: transforms `inputs` by `plan`, multiplies bin k
// by constants(k), adds x0 to bin 0 and returns the synthesis. `sums` receives bin 0 before.
std::vector<Complex> convolve(Graph& g, const Plan& plan, std::span<const Complex> inputs,
                              const std::function<BinConstants(int)>& constants, Complex x0,
                              Complex& sums);

// 2/n, or 1/n for the bins that have no mirror image.
Constant binWeight(int k, int n);
kernelgen::ComplexConstant scaled(kernelgen::ComplexConstant c, const Constant& weight);

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
    kernelgen::ComplexConstant cosineBin(int k) const;
    kernelgen::ComplexConstant sineBin(int k) const;

    int prime, q;

private:
    kernelgen::RaderOrder order_;
    std::vector<Constant> cosines_, sines_;
};

}   // namespace kfm::dft::complex
