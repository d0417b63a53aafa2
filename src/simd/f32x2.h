// Two single-precision lanes. In kernels of mixed precision they are widened to two
// double-precision lanes and back.
#pragma once

#include "simd/f32x4.h"
#include "simd/f64x2.h"
#ifdef __ARM_NEON
#include "simd/neon/f32x2.h"
#else
#include "simd/sse2/f32x2.h"
#endif

namespace kfm::simd {

KFM_OPERATION void storeHalves(float* low, float* high, f32x2 v) {
    storeLow(low, v);
    storeHigh(high, v);
}

// As of two double-precision lanes.
template <int i0, int i1>
KFM_OPERATION f32x2 loadPair(const float* p) {
    if constexpr (i1 < 0) return loadLow(p + i0);
    else return loadHalves(p + i0, p + i1);
}
template <int i0, int i1>
KFM_OPERATION void storePair(float* p, f32x2 v) {
    if constexpr (i1 < 0) storeLow(p + i0, v);
    else if constexpr (i0 < 0) storeHigh(p + i1, v);
    else if constexpr (movesAnywhere && i1 == i0 + 1) storeBoth(p + i0, v);
    else storeHalves(p + i0, p + i1, v);
}

}   // namespace kfm::simd
