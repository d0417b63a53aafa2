// Two double-precision lanes: one complex element, or two real ones.
#pragma once

#include "kfmgen.h"
#ifdef __ARM_NEON
#include "simd/neon/f64x2.h"
#else
#include "simd/sse2/f64x2.h"
#endif

namespace kfm::simd {

struct alignas(16) DoublePair {
    double low, high;
};

KFM_OPERATION f64x2 broadcast(const DoublePair* value) { return loadAligned<f64x2>(&value->low); }
KFM_OPERATION f64x2 broadcast(const double* value) { return loadEverywhere<f64x2>(value); }
KFM_OPERATION f64x2 constant(const double* table, int index) {
    return loadAligned<f64x2>(table + 2 * index);
}

// Lane i from lane i ^ distance.
template <int distance>
KFM_OPERATION f64x2 exchange(f64x2 v) {
    return select<1, 0>(v, v);
}

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
    else if constexpr (movesAnywhere && i1 == i0 + 1) storeUnaligned(p + i0, v);
    else storeHalves(p + i0, p + i1, v);
}

// A complex element at an odd address moves by halves where the processor would take longer for the
// whole, two real ones as a whole.
struct AlignedDouble {
    KFM_OPERATION static f64x2 load(const Kfm64f* p) { return loadAligned<f64x2>(p); }
    KFM_OPERATION static void store(Kfm64f* p, f64x2 v) { storeAligned(p, v); }
    KFM_OPERATION static f64x2 load(const Kfm64fc* p) { return load(&p->re); }
    KFM_OPERATION static void store(Kfm64fc* p, f64x2 v) { store(&p->re, v); }
};

struct UnalignedDouble {
    KFM_OPERATION static f64x2 load(const Kfm64f* p) { return loadUnaligned<f64x2>(p); }
    KFM_OPERATION static void store(Kfm64f* p, f64x2 v) { storeUnaligned(p, v); }
    KFM_OPERATION static f64x2 load(const Kfm64fc* p) {
        if constexpr (movesAnywhere) return load(&p->re);
        else return loadHalves(&p->re, &p->im);
    }
    KFM_OPERATION static void store(Kfm64fc* p, f64x2 v) {
        if constexpr (movesAnywhere) store(&p->re, v);
        else storeHalves(&p->re, &p->im, v);
    }
};

}   // namespace kfm::simd
