// Four single-precision lanes.
#pragma once

#ifdef __ARM_NEON
#include "simd/neon/f32x4.h"
#else
#include "simd/sse2/f32x4.h"
#endif

namespace kfm::simd {

KFM_OPERATION f32x4 broadcast(const float* value) { return loadEverywhere<f32x4>(value); }
KFM_OPERATION f32x4 constant(const float* table, int index) {
    return loadAligned<f32x4>(table + 4 * index);
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

// Two neighbouring complex elements move as a whole vector, others by halves; four real ones as a
// whole vector.
struct AlignedSingle {
    KFM_OPERATION static f32x4 load(const Kfm32f* p) { return loadAligned<f32x4>(p); }
    KFM_OPERATION static void store(Kfm32f* p, f32x4 v) { storeAligned(p, v); }
    KFM_OPERATION static f32x4 loadPair(const Kfm32fc* p) { return load(&p->re); }
    KFM_OPERATION static void storePair(Kfm32fc* p, f32x4 v) { store(&p->re, v); }
};

struct UnalignedSingle {
    KFM_OPERATION static f32x4 load(const Kfm32f* p) { return loadUnaligned<f32x4>(p); }
    KFM_OPERATION static void store(Kfm32f* p, f32x4 v) { storeUnaligned(p, v); }
    KFM_OPERATION static f32x4 loadPair(const Kfm32fc* p) { return load(&p->re); }
    KFM_OPERATION static void storePair(Kfm32fc* p, f32x4 v) { store(&p->re, v); }
};

KFM_OPERATION f32x4 loadLow(const Kfm32fc* p) { return HalfSingle::load(&p->re); }
KFM_OPERATION void storeLow(Kfm32fc* p, f32x4 v) { HalfSingle::store(&p->re, v); }

}   // namespace kfm::simd
