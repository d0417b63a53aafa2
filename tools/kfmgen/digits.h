// Numbers as shortest texts that read back as the same value.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>

namespace kfm::tool {

inline constexpr std::size_t longestNumber = 32;

// Writes at most `longestNumber` characters and returns their end.
inline char* writeNumber(char* to, double value, bool doublePrecision) {
    return doublePrecision ? std::to_chars(to, to + longestNumber, value).ptr
                           : std::to_chars(to, to + longestNumber, static_cast<float>(value)).ptr;
}

inline char* writeNumber(char* to, std::uint64_t value) {
    return std::to_chars(to, to + longestNumber, value).ptr;
}

}   // namespace kfm::tool
