// Two single-precision lanes of NEON: a vector of 8 bytes.
#pragma once

#include "simd/neon/f32x4.h"
#include "simd/neon/f64x2.h"

namespace kfm::simd {

using f32x2 = float32x2_t;

KFM_OPERATION f32x2 add(f32x2 a, f32x2 b) { return vadd_f32(a, b); }
KFM_OPERATION f32x2 sub(f32x2 a, f32x2 b) { return vsub_f32(a, b); }
KFM_OPERATION f32x2 mul(f32x2 a, f32x2 b) { return vmul_f32(a, b); }
KFM_OPERATION f32x2 flip(f32x2 a, f32x2 mask) {
    return vreinterpret_f32_u32(veor_u32(vreinterpret_u32_f32(a), vreinterpret_u32_f32(mask)));
}
KFM_OPERATION f32x2 subtractFromZero(f32x2 a) { return vsub_f32(vdup_n_f32(0), a); }
KFM_OPERATION f64x2 widen(f32x2 a) { return vcvt_f64_f32(a); }
KFM_OPERATION f32x2 narrow(f64x2 a) { return vcvt_f32_f64(a); }

// Factors and constants are whole vectors, of which the lower half counts.
KFM_OPERATION f32x2 add(f32x2 a, f32x4 b) { return add(a, vget_low_f32(b)); }
KFM_OPERATION f32x2 mul(f32x2 a, f32x4 b) { return mul(a, vget_low_f32(b)); }
KFM_OPERATION f32x2 flip(f32x2 a, f32x4 mask) { return flip(a, vget_low_f32(mask)); }
KFM_OPERATION f64x2 widen(f32x4 a) { return widen(vget_low_f32(a)); }

// The lanes i0, i1 of a (0, 1) and b (2, 3); -1: zero.
template <int i0, int i1>
KFM_OPERATION f32x2 select(f32x2 a, f32x2 b) {
    if constexpr (i1 >= 0) return __builtin_shufflevector(a, b, i0, i1);
    else return __builtin_shufflevector(i0 < 2 ? a : b, vdup_n_f32(0), i0 % 2, 2);
}

// Two neighbours at any address.
KFM_OPERATION f32x2 loadBoth(const float* p) { return vld1_f32(p); }
KFM_OPERATION void storeBoth(float* p, f32x2 v) { vst1_f32(p, v); }

// Single elements; the upper lane of a low one is zero.
KFM_OPERATION f32x2 loadLow(const float* p) { return vld1_lane_f32(p, vdup_n_f32(0), 0); }
KFM_OPERATION f32x2 loadHalves(const float* low, const float* high) {
    return vld1_lane_f32(high, loadLow(low), 1);
}
KFM_OPERATION void storeLow(float* p, f32x2 v) { vst1_lane_f32(p, v, 0); }
KFM_OPERATION void storeHigh(float* p, f32x2 v) { vst1_lane_f32(p, v, 1); }

// clang-format off
template <> KFM_OPERATION f32x2 loadEverywhere(const float* p) { return vld1_dup_f32(p); }
// clang-format on

}   // namespace kfm::simd
