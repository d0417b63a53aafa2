// Two double-precision lanes: one complex element.
#pragma once

#include <emmintrin.h>

#include "kfmgen.h"

namespace kfm::simd {

using f64x2 = __m128d;

struct alignas(16) DoublePair {
    double low, high;
};

inline f64x2 add(f64x2 a, f64x2 b) { return _mm_add_pd(a, b); }
inline f64x2 sub(f64x2 a, f64x2 b) { return _mm_sub_pd(a, b); }
inline f64x2 mul(f64x2 a, f64x2 b) { return _mm_mul_pd(a, b); }
// Changes the sign of the lanes in which the mask holds -0.0.
inline f64x2 flip(f64x2 a, f64x2 mask) { return _mm_xor_pd(a, mask); }
inline f64x2 broadcast(const DoublePair* value) { return _mm_load_pd(&value->low); }
inline f64x2 constant(const double* table, int index) { return _mm_load_pd(table + 2 * index); }
inline void pin(f64x2& a) { asm("" : "+x"(a)); }

// The lanes i0, i1 of a (0, 1) and b (2, 3).
template <int i0, int i1>
inline f64x2 select(f64x2 a, f64x2 b) {
    static_assert(i0 < 2 || i1 > 1, "the operands are in the order of the lanes");
    const f64x2 first = i0 < 2 ? a : b, second = i1 < 2 ? a : b;
    return _mm_shuffle_pd(first, second, (i0 & 1) | (i1 & 1) << 1);
}

struct AlignedDouble {
    static f64x2 load(const Kfm64fc* p) { return _mm_load_pd(reinterpret_cast<const double*>(p)); }
    static void store(Kfm64fc* p, f64x2 v) { _mm_store_pd(reinterpret_cast<double*>(p), v); }
};

struct UnalignedDouble {
    static f64x2 load(const Kfm64fc* p) {
        const double* halves = reinterpret_cast<const double*>(p);
        return _mm_loadh_pd(_mm_load_sd(halves), halves + 1);
    }
    static void store(Kfm64fc* p, f64x2 v) {
        double* halves = reinterpret_cast<double*>(p);
        _mm_storel_pd(halves, v);
        _mm_storeh_pd(halves + 1, v);
    }
};

}   // namespace kfm::simd
