// What transforms of real data in two lanes are put together from: two transforms at once, and bins
// whose parts share a vector.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/plan.h"
#include "kernelgen/real_lanes.h"

namespace kfm::kernelgen {

// X[0], X[1] of two samples.
std::vector<ComplexLanes> twoPoints(Graph& g, Lane x0, Lane x1);

// The samples x[start + i*step], cyclically.
std::vector<Lane> pickedLanes(std::span<const Lane> x, int start, int step, int count);

// Transforms of two sequences at once: bin k of them in lanes 0 and 1.
struct TwoSpectra {
    std::vector<ComplexLanes> first, second;
};
TwoSpectra twoTransforms(Graph& g, const Plan& plan, std::span<const Lane> a,
                         std::span<const Lane> b);

// A bin as one vector (re, im), or (re, -im) where that saves a change of sign.
struct BinVector {
    Ref value;
    bool conjugated;
};
BinVector binVector(Graph& g, const ComplexLanes& bin);
BinVector conjugated(Graph& g, BinVector bin);
// exp(-2 pi i numerator / denominator) times a bin in a vector.
BinVector rotated(Graph& g, BinVector bin, long numerator, long denominator);

// Powers of two: even and odd samples side by side, or conjugate-pair split radix.
std::vector<ComplexLanes> evenAndOdd(Graph& g, std::span<const Lane> x);
std::vector<ComplexLanes> splitRadix(Graph& g, std::span<const Lane> x);
// Two factors, with twiddle factors or without.
std::vector<ComplexLanes> twoSteps(Graph& g, const Plan& plan, std::span<const Lane> x);
// A prime as a convolution.
std::vector<ComplexLanes> raderInLanes(Graph& g, const Plan& plan, std::span<const Lane> x);

}   // namespace kfm::kernelgen
