// The generic entries: a length known only at run time selects one of a family's functions.
#pragma once

#include <cstddef>
#include <type_traits>

#include "kfmgen.h"

namespace kfm {

// Calls the function of `length` from a table that starts at length `first`. The subtraction
// wraps, so that one comparison refuses lengths below and above the table.
template <std::size_t count, class... Arguments>
inline KfmStatus callByLength(KfmStatus (*const (&functions)[count])(Arguments...), int first,
                              int length, std::type_identity_t<Arguments>... arguments) {
    const unsigned index = static_cast<unsigned>(length) - static_cast<unsigned>(first);
    if (index > count - 1) return kfmErrSize;
    return functions[index](arguments...);
}

}   // namespace kfm
