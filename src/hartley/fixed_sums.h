// The Hartley transforms of 8 and 16 points, whose sums have a fixed grouping: the even outputs of
// 16 points are the transform of the eight sums x[n] + x[n+8], to the bit.
#pragma once

#include <span>
#include <vector>

#include "kernelgen/real_lanes.h"

namespace kfm::hartley {

std::vector<kernelgen::LaneOutput> eightPoints(kernelgen::Graph& g,
                                               std::span<const kernelgen::Lane> x);
std::vector<kernelgen::LaneOutput> sixteenPoints(kernelgen::Graph& g,
                                                 std::span<const kernelgen::Lane> x);

}   // namespace kfm::hartley
