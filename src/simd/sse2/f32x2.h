// Two single-precision lanes of SSE2: the lower half of a vector. What the upper half holds is of no
// interest.
#pragma once

#include "simd/sse2/f32x4.h"
#include "simd/sse2/f64x2.h"

namespace kfm::simd {

using f32x2 = __m128;

KFM_OPERATION f64x2 widen(f32x2 a) { return _mm_cvtps_pd(a); }
KFM_OPERATION f32x2 narrow(f64x2 a) { return _mm_cvtpd_ps(a); }
KFM_OPERATION f32x2 subtractFromZero(f32x2 a) { return _mm_sub_ps(_mm_setzero_ps(), a); }

// The lanes i0, i1 of a (0, 1) and b (2, 3); -1: zero.
template <int i0, int i1>
KFM_OPERATION f32x2 select(f32x2 a, f32x2 b) {
    const f32x2 first = i0 < 2 ? a : b, second = i1 < 2 ? a : b;
    if constexpr (i1 < 0) {
        static_assert(i0 == 0, "only the lower lane stays alone");
        return _mm_move_ss(_mm_setzero_ps(), first);
    } else if constexpr ((i0 < 2) == (i1 < 2)) {
        return _mm_shuffle_ps(first, first, (i0 & 1) | (i1 & 1) << 2);
    } else if constexpr (i0 % 2 == 0 && i1 % 2 == 0) {
        return _mm_unpacklo_ps(first, second);
    } else if constexpr (i0 % 2 == 1 && i1 % 2 == 1) {
        const f32x4 both = _mm_unpacklo_ps(first, second);
        return _mm_movehl_ps(both, both);
    } else if constexpr (i0 % 2 == 0) {
        return _mm_move_ss(second, first);
    } else {
        const f32x4 both = _mm_unpacklo_ps(second, first);   // (s0, f0, s1, f1)
        return _mm_shuffle_ps(both, both, 3 | 0 << 2);
    }
}

// Two neighbours at any address.
KFM_OPERATION f32x2 loadBoth(const float* p) { return HalfSingle::load(p); }
KFM_OPERATION void storeBoth(float* p, f32x2 v) { HalfSingle::store(p, v); }

// Single elements.
KFM_OPERATION f32x2 loadLow(const float* p) { return _mm_load_ss(p); }
KFM_OPERATION f32x2 loadHalves(const float* low, const float* high) {
    return _mm_unpacklo_ps(_mm_load_ss(low), _mm_load_ss(high));
}
KFM_OPERATION void storeLow(float* p, f32x2 v) { _mm_store_ss(p, v); }
KFM_OPERATION void storeHigh(float* p, f32x2 v) { _mm_store_ss(p, _mm_shuffle_ps(v, v, 1)); }

}   // namespace kfm::simd
