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

}   // namespace kfm::dft::complex
