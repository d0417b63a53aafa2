// Four single-precision lanes of SSE2.
#pragma once

#include <emmintrin.h>

#include "kfmgen.h"
#include "simd/memory.h"

namespace kfm::simd {

using f32x4 = __m128;

KFM_OPERATION f32x4 add(f32x4 a, f32x4 b) { return _mm_add_ps(a, b); }
KFM_OPERATION f32x4 sub(f32x4 a, f32x4 b) { return _mm_sub_ps(a, b); }
KFM_OPERATION f32x4 mul(f32x4 a, f32x4 b) { return _mm_mul_ps(a, b); }
// Changes the sign of the lanes in which the mask holds -0.0.
KFM_OPERATION f32x4 flip(f32x4 a, f32x4 mask) { return _mm_xor_ps(a, mask); }

// clang-format off
template <> KFM_OPERATION f32x4 loadAligned(const float* p) { return _mm_load_ps(p); }
template <> KFM_OPERATION f32x4 loadUnaligned(const float* p) { return _mm_loadu_ps(p); }
template <> KFM_OPERATION f32x4 loadEverywhere(const float* p) { return _mm_load1_ps(p); }
// clang-format on
KFM_OPERATION void storeAligned(float* p, f32x4 v) { _mm_store_ps(p, v); }
KFM_OPERATION void storeUnaligned(float* p, f32x4 v) { _mm_storeu_ps(p, v); }
KFM_OPERATION void storeStreaming(float* p, f32x4 v) { _mm_stream_ps(p, v); }
KFM_OPERATION void finishStreaming() { _mm_sfence(); }

// The lanes i0..i3 of a (0..3) and b (4..7), where one instruction does it.
template <int i0, int i1, int i2, int i3>
KFM_OPERATION f32x4 select(f32x4 a, f32x4 b) {
    constexpr auto is = [](int j0, int j1, int j2, int j3) {
        return i0 == j0 && i1 == j1 && i2 == j2 && i3 == j3;
    };
    constexpr bool lowA = i0 < 4 && i1 < 4, highA = i2 < 4 && i3 < 4;
    constexpr int order = (i0 & 3) | (i1 & 3) << 2 | (i2 & 3) << 4 | (i3 & 3) << 6;
    if constexpr (is(0, 4, 1, 5)) return _mm_unpacklo_ps(a, b);
    else if constexpr (is(2, 6, 3, 7)) return _mm_unpackhi_ps(a, b);
    else if constexpr (is(0, 1, 4, 5)) return _mm_movelh_ps(a, b);
    else if constexpr (is(2, 3, 6, 7)) return _mm_movehl_ps(b, a);
    else if constexpr (is(4, 1, 2, 3)) return _mm_move_ss(a, b);
    else if constexpr (is(4, 5, 2, 3))
        return _mm_castpd_ps(_mm_move_sd(_mm_castps_pd(a), _mm_castps_pd(b)));
    else if constexpr (is(0, 1, 6, 7))
        return _mm_castpd_ps(_mm_move_sd(_mm_castps_pd(b), _mm_castps_pd(a)));
    // Not the integer shuffle: compilers fetch its operand from memory, by way of the stack when it
    // came from an address without alignment.
    else if constexpr (is(3, 2, 1, 0)) return _mm_shuffle_ps(a, a, order);
    else if constexpr (lowA && highA)
        return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a), order));
    else {
        static_assert((lowA && i2 > 3 && i3 > 3) || (highA && i0 > 3 && i1 > 3),
                      "no single instruction selects these lanes");
        if constexpr (lowA) return _mm_shuffle_ps(a, b, order);
        else return _mm_shuffle_ps(b, a, order);
    }
}

// Two real elements in the low lanes, zeros in the others.
struct HalfSingle {
    KFM_OPERATION static f32x4 load(const Kfm32f* p) {
        return _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
    }
    KFM_OPERATION static void store(Kfm32f* p, f32x4 v) {
        _mm_storel_pi(reinterpret_cast<__m64*>(p), v);
    }
};

KFM_OPERATION f32x4 loadHalves(const Kfm32fc* low, const Kfm32fc* high) {
    return _mm_loadh_pi(HalfSingle::load(&low->re), reinterpret_cast<const __m64*>(high));
}
KFM_OPERATION void storeHalves(Kfm32fc* low, Kfm32fc* high, f32x4 v) {
    _mm_storel_pi(reinterpret_cast<__m64*>(low), v);
    _mm_storeh_pi(reinterpret_cast<__m64*>(high), v);
}

}   // namespace kfm::simd
