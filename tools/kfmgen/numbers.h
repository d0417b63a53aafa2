// Numbers as users write them, in options and in texts: decimal, finite, and nothing after them.
#pragma once

#include <cstdint>
#include <string_view>

namespace kfm::tool {

template <class Number>
struct Parsed {
    Number value;
    const char* trouble;   // what the text is instead of a number; null when it is one
};

// Too small for a double is zero.
Parsed<double> realNumber(std::string_view text);
Parsed<std::int64_t> wholeNumber(std::string_view text);

}   // namespace kfm::tool
