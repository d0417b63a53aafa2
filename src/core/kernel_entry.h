// The entry of every fixed-length function: argument checks in their fixed order and the choice
// of the scale factor.
#pragma once

#include <cstdint>

#include "kfmgen.h"

namespace kfm {

inline bool misaligned(const void* pointer) {
    return (reinterpret_cast<std::uintptr_t>(pointer) & 15) != 0;
}

// The three factors of a fixed-length function in one direction; a flag picks one.
template <class Real>
struct ScaleFactors {
    Real none;
    Real byN;
    Real bySqrtN;
};

// A transform that is its own inverse is scaled by either flag.
enum class Direction { forward, inverse, both };

// The factor that `flag` selects, or null for a value that is no flag.
template <Direction direction, class Real>
inline const Real* chooseScale(const ScaleFactors<Real>& factors, int flag) {
    constexpr int dividesByN = direction == Direction::forward ? kfmScaleFwdByN : kfmScaleInvByN;
    if (flag == kfmScaleNone) return &factors.none;
    if (flag == kfmScaleBySqrtN) return &factors.bySqrtN;
    if (flag == kfmScaleFwdByN || flag == kfmScaleInvByN)
        return direction == Direction::both || flag == dividesByN ? &factors.byN : &factors.none;
    return nullptr;
}

inline bool isFlag(int flag) {
    static constexpr ScaleFactors<float> any = {};
    return chooseScale<Direction::both>(any, flag) != nullptr;
}

}   // namespace kfm
