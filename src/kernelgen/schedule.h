// Orders a graph's nodes for few live values.
//
// Recursive bisection: colour nodes red from the inputs and blue from the outputs, a layer at a
// time, schedule the red half, then the blue half. It keeps working sets small at every size
// without knowing the register count (M. Frigo, "A fast Fourier transform compiler", 1999). Small
// sets are ordered greedily by the growth of the set of live values.
//
// Which order is fastest cannot be told from the order: the choice is measured off line and
// recorded per kernel and target. A ScheduleChoice is one row of that record.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kernelgen/graph.h"
#include "kernelgen/pairing.h"
#include "kernelgen/target.h"

namespace kfm::kernelgen {

enum class Pin { none, sums, all };

struct ScheduleChoice {
    int leaf = 24;             // sets up to this size are ordered greedily
    int seed = 0;              // 0: ties go to the youngest operand; else a pseudo-random choice
    bool transposed = false;   // schedule the reversed graph and reverse the order
    Pin pin = Pin::none;       // after which nodes the compiler must keep the order
    bool relaunder = false;    // hide the constants anew every few nodes: none is kept and spilled
    std::vector<PairingChoice> pairings = {};   // of operations, one after the other

    // "24:0:0:none:0", or with pairings "24:0:0:none:0/1:1:60".
    static ScheduleChoice parse(std::string_view text);
    std::string text() const;
};

// The choice of the row that `matches` and is the target's own, or else of the target it is like.
template <class Rows, class Matches>
ScheduleChoice recordedChoice(const Rows& rows, const Target& target, Matches matches) {
    for (const std::string_view name : {target.name, target.likeness})
        for (const auto& row : rows)
            if (row.target == name && matches(row)) return ScheduleChoice::parse(row.choice);
    return {};
}

// Things in execution order, from the things that each is computed from (smaller numbers).
std::vector<int> schedule(const std::vector<std::vector<int>>& operands,
                          const ScheduleChoice& choice);

// Live nodes (those an output depends on) in execution order.
std::vector<int> schedule(const Graph& g, const ScheduleChoice& choice);

}   // namespace kfm::kernelgen
