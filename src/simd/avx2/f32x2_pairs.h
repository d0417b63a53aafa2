// Two vectors of two single-precision lanes each, as the halves of one of 16 bytes. In kernels of
// mixed precision they are widened to the halves of four double-precision lanes and back.
#pragma once

#include "simd/avx2/f64x4.h"
#include "simd/f32x2.h"

namespace kfm::simd {

KFM_OPERATION f64x4 widenHalves(f32x4 a) { return _mm256_cvtps_pd(a); }
KFM_OPERATION f32x4 narrow(f64x4 a) { return _mm256_cvtpd_ps(a); }

KFM_OPERATION f32x2 lower(f32x4 v) { return v; }
KFM_OPERATION f32x2 upper(f32x4 v) { return _mm_movehl_ps(v, v); }

template <int ofA, int ofB>
KFM_OPERATION f32x4 join(f32x4 a, f32x4 b) {
    if constexpr (ofA == 0 && ofB == 0) return _mm_movelh_ps(a, b);
    else if constexpr (ofA == 0) return _mm_blend_ps(a, b, 0b1100);
    else return _mm_shuffle_ps(a, b, (2 | 3 << 2) | (2 * ofB | (2 * ofB + 1) << 2) << 4);
}

// As for four double-precision lanes.
template <int i0, int i1, int j0, int j1>
KFM_OPERATION f32x4 selectHalves(f32x4 a, f32x4 b) {
    if constexpr (i1 < 0) {
        static_assert(i0 == 0 && j0 == 0 && j1 < 0, "only the lower lane stays alone");
        return _mm_blend_ps(a, _mm_setzero_ps(), 0b1010);
    } else if constexpr (i0 == 0 && i1 == 1 && j0 == 0 && j1 == 1) {
        return _mm_blend_ps(a, b, 0b1010);
    } else {
        const f32x4 v = _mm_shuffle_ps(a, b, i0 | (2 + j0) << 2 | i1 << 4 | (2 + j1) << 6);
        return _mm_shuffle_ps(v, v, 0 | 2 << 2 | 1 << 4 | 3 << 6);
    }
}

template <int i0, int i1, int j0, int j1>
KFM_OPERATION f32x4 selectHalves(f32x4 a) {
    if constexpr (i1 < 0) return selectHalves<i0, i1, j0, j1>(a, a);
    else return _mm_shuffle_ps(a, a, i0 | i1 << 2 | (2 + j0) << 4 | (2 + j1) << 6);
}

template <int i0, int i1>
KFM_OPERATION f32x2 loadHalf(const float* p) {
    if constexpr (i1 == i0 + 1) return loadBoth(p + i0);
    else return loadPair<i0, i1>(p);
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f32x4 loadFourApart(const float* p) {
    return _mm_movelh_ps(loadHalf<i0, i1>(p), loadHalf<i2, i3>(p));
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f32x4 loadFour(const float* p) {
    if constexpr (i1 == i0 + 1 && i2 == i0 + 2 && i3 == i0 + 3) return _mm_loadu_ps(p + i0);
    else return loadFourApart<i0, i1, i2, i3>(p);
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION void storeFour(float* p, f32x4 v) {
    if constexpr (i0 >= 0 && i1 == i0 + 1 && i2 == i0 + 2 && i3 == i0 + 3) {
        _mm_storeu_ps(p + i0, v);
    } else {
        storePair<i0, i1>(p, lower(v));
        storePair<i2, i3>(p, upper(v));
    }
}

}   // namespace kfm::simd
