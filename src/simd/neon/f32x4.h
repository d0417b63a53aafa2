// Four single-precision lanes of NEON. All shuffles are one instruction or two: compilers know them
// by the lanes.
#pragma once

#include <arm_neon.h>

#include "kfmgen.h"
#include "simd/memory.h"

namespace kfm::simd {

using f32x4 = float32x4_t;

KFM_OPERATION f32x4 add(f32x4 a, f32x4 b) { return vaddq_f32(a, b); }
KFM_OPERATION f32x4 sub(f32x4 a, f32x4 b) { return vsubq_f32(a, b); }
KFM_OPERATION f32x4 mul(f32x4 a, f32x4 b) { return vmulq_f32(a, b); }
// Changes the sign of the lanes in which the mask holds -0.0.
KFM_OPERATION f32x4 flip(f32x4 a, f32x4 mask) {
    return vreinterpretq_f32_u32(veorq_u32(vreinterpretq_u32_f32(a), vreinterpretq_u32_f32(mask)));
}

// clang-format off
template <> KFM_OPERATION f32x4 loadAligned(const float* p) { return vld1q_f32(p); }
template <> KFM_OPERATION f32x4 loadUnaligned(const float* p) { return vld1q_f32(p); }
template <> KFM_OPERATION f32x4 loadEverywhere(const float* p) { return vld1q_dup_f32(p); }
// clang-format on
KFM_OPERATION void storeAligned(float* p, f32x4 v) { vst1q_f32(p, v); }
KFM_OPERATION void storeUnaligned(float* p, f32x4 v) { vst1q_f32(p, v); }
// Compilers have no streaming store for single vectors here, and ordinary ones want no fence.
KFM_OPERATION void storeStreaming(float* p, f32x4 v) { vst1q_f32(p, v); }
KFM_OPERATION void finishStreaming() {}

// The lanes i0..i3 of a (0..3) and b (4..7).
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f32x4 select(f32x4 a, f32x4 b) {
    constexpr bool halfOfA = i0 % 2 == 0 && i1 == i0 + 1 && i1 < 4;
    if constexpr (halfOfA && i2 == i3 && i2 > 3) {   // in two steps, where compilers take more
        const f32x4 lane = vdupq_laneq_f32(b, i2 - 4);
        return __builtin_shufflevector(a, lane, i0, i1, 4, 5);
    } else {
        return __builtin_shufflevector(a, b, i0, i1, i2, i3);
    }
}

// Two real elements in the low lanes, zeros in the others.
struct HalfSingle {
    KFM_OPERATION static f32x4 load(const Kfm32f* p) {
        return vcombine_f32(vld1_f32(p), vdup_n_f32(0));
    }
    KFM_OPERATION static void store(Kfm32f* p, f32x4 v) { vst1_f32(p, vget_low_f32(v)); }
};

KFM_OPERATION f32x4 loadHalves(const Kfm32fc* low, const Kfm32fc* high) {
    return vcombine_f32(vld1_f32(&low->re), vld1_f32(&high->re));
}
KFM_OPERATION void storeHalves(Kfm32fc* low, Kfm32fc* high, f32x4 v) {
    vst1_f32(&low->re, vget_low_f32(v));
    vst1_f32(&high->re, vget_high_f32(v));
}

}   // namespace kfm::simd
