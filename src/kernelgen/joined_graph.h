// A graph on vectors of twice as many lanes: what a pairing joins is one operation on both halves.
// Operands that are not a pair in their order are brought together by a join, made once for all who
// want the same two. No operation changes, so no bit of a result does. The result is a graph like
// any other and can be paired once more.
#pragma once

#include "kernelgen/pairing.h"

namespace kfm::kernelgen {

Graph joinedGraph(const Graph& g, const Pairing& pairing);

}   // namespace kfm::kernelgen
