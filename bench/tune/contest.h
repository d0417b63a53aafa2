// Picks the fastest of some subjects with little time spent on the slow ones: all take turns, the
// slower half leaves, and the rest run twice as many batches, until a few are left.
#pragma once

#include <functional>
#include <vector>

#include "timer.h"

namespace kfm::tune {

// A contestant is timed as the sum of its subjects' minimums.
struct Contestant {
    std::vector<bench::Subject> subjects;
    double time() const;
};

// Runs the contest; returns the index of the winner. Within the tie margin of the fastest the
// incumbent wins (-1: there is none), else the earliest: a choice must not change without a gain.
inline constexpr double tieMargin = 0.005;
int findFastest(std::vector<Contestant>& contestants, int incumbent, int firstBatches);

}   // namespace kfm::tune
