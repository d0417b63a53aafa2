// Pairs what a graph does: two operations of one kind become the halves of an operation on a vector
// of twice the width. No operation changes, so no bit of a result does; what a pairing costs is the
// moves that bring operands together. They are few where paired operations have paired operands,
// and a local search finds such pairings better than any rule: simulated annealing (S. Kirkpatrick,
// C. D. Gelatt, M. P. Vecchi, "Optimization by simulated annealing", 1983) from pairs of outputs.
//
// The search computes in integers with random numbers of its own: a choice gives the same pairing
// on every machine.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

// Items are numbered: the nodes of a graph, then its outputs.
struct Pairing {
    std::vector<int> partner;   // -1: alone
    std::vector<char> upper;    // whether an item is the upper half of its pair
    bool loadsApart = false;    // even what stands side by side is loaded by halves

    bool alone(int item) const { return partner[item] < 0; }
    // Whether a and b are a pair in this order.
    bool joins(int a, int b) const { return partner[a] == b && !upper[a]; }
};

// Where a search starts and how long it goes on.
struct PairingChoice {
    int start = 1;   // outputs k and k + start; 0: from nothing; -s: outputs k and s - k
    int seed = 1;
    int moves = 60;   // tried per operation
    bool loadsApart = false;

    static PairingChoice parse(std::string_view text);   // "1:1:60" or "1:1:60:apart"
    std::string text() const;
};

Pairing pairOperations(const Graph& g, const PairingChoice& choice);

// The choices of least cost, best first, among all starts that pay somewhere: what is worth a
// measurement.
std::vector<PairingChoice> cheapestPairings(const Graph& g, std::size_t count);

}   // namespace kfm::kernelgen
