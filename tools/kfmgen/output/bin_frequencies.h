// At which frequencies the results of a transform lie.
#pragma once

#include <vector>

#include "transform/frame_transform.h"

namespace kfm::tool {

// In Hz, of each result; those above half the rate are negative. `length` is that of the
// transform. Throws UsageError where results have no frequency.
std::vector<double> binFrequencies(const FrameTransform& transform, int length, double rate);

}   // namespace kfm::tool
