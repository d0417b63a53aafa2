// What every generated kernel runs in: argument checks and choice of the scale factor.
#pragma once

#include "core/kernel_entry.h"
#include "simd/launder.h"

namespace kfm {

// Checks the arguments in their order, picks the scale factor and runs the transform. `Kernel`
// has the static `scales` and `direction`, and transform<Memory>.
template <class Kernel, class Memory, class Element>
[[gnu::always_inline]] inline KfmStatus runKernel(const Element* src, Element* dst, int flag) {
    if (src == nullptr || dst == nullptr) return kfmErrNullPtr;
    const auto* factor = chooseScale<Kernel::direction>(Kernel::scales, flag);
    if (factor == nullptr) return kfmErrFlag;
    launder(factor);
    Kernel::template transform<Memory>(src, dst, factor);
    return kfmOk;
}

}   // namespace kfm
