#include "numbers.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace kfm::tool {
namespace {

constexpr const char* noNumber = "is not a number";
constexpr const char* tooLarge = "is out of range";

template <class Number>
struct Read {
    Number value = 0;
    bool whole;   // nothing else is there
    bool inRange;
};

template <class Number>
Read<Number> read(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    Read<Number> result;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, result.value);
    result.whole = end == last && error != std::errc::invalid_argument;
    result.inRange = error != std::errc::result_out_of_range;
    return result;
}

}   // namespace

Parsed<double> realNumber(std::string_view text) {
    auto [value, whole, inRange] = read<double>(text);
    if (whole && !inRange) value = std::strtod(std::string(text).c_str(), nullptr);
    if (!whole || (inRange && !std::isfinite(value))) return {0, noNumber};
    return {value, std::isfinite(value) ? nullptr : tooLarge};
}

Parsed<std::int64_t> wholeNumber(std::string_view text) {
    const auto [value, whole, inRange] = read<std::int64_t>(text);
    return {value, !whole ? noNumber : !inRange ? tooLarge : nullptr};
}

}   // namespace kfm::tool
