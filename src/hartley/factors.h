// How each length of the Hartley transform is computed: the factor tree of its sums of cosines and
// sines, the number of scalars in a vector, and where kernels of single precision round.
#pragma once

#include "kernelgen/real_lanes.h"

namespace kfm::hartley {

kernelgen::RealRow row(int n);
kernelgen::Arithmetic arithmetic(int n, bool singlePrecision);

}   // namespace kfm::hartley
