// What every generated kernel runs in: argument checks and choice of the scale factor.
#pragma once

#include "core/kernel_entry.h"
#include "simd/launder.h"

namespace kfm {

// Checks the arguments in their order, picks the scale factor and runs the transform. `Kernel`
// has the static `scales` and `direction`, and transform<Memory>, which takes what a function is
// given beyond source, destination and flag as it comes.
template <class Kernel, class Memory, class Element, class... Further>
[[gnu::always_inline]] inline KfmStatus runKernel(const Element* src, Element* dst, int flag,
                                                  Further... further) {
    if (src == nullptr || dst == nullptr) return kfmErrNullPtr;
    const auto* scales = &Kernel::scales;
#ifdef __aarch64__
    launder(scales);   // one address, which takes two instructions, not one for each factor
    if (scales == nullptr) __builtin_unreachable();
#endif
    const auto* factor = chooseScale<Kernel::direction>(*scales, flag);
    if (factor == nullptr) return kfmErrFlag;
    launder(factor);
    Kernel::template transform<Memory>(src, dst, factor, further...);
    return kfmOk;
}

}   // namespace kfm
