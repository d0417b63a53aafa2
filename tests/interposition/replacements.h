// What the replaced fixed-length functions do instead of a transform: they tell their names.
#pragma once

namespace kfm::tests {

inline constexpr int replaced = 4711;   // no status of the library
inline const char* lastReplacement = "";

}   // namespace kfm::tests
