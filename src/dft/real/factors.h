// How each length of the real DFT is computed: the factor tree, the number of scalars in a vector,
// and where kernels of single precision round.
#pragma once

#include "kernelgen/graph.h"
#include "kernelgen/plan.h"

namespace kfm::dft::real {

struct Row {
    kernelgen::Plan plan;
    int lanes;   // 1: scalar code
};

Row row(int n);

kernelgen::Arithmetic forwardArithmetic(int n, bool singlePrecision);
kernelgen::Arithmetic inverseArithmetic(int n, bool singlePrecision);

}   // namespace kfm::dft::real
