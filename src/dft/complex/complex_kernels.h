// The complex DFT for the generator: from a length to a graph, and from a graph to functions.
#pragma once

#include "dft/complex/factors.h"
#include "kernelgen/generator.h"

namespace kfm::dft::complex {

kernelgen::KernelFamily kernelFamily();

// Double precision: a vector is one complex element.
kernelgen::Graph doubleGraph(const kernelgen::Plan& plan, bool inverse);
// Single precision: real and imaginary parts in vectors of their own.
kernelgen::Graph singleGraph(const SinglePrecisionRow& row, bool inverse);

}   // namespace kfm::dft::complex
