// The transforms inside a DCT-IV as networks of formal reals: what a stage does to every lane.
//
// Complex sums go by conjugate pairs (P. Duhamel, H. Hollmann, 1984; with the twiddle factors of a
// pair conjugate to each other), cosine sums by halving.
#pragma once

#include <vector>

#include "kernelgen/algorithms.h"
#include "kernelgen/graph.h"

namespace kfm::dct4 {

using kernelgen::Complex;
using kernelgen::Graph;
using kernelgen::Ref;

// sum of u[k] exp(+2 pi i kp / n) for p < n, a power of two.
std::vector<Complex> dft(Graph& g, const std::vector<Complex>& u);

// The same at points a quarter of a step further: sum of u[k] exp(+2 pi i k (p + 1/4) / n).
std::vector<Complex> skewDft(Graph& g, const std::vector<Complex>& u);

// sum of x[r] cos(pi (2r+1) k / 2n), k = 0..n-1.
std::vector<Ref> dct2(Graph& g, const std::vector<Ref>& x);

// sum of x[r] sin(pi (2r+1) k / 2n), k = 1..n; element k-1 of the result.
std::vector<Ref> dst2(Graph& g, const std::vector<Ref>& x);

// sum of x[r] cos(pi (2r+1)(2k+1) / 4n), k = 0..n-1.
std::vector<Ref> dct4(Graph& g, const std::vector<Ref>& x);

// The rows in which complex results p < n are kept where cosine part C_q and sine part T_q of row q
// stand together: 2q and 2q+1 hold result q/2 for even q, for odd q the conjugate of n-1-(q-1)/2.
std::vector<Ref> mirroredRows(const std::vector<Complex>& result);
// Real and imaginary parts in turn.
std::vector<Ref> naturalRows(const std::vector<Complex>& result);

}   // namespace kfm::dct4
