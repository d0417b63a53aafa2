// The transforms as networks: sequences of expressions in, sequences of expressions out.
//
// Everything is derived from the DFT of a real sequence. The nodes it works on are vectors whose
// lanes are independent, so a "real" may as well be a whole complex vector: the DFT is linear, and
// Y[k] = P + iQ, Y[N-k] = P - iQ where P + iQ is its formal half spectrum.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/graph.h"
#include "kernelgen/plan.h"
#include "kernelgen/rader.h"

namespace kfm::kernelgen {

struct Complex {
    Ref re, im;
};

// X[0..n/2] of the forward transform; X[n-k] is the conjugate of X[k].
using HalfSpectrum = std::vector<Complex>;

// exp(sign * 2 pi i * numerator / denominator) times z, by four products and two sums.
enum class Sign { minus = -1, plus = 1 };
Complex rotate(Graph& g, Complex z, long numerator, long denominator, Sign sign);

HalfSpectrum realDft(Graph& g, const Plan& plan, std::span<const Ref> x);

// All n outputs for complex input held as separate real and imaginary parts.
std::vector<Complex> complexDft(Graph& g, const Plan& plan, std::span<const Complex> x,
                                Sign sign = Sign::minus);

// The real synthesis network, the transpose of realDft: from values V[k] (zeros are pruned) to
// y[j] = sum over k <= n/2 of Re(V[k] exp(+2 pi i jk/n)).
std::vector<Ref> realSynthesis(Graph& g, const Plan& plan, std::span<const Complex> values);

// z * c for a complex constant.
Complex scaleBy(Graph& g, Complex z, ComplexConstant c);
// The same with a constant for each lane.
Complex scaleLanes(Graph& g, Complex z, const LaneConstant& re, const LaneConstant& im);

}   // namespace kfm::kernelgen
