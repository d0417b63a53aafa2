// The choices among which a measurement decides.
#pragma once

#include <vector>

#include "kernelgen/schedule.h"

namespace kfm::kernelgen {

std::vector<ScheduleChoice> scheduleCandidates();
// Few, because kernels of rows are many: what won where rows were tried in all of the above.
std::vector<ScheduleChoice> rowsCandidates();
// The same for vectors that pairs fill, in two rounds: the cheapest pairings, so many times one
// after the other at most, and none, in the order on record and in one that often wins; then other
// orders of the winner.
std::vector<ScheduleChoice> pairingCandidates(const Graph& g, const ScheduleChoice& recorded,
                                              int times);
// How often the lanes of a graph can be doubled on a target, never where there is one.
int pairingsToFill(const Graph& g, bool doublePrecision, const Target& target);
std::vector<ScheduleChoice> orderCandidates(const ScheduleChoice& winner);

}   // namespace kfm::kernelgen
