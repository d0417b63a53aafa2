// How each length of the Hartley transform is computed: the factor tree of its sums of cosines and
// sines, the number of scalars in a vector, and where kernels of single precision round.
#pragma once

#include "kernelgen/graph.h"
#include "kernelgen/plan.h"

namespace kfm::hartley {

struct Row {
    kernelgen::Plan plan;
    int lanes;   // 1: scalar code
};

Row row(int n);
kernelgen::Arithmetic arithmetic(int n, bool singlePrecision);

}   // namespace kfm::hartley
