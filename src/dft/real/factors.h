// How each length of the real DFT is computed: the factor tree, the number of scalars in a vector,
// and where kernels of single precision round.
#pragma once

#include "kernelgen/real_lanes.h"

namespace kfm::dft::real {

kernelgen::RealRow row(int n);

kernelgen::Arithmetic forwardArithmetic(int n, bool singlePrecision);
kernelgen::Arithmetic inverseArithmetic(int n, bool singlePrecision);

}   // namespace kfm::dft::real
