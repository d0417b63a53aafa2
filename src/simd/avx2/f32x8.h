// Eight single-precision lanes, where the processor has them. Memory is aligned to 16 bytes at
// most, so moves take any address.
#pragma once

#include <immintrin.h>

#include "simd/f32x4.h"

namespace kfm::simd {

using f32x8 = __m256;

KFM_OPERATION f32x8 add(f32x8 a, f32x8 b) { return _mm256_add_ps(a, b); }
KFM_OPERATION f32x8 sub(f32x8 a, f32x8 b) { return _mm256_sub_ps(a, b); }
KFM_OPERATION f32x8 mul(f32x8 a, f32x8 b) { return _mm256_mul_ps(a, b); }
KFM_OPERATION f32x8 flip(f32x8 a, f32x8 mask) { return _mm256_xor_ps(a, mask); }

// clang-format off
template <> KFM_OPERATION f32x8 loadAligned(const float* p) { return _mm256_loadu_ps(p); }
template <> KFM_OPERATION f32x8 loadUnaligned(const float* p) { return _mm256_loadu_ps(p); }
template <> KFM_OPERATION f32x8 loadEverywhere(const float* p) { return _mm256_broadcast_ss(p); }
// clang-format on
KFM_OPERATION void storeAligned(float* p, f32x8 v) { _mm256_storeu_ps(p, v); }
KFM_OPERATION void storeUnaligned(float* p, f32x8 v) { _mm256_storeu_ps(p, v); }
KFM_OPERATION void storeStreaming(float* p, f32x8 v) { _mm256_stream_ps(p, v); }

KFM_OPERATION f32x8 reverse(f32x8 v) {
    return _mm256_permutevar8x32_ps(v, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0));
}

// The real and the imaginary parts of complex elements, and back.
struct TwoOfEight {
    f32x8 first, second;
};
KFM_OPERATION TwoOfEight separated(f32x8 low, f32x8 high) {
    const auto inOrder = [](f32x8 v) {
        return _mm256_castpd_ps(_mm256_permute4x64_pd(_mm256_castps_pd(v), 0b11011000));
    };
    return {inOrder(_mm256_shuffle_ps(low, high, 0b10001000)),
            inOrder(_mm256_shuffle_ps(low, high, 0b11011101))};
}
KFM_OPERATION TwoOfEight interleaved(f32x8 re, f32x8 im) {
    const f32x8 even = _mm256_unpacklo_ps(re, im), odd = _mm256_unpackhi_ps(re, im);
    return {_mm256_permute2f128_ps(even, odd, 0b00100000),
            _mm256_permute2f128_ps(even, odd, 0b00110001)};
}

// In either half.
KFM_OPERATION void transpose(f32x8 (&rows)[4]) {
    const f32x8 low01 = _mm256_unpacklo_ps(rows[0], rows[1]);
    const f32x8 high01 = _mm256_unpackhi_ps(rows[0], rows[1]);
    const f32x8 low23 = _mm256_unpacklo_ps(rows[2], rows[3]);
    const f32x8 high23 = _mm256_unpackhi_ps(rows[2], rows[3]);
    rows[0] = _mm256_shuffle_ps(low01, low23, 0b01000100);
    rows[1] = _mm256_shuffle_ps(low01, low23, 0b11101110);
    rows[2] = _mm256_shuffle_ps(high01, high23, 0b01000100);
    rows[3] = _mm256_shuffle_ps(high01, high23, 0b11101110);
}

template <int distance>
KFM_OPERATION f32x8 exchange(f32x8 v) {
    if constexpr (distance == 1) return _mm256_permute_ps(v, 0b10110001);
    else if constexpr (distance == 2) return _mm256_permute_ps(v, 0b01001110);
    else return _mm256_permute2f128_ps(v, v, 1);
}

// Halves: vectors of 16 bytes that are one half of these.
KFM_OPERATION f32x8 twice(f32x4 half) { return _mm256_set_m128(half, half); }
KFM_OPERATION f32x8 asLower(f32x4 half) { return _mm256_castps128_ps256(half); }
KFM_OPERATION f32x4 lower(f32x8 v) { return _mm256_castps256_ps128(v); }
KFM_OPERATION f32x4 upper(f32x8 v) { return _mm256_extractf128_ps(v, 1); }

// A half of a (0: the lower one), then a half of b.
template <int ofA, int ofB>
KFM_OPERATION f32x8 join(f32x8 a, f32x8 b) {
    if constexpr (ofA == 0 && ofB == 0) return _mm256_insertf128_ps(a, lower(b), 1);
    else if constexpr (ofA == 0) return _mm256_blend_ps(a, b, 0b11110000);
    else return _mm256_permute2f128_ps(a, b, 1 | (2 + ofB) << 4);
}

// In either half the lanes i0..i3 of a (0..3) and b (4..7), where one instruction does it.
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f32x8 selectHalves(f32x8 a, f32x8 b) {
    constexpr auto is = [](int j0, int j1, int j2, int j3) {
        return i0 == j0 && i1 == j1 && i2 == j2 && i3 == j3;
    };
    constexpr int order = (i0 & 3) | (i1 & 3) << 2 | (i2 & 3) << 4 | (i3 & 3) << 6;
    constexpr bool inPlace = i0 % 4 == 0 && i1 % 4 == 1 && i2 % 4 == 2 && i3 % 4 == 3;
    constexpr int ofB = (i0 > 3) | (i1 > 3) << 1 | (i2 > 3) << 2 | (i3 > 3) << 3;
    if constexpr (is(0, 4, 1, 5)) return _mm256_unpacklo_ps(a, b);
    else if constexpr (is(2, 6, 3, 7)) return _mm256_unpackhi_ps(a, b);
    else if constexpr (inPlace) return _mm256_blend_ps(a, b, ofB | ofB << 4);
    else if constexpr (ofB == 0) return _mm256_permute_ps(a, order);
    else if constexpr (ofB == 0b1100) return _mm256_shuffle_ps(a, b, order);
    else {
        static_assert(ofB == 0b0011, "no single instruction selects these lanes");
        return _mm256_shuffle_ps(b, a, order);
    }
}

template <int i0, int i1, int i2, int i3>
KFM_OPERATION f32x8 selectHalves(f32x8 a) {
    return selectHalves<i0, i1, i2, i3>(a, a);
}

KFM_OPERATION f32x8 constantHalves(const float* table, int index) {
    return _mm256_load_ps(table + 8 * index);
}

// Complex elements by their numbers; -1 is left out.
template <int i0, int i1>
KFM_OPERATION f32x4 loadPair(const Kfm32fc* p) {
    if constexpr (i1 < 0) return loadLow(p + i0);
    else if constexpr (i1 == i0 + 1) return _mm_loadu_ps(&p[i0].re);
    else return loadHalves(p + i0, p + i1);
}
template <int i0, int i1>
KFM_OPERATION void storePair(Kfm32fc* p, f32x4 v) {
    if constexpr (i1 < 0) storeLow(p + i0, v);
    else if constexpr (i1 == i0 + 1) _mm_storeu_ps(&p[i0].re, v);
    else storeHalves(p + i0, p + i1, v);
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f32x8 loadFourApart(const Kfm32fc* p) {
    return _mm256_set_m128(loadPair<i2, i3>(p), loadPair<i0, i1>(p));
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f32x8 loadFour(const Kfm32fc* p) {
    if constexpr (i1 == i0 + 1 && i2 == i0 + 2 && i3 == i0 + 3) return _mm256_loadu_ps(&p[i0].re);
    else return loadFourApart<i0, i1, i2, i3>(p);
}
template <int i0, int i1, int i2, int i3>
KFM_OPERATION void storeFour(Kfm32fc* p, f32x8 v) {
    if constexpr (i1 == i0 + 1 && i2 == i0 + 2 && i3 == i0 + 3) {
        _mm256_storeu_ps(&p[i0].re, v);
    } else {
        storePair<i0, i1>(p, lower(v));
        storePair<i2, i3>(p, upper(v));
    }
}

}   // namespace kfm::simd
