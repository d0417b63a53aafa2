// How pages for a terminal say numbers and show levels.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace kfm::tool {

inline constexpr std::size_t pageWidth = 80;
inline constexpr double dbPerShade = 6;

template <class... Values>
std::string format(const char* pattern, Values... values) {
    std::string text(std::snprintf(nullptr, 0, pattern, values...), '\0');
    std::snprintf(text.data(), text.size() + 1, pattern, values...);
    return text;
}

// With a suffix where the value would not fit seven characters.
std::string hertz(double frequency, int decimals);
std::string roundHertz(double frequency);   // with a suffix from 1000 on
std::string difference(double frequency);   // three digits

std::string samples(std::uint64_t count);
std::string level(double decibels);

// Enough decimals to tell multiples of `step` apart.
int decimals(double step);

// The end of a name that does not fit the page.
std::string cut(const std::string& name);

char shade(double level, double loudest);
std::string shadesFromLoudest();

}   // namespace kfm::tool
