// Two double-precision lanes of NEON.
#pragma once

#include <arm_neon.h>

#include "simd/memory.h"

namespace kfm::simd {

using f64x2 = float64x2_t;

KFM_OPERATION f64x2 add(f64x2 a, f64x2 b) { return vaddq_f64(a, b); }
KFM_OPERATION f64x2 sub(f64x2 a, f64x2 b) { return vsubq_f64(a, b); }
KFM_OPERATION f64x2 mul(f64x2 a, f64x2 b) { return vmulq_f64(a, b); }
// Changes the sign of the lanes in which the mask holds -0.0.
KFM_OPERATION f64x2 flip(f64x2 a, f64x2 mask) {
    return vreinterpretq_f64_u64(veorq_u64(vreinterpretq_u64_f64(a), vreinterpretq_u64_f64(mask)));
}
KFM_OPERATION f64x2 subtractFromZero(f64x2 a) { return vsubq_f64(vdupq_n_f64(0), a); }

// clang-format off
template <> KFM_OPERATION f64x2 loadAligned(const double* p) { return vld1q_f64(p); }
template <> KFM_OPERATION f64x2 loadUnaligned(const double* p) { return vld1q_f64(p); }
template <> KFM_OPERATION f64x2 loadEverywhere(const double* p) { return vld1q_dup_f64(p); }
// clang-format on
KFM_OPERATION void storeAligned(double* p, f64x2 v) { vst1q_f64(p, v); }
KFM_OPERATION void storeUnaligned(double* p, f64x2 v) { vst1q_f64(p, v); }
KFM_OPERATION void storeStreaming(double* p, f64x2 v) { vst1q_f64(p, v); }

// The lanes i0, i1 of a (0, 1) and b (2, 3); -1: zero.
template <int i0, int i1>
KFM_OPERATION f64x2 select(f64x2 a, f64x2 b) {
    if constexpr (i1 >= 0) return __builtin_shufflevector(a, b, i0, i1);
    else return __builtin_shufflevector(i0 < 2 ? a : b, vdupq_n_f64(0), i0 % 2, 2);
}

// Single elements; the upper lane of a low one is zero.
KFM_OPERATION f64x2 loadLow(const double* p) { return vcombine_f64(vld1_f64(p), vdup_n_f64(0)); }
KFM_OPERATION f64x2 loadHalves(const double* low, const double* high) {
    return vcombine_f64(vld1_f64(low), vld1_f64(high));
}
KFM_OPERATION void storeLow(double* p, f64x2 v) { vst1q_lane_f64(p, v, 0); }
KFM_OPERATION void storeHigh(double* p, f64x2 v) { vst1q_lane_f64(p, v, 1); }

}   // namespace kfm::simd
