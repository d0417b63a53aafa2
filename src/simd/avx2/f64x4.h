// Four double-precision lanes, where the processor has them. Memory is aligned to 16 bytes at most,
// so moves take any address.
#pragma once

#include <immintrin.h>

#include "simd/f64x2.h"

namespace kfm::simd {

using f64x4 = __m256d;

KFM_OPERATION f64x4 add(f64x4 a, f64x4 b) { return _mm256_add_pd(a, b); }
KFM_OPERATION f64x4 sub(f64x4 a, f64x4 b) { return _mm256_sub_pd(a, b); }
KFM_OPERATION f64x4 mul(f64x4 a, f64x4 b) { return _mm256_mul_pd(a, b); }
KFM_OPERATION f64x4 flip(f64x4 a, f64x4 mask) { return _mm256_xor_pd(a, mask); }
KFM_OPERATION f64x4 twice(f64x2 half) { return _mm256_set_m128d(half, half); }

// clang-format off
template <> KFM_OPERATION f64x4 loadAligned(const double* p) { return _mm256_loadu_pd(p); }
template <> KFM_OPERATION f64x4 loadUnaligned(const double* p) { return _mm256_loadu_pd(p); }
template <> KFM_OPERATION f64x4 loadEverywhere(const double* p) { return _mm256_broadcast_sd(p); }
// clang-format on
KFM_OPERATION void storeAligned(double* p, f64x4 v) { _mm256_storeu_pd(p, v); }
KFM_OPERATION void storeUnaligned(double* p, f64x4 v) { _mm256_storeu_pd(p, v); }
KFM_OPERATION void storeStreaming(double* p, f64x4 v) { _mm256_stream_pd(p, v); }

template <int distance>
KFM_OPERATION f64x4 exchange(f64x4 v) {
    if constexpr (distance == 1) return _mm256_permute_pd(v, 0b0101);
    else return _mm256_permute2f128_pd(v, v, 1);
}

KFM_OPERATION f64x4 reverse(f64x4 v) { return _mm256_permute4x64_pd(v, 0b00011011); }

// In either half.
KFM_OPERATION void transpose(f64x4 (&rows)[2]) {
    const f64x4 first = rows[0];
    rows[0] = _mm256_unpacklo_pd(first, rows[1]);
    rows[1] = _mm256_unpackhi_pd(first, rows[1]);
}

// Halves: vectors of 16 bytes that are one half of these.
KFM_OPERATION f64x4 asLower(f64x2 half) { return _mm256_castpd128_pd256(half); }
KFM_OPERATION f64x2 lower(f64x4 v) { return _mm256_castpd256_pd128(v); }
KFM_OPERATION f64x2 upper(f64x4 v) { return _mm256_extractf128_pd(v, 1); }

// A half of a (0: the lower one), then a half of b.
template <int ofA, int ofB>
KFM_OPERATION f64x4 join(f64x4 a, f64x4 b) {
    if constexpr (ofA == 0 && ofB == 0) return _mm256_insertf128_pd(a, lower(b), 1);
    else if constexpr (ofA == 0) return _mm256_blend_pd(a, b, 0b1100);
    else return _mm256_permute2f128_pd(a, b, 1 | (2 + ofB) << 4);
}

// In the lower halves a lane i0 of a and a lane i1 of b, in the upper ones j0 and j1; -1: zero.
template <int i0, int i1, int j0, int j1>
KFM_OPERATION f64x4 selectHalves(f64x4 a, f64x4 b) {
    if constexpr (i1 >= 0) {
        return _mm256_shuffle_pd(a, b, i0 | i1 << 1 | j0 << 2 | j1 << 3);
    } else {
        static_assert(i0 == j0 && j1 < 0);
        if constexpr (i0 == 0) return _mm256_unpacklo_pd(a, _mm256_setzero_pd());
        else return _mm256_unpackhi_pd(a, _mm256_setzero_pd());
    }
}

template <int i0, int i1, int j0, int j1>
KFM_OPERATION f64x4 selectHalves(f64x4 a) {
    if constexpr (i1 < 0) return selectHalves<i0, i1, j0, j1>(a, a);
    else return _mm256_permute_pd(a, i0 | i1 << 1 | j0 << 2 | j1 << 3);
}

KFM_OPERATION f64x4 constantHalves(const double* table, int index) {
    return _mm256_load_pd(table + 4 * index);
}
KFM_OPERATION f64x4 subtractFromZero(f64x4 a) { return _mm256_sub_pd(_mm256_setzero_pd(), a); }

// Elements by their numbers: complex ones two to a vector, real ones four; of those -1 is left out.
// Those that stand side by side move at once; "apart" they move by halves, which does not wait
// where the halves were stored one by one just before.
template <int i0, int i1>
KFM_OPERATION f64x4 loadTwoApart(const Kfm64fc* p) {
    return _mm256_insertf128_pd(asLower(_mm_loadu_pd(&p[i0].re)), _mm_loadu_pd(&p[i1].re), 1);
}
template <int i0, int i1>
KFM_OPERATION f64x4 loadTwo(const Kfm64fc* p) {
    const double* const first = &p[i0].re;
    if constexpr (i1 == i0 + 1) return _mm256_loadu_pd(first);
    else if constexpr (i1 == i0)
        return _mm256_broadcast_pd(reinterpret_cast<const __m128d*>(first));
    else return loadTwoApart<i0, i1>(p);
}
template <int i0, int i1>
KFM_OPERATION void storeTwo(Kfm64fc* p, f64x4 v) {
    if constexpr (i1 == i0 + 1) {
        _mm256_storeu_pd(&p[i0].re, v);
    } else {
        _mm_storeu_pd(&p[i0].re, lower(v));
        _mm_storeu_pd(&p[i1].re, upper(v));
    }
}

template <int i0, int i1>
KFM_OPERATION f64x2 loadHalf(const double* p) {
    if constexpr (i1 == i0 + 1) return _mm_loadu_pd(p + i0);
    else return loadPair<i0, i1>(p);
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f64x4 loadFourApart(const double* p) {
    return _mm256_set_m128d(loadHalf<i2, i3>(p), loadHalf<i0, i1>(p));
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f64x4 loadFour(const double* p) {
    if constexpr (i1 == i0 + 1 && i2 == i0 + 2 && i3 == i0 + 3) return _mm256_loadu_pd(p + i0);
    else return loadFourApart<i0, i1, i2, i3>(p);
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION void storeFour(double* p, f64x4 v) {
    if constexpr (i0 >= 0 && i1 == i0 + 1 && i2 == i0 + 2 && i3 == i0 + 3) {
        _mm256_storeu_pd(p + i0, v);
    } else {
        storePair<i0, i1>(p, lower(v));
        storePair<i2, i3>(p, upper(v));
    }
}

}   // namespace kfm::simd
