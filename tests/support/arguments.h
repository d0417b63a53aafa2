// Integers that some other reading of an argument takes for another one.
#pragma once

#include <vector>

namespace kfm::tests {

// The numbers that differ from `value` in one bit: read as fewer than 32 bits, some are the same.
inline std::vector<int> oneBitFrom(int value) {
    std::vector<int> result;
    for (int bit = 0; bit < 32; ++bit) result.push_back(static_cast<int>(value ^ 1u << bit));
    return result;
}

#ifdef __LP64__

// An int in a register of 64 bits, as it may come: its upper half is left to chance.
inline constexpr unsigned long upperHalves[] = {1, 0x80000000, 0xffffffff};

inline long withUpperHalf(unsigned long upper, int value) {
    return static_cast<long>(upper << 32 | static_cast<unsigned>(value));
}

#endif

}   // namespace kfm::tests
