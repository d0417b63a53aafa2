// What every generated kernel runs in: argument checks, choice of the scale factor, and tables
// that the compiler loads from.
#pragma once

#include "core/kernel_entry.h"

namespace kfm {

// Hides where a table comes from, so that its constants are loaded and not rebuilt.
template <class T>
[[gnu::always_inline]] inline void launder(const T*& table) {
    asm("" : "+r"(table));
}

// Checks the arguments in their order, picks the scale factor and runs the transform. `Kernel`
// has the static `scales` and `direction`, and transform<Memory>, which takes what a function is
// given beyond source, destination and flag as it comes.
template <class Kernel, class Memory, class Element, class... Further>
[[gnu::always_inline]] inline KfmStatus runKernel(const Element* src, Element* dst, int flag,
                                                  Further... further) {
    if (src == nullptr || dst == nullptr) return kfmErrNullPtr;
    const auto* factor = chooseScale<Kernel::direction>(Kernel::scales, flag);
    if (factor == nullptr) return kfmErrFlag;
    launder(factor);
    Kernel::template transform<Memory>(src, dst, factor, further...);
    return kfmOk;
}

}   // namespace kfm
