// The DCT-IV, whose lengths are the planner's to accept.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "transform/frame_transform.h"

namespace kfm::tool {

inline constexpr std::string_view plannedFamily = "DCT4";

// Throws UsageError for a length that cannot be planned, naming its nearest neighbours, and for a
// flag other than kfmScaleNone.
std::unique_ptr<FrameTransform> plannedTransform(int length, bool doublePrecision, int flag);

// The lengths in words, for a listing.
std::string plannedLengths();

}   // namespace kfm::tool
