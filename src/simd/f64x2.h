// Two double-precision lanes: one complex element, or two real ones.
#pragma once

#include <emmintrin.h>

#include "kfmgen.h"
#include "simd/operation.h"

namespace kfm::simd {

using f64x2 = __m128d;

struct alignas(16) DoublePair {
    double low, high;
};

KFM_OPERATION f64x2 add(f64x2 a, f64x2 b) { return _mm_add_pd(a, b); }
KFM_OPERATION f64x2 sub(f64x2 a, f64x2 b) { return _mm_sub_pd(a, b); }
KFM_OPERATION f64x2 mul(f64x2 a, f64x2 b) { return _mm_mul_pd(a, b); }
// Changes the sign of the lanes in which the mask holds -0.0.
KFM_OPERATION f64x2 flip(f64x2 a, f64x2 mask) { return _mm_xor_pd(a, mask); }
KFM_OPERATION f64x2 broadcast(const DoublePair* value) { return _mm_load_pd(&value->low); }
KFM_OPERATION f64x2 broadcast(const double* value) { return _mm_load1_pd(value); }
KFM_OPERATION f64x2 constant(const double* table, int index) {
    return _mm_load_pd(table + 2 * index);
}
KFM_OPERATION void pin(f64x2& a) { asm("" : "+x"(a)); }

KFM_OPERATION f64x2 subtractFromZero(f64x2 a) { return _mm_sub_pd(_mm_setzero_pd(), a); }

// The lanes i0, i1 of a (0, 1) and b (2, 3); -1: zero.
template <int i0, int i1>
KFM_OPERATION f64x2 select(f64x2 a, f64x2 b) {
    const f64x2 first = i0 < 2 ? a : b, second = i1 < 2 ? a : b;
    if constexpr (i1 >= 0) return _mm_shuffle_pd(first, second, (i0 & 1) | (i1 & 1) << 1);
    else if constexpr (i0 % 2 == 1) return _mm_unpackhi_pd(first, _mm_setzero_pd());
    else return _mm_castsi128_pd(_mm_move_epi64(_mm_castpd_si128(first)));
}

// Lane i from lane i ^ distance.
template <int distance>
KFM_OPERATION f64x2 exchange(f64x2 v) {
    return select<1, 0>(v, v);
}

// Single elements.
KFM_OPERATION f64x2 loadLow(const double* p) { return _mm_load_sd(p); }
KFM_OPERATION f64x2 loadHalves(const double* low, const double* high) {
    return _mm_loadh_pd(_mm_load_sd(low), high);
}
KFM_OPERATION void storeLow(double* p, f64x2 v) { _mm_storel_pd(p, v); }
KFM_OPERATION void storeHigh(double* p, f64x2 v) { _mm_storeh_pd(p, v); }
KFM_OPERATION void storeHalves(double* low, double* high, f64x2 v) {
    storeLow(low, v);
    storeHigh(high, v);
}

// Elements by their numbers; -1 is left out. Neighbours are stored as one where any address will
// do, but not loaded: where they were stored one by one just before, that would wait for both.
template <int i0, int i1>
KFM_OPERATION f64x2 loadPair(const double* p) {
    if constexpr (i1 < 0) return loadLow(p + i0);
    else return loadHalves(p + i0, p + i1);
}
template <int i0, int i1>
KFM_OPERATION void storePair(double* p, f64x2 v) {
    if constexpr (i1 < 0) storeLow(p + i0, v);
    else if constexpr (i0 < 0) storeHigh(p + i1, v);
    else if constexpr (movesAnywhere && i1 == i0 + 1) _mm_storeu_pd(p + i0, v);
    else storeHalves(p + i0, p + i1, v);
}

// A complex element at an odd address moves by halves where the processor would take longer for the
// whole, two real ones as a whole.
struct AlignedDouble {
    KFM_OPERATION static f64x2 load(const Kfm64f* p) { return _mm_load_pd(p); }
    KFM_OPERATION static void store(Kfm64f* p, f64x2 v) { _mm_store_pd(p, v); }
    KFM_OPERATION static f64x2 load(const Kfm64fc* p) {
        return _mm_load_pd(reinterpret_cast<const double*>(p));
    }
    KFM_OPERATION static void store(Kfm64fc* p, f64x2 v) {
        _mm_store_pd(reinterpret_cast<double*>(p), v);
    }
};

struct UnalignedDouble {
    KFM_OPERATION static f64x2 load(const Kfm64f* p) { return _mm_loadu_pd(p); }
    KFM_OPERATION static void store(Kfm64f* p, f64x2 v) { _mm_storeu_pd(p, v); }
    KFM_OPERATION static f64x2 load(const Kfm64fc* p) {
        if constexpr (movesAnywhere) return _mm_loadu_pd(&p->re);
        else return loadHalves(&p->re, &p->im);
    }
    KFM_OPERATION static void store(Kfm64fc* p, f64x2 v) {
        if constexpr (movesAnywhere) _mm_storeu_pd(&p->re, v);
        else storeHalves(&p->re, &p->im, v);
    }
};

}   // namespace kfm::simd
