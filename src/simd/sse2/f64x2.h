// Two double-precision lanes of SSE2.
#pragma once

#include <emmintrin.h>

#include "simd/memory.h"

namespace kfm::simd {

using f64x2 = __m128d;

KFM_OPERATION f64x2 add(f64x2 a, f64x2 b) { return _mm_add_pd(a, b); }
KFM_OPERATION f64x2 sub(f64x2 a, f64x2 b) { return _mm_sub_pd(a, b); }
KFM_OPERATION f64x2 mul(f64x2 a, f64x2 b) { return _mm_mul_pd(a, b); }
// Changes the sign of the lanes in which the mask holds -0.0.
KFM_OPERATION f64x2 flip(f64x2 a, f64x2 mask) { return _mm_xor_pd(a, mask); }
KFM_OPERATION f64x2 subtractFromZero(f64x2 a) { return _mm_sub_pd(_mm_setzero_pd(), a); }

// clang-format off
template <> KFM_OPERATION f64x2 loadAligned(const double* p) { return _mm_load_pd(p); }
template <> KFM_OPERATION f64x2 loadUnaligned(const double* p) { return _mm_loadu_pd(p); }
template <> KFM_OPERATION f64x2 loadEverywhere(const double* p) { return _mm_load1_pd(p); }
// clang-format on
KFM_OPERATION void storeAligned(double* p, f64x2 v) { _mm_store_pd(p, v); }
KFM_OPERATION void storeUnaligned(double* p, f64x2 v) { _mm_storeu_pd(p, v); }
KFM_OPERATION void storeStreaming(double* p, f64x2 v) { _mm_stream_pd(p, v); }

// The lanes i0, i1 of a (0, 1) and b (2, 3); -1: zero.
template <int i0, int i1>
KFM_OPERATION f64x2 select(f64x2 a, f64x2 b) {
    const f64x2 first = i0 < 2 ? a : b, second = i1 < 2 ? a : b;
    if constexpr (i1 >= 0) return _mm_shuffle_pd(first, second, (i0 & 1) | (i1 & 1) << 1);
    else if constexpr (i0 % 2 == 1) return _mm_unpackhi_pd(first, _mm_setzero_pd());
    else return _mm_castsi128_pd(_mm_move_epi64(_mm_castpd_si128(first)));
}

// Single elements; the upper lane of a low one is zero.
KFM_OPERATION f64x2 loadLow(const double* p) { return _mm_load_sd(p); }
KFM_OPERATION f64x2 loadHalves(const double* low, const double* high) {
    return _mm_loadh_pd(_mm_load_sd(low), high);
}
KFM_OPERATION void storeLow(double* p, f64x2 v) { _mm_storel_pd(p, v); }
KFM_OPERATION void storeHigh(double* p, f64x2 v) { _mm_storeh_pd(p, v); }

}   // namespace kfm::simd
