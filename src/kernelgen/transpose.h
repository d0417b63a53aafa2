// Transposition of a linear network: every edge reversed, sums become branches and branches sums.
// The transpose of a real analysis is its synthesis, with the same multiplications. Lanes are
// followed one by one, so networks with shuffles are transposed as well.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/packing.h"

namespace kfm::kernelgen {

struct WeightedOutput {
    Ref output;   // in the network to be transposed
    Ref value;    // in the target graph; zeros prune the network
    // For each lane of the output the lane of the value that weighs it, -1: none; empty: its own.
    LanePattern lanes = {};
};

// Builds in `target` the transpose of `network` from its loads to the outputs, applied to the
// values: result i is the sum over outputs of value * (d output / d source element i). Elements
// that no output depends on stay zero.
std::vector<Lane> transposedLanes(const Graph& network, int elements,
                                  std::span<const WeightedOutput> outputs, Graph& target);

// The same for a network whose `inputs` are whole vectors, loaded one element each.
std::vector<Ref> transposed(const Graph& network, std::span<const Ref> inputs,
                            std::span<const WeightedOutput> outputs, Graph& target);

}   // namespace kfm::kernelgen
