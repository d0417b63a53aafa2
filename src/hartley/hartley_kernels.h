// The discrete Hartley transform as a family of kernels. With the sums over cosines C[k] and sines
// S[k] of the input, H[k] = C[k] + S[k] and H[n-k] = C[k] - S[k].
#pragma once

#include "kernelgen/generator.h"
#include "kernelgen/real_lanes.h"

namespace kfm::hartley {

kernelgen::Graph hartleyGraph(const kernelgen::RealRow& row, bool singlePrecision);
kernelgen::Graph hartleyGraph(int n, bool singlePrecision);

kernelgen::KernelFamily kernelFamily();

}   // namespace kfm::hartley
