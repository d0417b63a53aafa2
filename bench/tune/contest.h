// Picks the fastest of some subjects with little time spent on the slow ones: all take turns, the
// slower half leaves, and the rest run twice as many batches, until a few are left.
#pragma once

#include <span>
#include <vector>

#include "timer.h"

namespace kfm::tune {

// Runs the contest and returns the index of the winner.
int findFastest(std::vector<bench::Subject>& contestants, int incumbent, int firstBatches);

// The choice by time. Within the tie margin of the fastest the incumbent wins (-1: there is none),
// else the earliest: what is committed must not change without a gain.
inline constexpr double tieMargin = 0.005;
int winner(std::span<const double> times, int incumbent);

}   // namespace kfm::tune
