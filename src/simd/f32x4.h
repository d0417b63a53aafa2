// Four single-precision lanes.
#pragma once

#include <emmintrin.h>

#include "kfmgen.h"
#include "simd/operation.h"

namespace kfm::simd {

using f32x4 = __m128;

KFM_OPERATION f32x4 add(f32x4 a, f32x4 b) { return _mm_add_ps(a, b); }
KFM_OPERATION f32x4 sub(f32x4 a, f32x4 b) { return _mm_sub_ps(a, b); }
KFM_OPERATION f32x4 mul(f32x4 a, f32x4 b) { return _mm_mul_ps(a, b); }
// Changes the sign of the lanes in which the mask holds -0.0.
KFM_OPERATION f32x4 flip(f32x4 a, f32x4 mask) { return _mm_xor_ps(a, mask); }
KFM_OPERATION f32x4 broadcast(const float* value) { return _mm_load1_ps(value); }
KFM_OPERATION f32x4 constant(const float* table, int index) {
    return _mm_load_ps(table + 4 * index);
}
KFM_OPERATION void pin(f32x4& a) { asm("" : "+x"(a)); }

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

// Lane i from lane i ^ distance.
template <int distance>
KFM_OPERATION f32x4 exchange(f32x4 v) {
    if constexpr (distance == 1) return select<1, 0, 3, 2>(v, v);
    else return select<2, 3, 0, 1>(v, v);
}

// The real and the imaginary parts of complex elements, and back.
struct TwoOfFour {
    f32x4 first, second;
};
KFM_OPERATION TwoOfFour separated(f32x4 low, f32x4 high) {
    return {select<0, 2, 4, 6>(low, high), select<1, 3, 5, 7>(low, high)};
}
KFM_OPERATION TwoOfFour interleaved(f32x4 re, f32x4 im) {
    return {select<0, 4, 1, 5>(re, im), select<2, 6, 3, 7>(re, im)};
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

// Two neighbouring complex elements move as a whole vector, others by halves; four real ones as a
// whole vector.
struct AlignedSingle {
    KFM_OPERATION static f32x4 load(const Kfm32f* p) { return _mm_load_ps(p); }
    KFM_OPERATION static void store(Kfm32f* p, f32x4 v) { _mm_store_ps(p, v); }
    KFM_OPERATION static f32x4 loadPair(const Kfm32fc* p) {
        return _mm_load_ps(reinterpret_cast<const float*>(p));
    }
    KFM_OPERATION static void storePair(Kfm32fc* p, f32x4 v) {
        _mm_store_ps(reinterpret_cast<float*>(p), v);
    }
};

struct UnalignedSingle {
    KFM_OPERATION static f32x4 load(const Kfm32f* p) { return _mm_loadu_ps(p); }
    KFM_OPERATION static void store(Kfm32f* p, f32x4 v) { _mm_storeu_ps(p, v); }
    KFM_OPERATION static f32x4 loadPair(const Kfm32fc* p) {
        return _mm_loadu_ps(reinterpret_cast<const float*>(p));
    }
    KFM_OPERATION static void storePair(Kfm32fc* p, f32x4 v) {
        _mm_storeu_ps(reinterpret_cast<float*>(p), v);
    }
};

KFM_OPERATION f32x4 loadLow(const Kfm32fc* p) { return HalfSingle::load(&p->re); }
KFM_OPERATION f32x4 loadHalves(const Kfm32fc* low, const Kfm32fc* high) {
    return _mm_loadh_pi(loadLow(low), reinterpret_cast<const __m64*>(high));
}
KFM_OPERATION void storeLow(Kfm32fc* p, f32x4 v) { HalfSingle::store(&p->re, v); }
KFM_OPERATION void storeHalves(Kfm32fc* low, Kfm32fc* high, f32x4 v) {
    _mm_storel_pi(reinterpret_cast<__m64*>(low), v);
    _mm_storeh_pi(reinterpret_cast<__m64*>(high), v);
}

}   // namespace kfm::simd
