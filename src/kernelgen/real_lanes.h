// The DFT of a real sequence with two scalars in the lanes of a vector.
//
// Real data leave no complex element to fill a vector, but nearly everything comes in twos: the sum
// and the difference of mirrored samples, real and imaginary part of a bin, one position of a first
// step and the next. Each mapping below puts such a pair into the lanes, so that one instruction
// does both operations, each rounded as in scalar code.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/algorithms.h"
#include "kernelgen/packing.h"
#include "kernelgen/plan.h"

namespace kfm::kernelgen {

struct ComplexLanes {
    Lane re, im;   // of one bin; im is zero where the bin is real
};

// A row of the factor tables of real data.
struct RealRow {
    Plan plan;
    int lanes;   // scalars in a vector; 1: scalar code

    // Lengths below 5 gain nothing from a second lane.
    explicit RealRow(const Plan& plan) : RealRow(plan, plan.n < 5 ? 1 : 2) {}
    RealRow(const Plan& plan, int lanes) : plan(plan), lanes(lanes) {}
    std::string text() const { return plan.text() + (lanes == 1 ? "; scalar" : "; two lanes"); }
};

// X[0..n/2] of the forward transform in single lanes; with one lane per vector, scalar code.
std::vector<ComplexLanes> realDftInLanes(Graph& g, const Plan& plan, std::span<const Lane> x);

// An odd length by the sums and differences of mirrored inputs. Exponents have the given sign; the
// imaginary part is summed from zero and so never becomes a negative zero.
std::vector<ComplexLanes> symmetricPairs(Graph& g, std::span<const Lane> x,
                                         Sign sign = Sign::minus);

// Files X[k] of n points under k or, conjugated, under n - k.
void setBin(std::vector<ComplexLanes>& spectrum, int n, int k, ComplexLanes value);

// What a kernel computes, gathered by vectors: element `first` from lane 0, `second` from lane 1,
// -1 for none. Lanes that are negated are subtracted from zero.
struct LaneOutput {
    int element;
    Lane value;
};
void storeLanes(Graph& g, std::span<const LaneOutput> outputs);

}   // namespace kfm::kernelgen
