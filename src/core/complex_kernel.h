// What a generated complex kernel stands on: lane operations, memory operations, entry checks.
#pragma once

#include "core/kernel_entry.h"
#include "simd/f32x4.h"
#include "simd/f64x2.h"
#include "simd/launder.h"

namespace kfm {

// Checks the arguments in their order, picks the scale factor and runs the transform. `Kernel`
// has the static `scales` and `direction`, and transform<Memory>.
template <class Kernel, class Memory, class Element>
[[gnu::always_inline]] inline KfmStatus runKernel(const Element* src, Element* dst, int flag) {
    if (src == nullptr || dst == nullptr) return kfmErrNullPtr;
    const auto* scale = chooseScale<Kernel::direction>(Kernel::scales, flag);
    if (scale == nullptr) return kfmErrFlag;
    launder(scale);
    Kernel::template transform<Memory>(src, dst, simd::broadcast(scale));
    return kfmOk;
}

}   // namespace kfm
