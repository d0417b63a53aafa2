// The real DFT as families of kernels: forward into the three packed layouts, inverse from them.
// All layouts share one graph and one text.
#pragma once

#include "kernelgen/generator.h"
#include "kernelgen/real_lanes.h"

namespace kfm::dft::real {

// The values of a packed spectrum have the numbers of core/packed_layouts.h in these graphs.
kernelgen::Graph forwardGraph(const kernelgen::RealRow& row, bool singlePrecision);
kernelgen::Graph forwardGraph(int n, bool singlePrecision);
kernelgen::Graph inverseGraph(const kernelgen::RealRow& row, bool singlePrecision);
kernelgen::Graph inverseGraph(int n, bool singlePrecision);

kernelgen::KernelFamily forwardFamily();
kernelgen::KernelFamily inverseFamily();

}   // namespace kfm::dft::real
