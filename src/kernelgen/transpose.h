// Transposition of a linear network: every edge reversed, sums become branches and branches sums.
// The transpose of a real analysis is its synthesis, with the same multiplications.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

struct WeightedOutput {
    Ref output;   // in the network to be transposed
    Ref value;    // in the target graph; zeros prune the network
};

// Builds in `target` the transpose of `network` from its `inputs` (loads) to the outputs, applied
// to the values: result i is the sum over outputs of value * (d output / d input i).
std::vector<Ref> transposed(const Graph& network, std::span<const Ref> inputs,
                            std::span<const WeightedOutput> outputs, Graph& target);

}   // namespace kfm::kernelgen
