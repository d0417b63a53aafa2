// The short transforms as graphs of whole vectors, across whose lanes the transform goes.
#pragma once

#include "kernelgen/graph.h"

namespace kfm::dct4 {

// n = 2, 4, 8, 16, 32; of one lane where vectors do not pay. Slots are vectors
// that stand side by side.
kernelgen::Graph fixedTransformGraph(int n, bool doublePrecision);

}   // namespace kfm::dct4
