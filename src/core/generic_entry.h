// The generic entries: a length known only at run time selects one of a family's functions.
#pragma once

#include <cstddef>
#include <type_traits>

#include "kfmgen.h"

namespace kfm {

// The place of a length in a table that starts at length `first`. The subtraction wraps, so that one
// comparison with the size of the table refuses lengths below and above it.
constexpr unsigned placeOf(int length, int first) {
    return static_cast<unsigned>(length) - static_cast<unsigned>(first);
}

// Calls the function of `length`.
template <std::size_t count, class... Arguments>
inline KfmStatus callByLength(KfmStatus (*const (&functions)[count])(Arguments...), int first,
                              int length, std::type_identity_t<Arguments>... arguments) {
    const unsigned index = placeOf(length, first);
    if (index > count - 1) return kfmErrSize;
    return functions[index](arguments...);
}

}   // namespace kfm
