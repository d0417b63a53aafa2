// Vectors of real numbers, named alike for both precisions: what hand-written loops over floats or
// doubles are made of. A scalar is a vector of one lane.
#pragma once

#include <algorithm>

#ifdef __AVX2__
#include "simd/avx2/f32x8.h"
#include "simd/avx2/f64x4.h"
#else
#include "simd/f32x4.h"
#include "simd/f64x2.h"
#endif
#include "simd/scalar.h"

namespace kfm::simd {

template <class Real, int lanes>
struct VectorWith;
template <class Real>
struct VectorWith<Real, 1> {
    using Type = Real;
};
template <>
struct VectorWith<float, 4> {
    using Type = f32x4;
};
template <>
struct VectorWith<double, 2> {
    using Type = f64x2;
};
#ifdef __AVX2__
template <>
struct VectorWith<float, 8> {
    using Type = f32x8;
};
template <>
struct VectorWith<double, 4> {
    using Type = f64x4;
};
inline constexpr int vectorBytes = 32;
#else
inline constexpr int vectorBytes = 16;
#endif

// Of 16 bytes on every target, where the number of lanes is part of the result.
template <class Real>
using VectorOf = typename VectorWith<Real, static_cast<int>(16 / sizeof(Real))>::Type;

// The widest of the target, of so many lanes at most.
template <class Real, int lanes>
using VectorUpTo =
    typename VectorWith<Real, std::min(lanes, vectorBytes / static_cast<int>(sizeof(Real)))>::Type;

KFM_OPERATION f32x4 reverse(f32x4 v) { return select<3, 2, 1, 0>(v, v); }
KFM_OPERATION f64x2 reverse(f64x2 v) { return select<1, 0>(v, v); }

// One lane in all lanes.
template <int lane>
f32x4 everywhere(f32x4 v) {
    return select<lane, lane, lane, lane>(v, v);
}
template <int lane>
f64x2 everywhere(f64x2 v) {
    return select<lane, lane>(v, v);
}

KFM_OPERATION void transpose(f32x4 (&rows)[4]) {
    const f32x4 low01 = select<0, 4, 1, 5>(rows[0], rows[1]);
    const f32x4 high01 = select<2, 6, 3, 7>(rows[0], rows[1]);
    const f32x4 low23 = select<0, 4, 1, 5>(rows[2], rows[3]);
    const f32x4 high23 = select<2, 6, 3, 7>(rows[2], rows[3]);
    rows[0] = select<0, 1, 4, 5>(low01, low23);
    rows[1] = select<2, 3, 6, 7>(low01, low23);
    rows[2] = select<0, 1, 4, 5>(high01, high23);
    rows[3] = select<2, 3, 6, 7>(high01, high23);
}

KFM_OPERATION void transpose(f64x2 (&rows)[2]) {
    const f64x2 first = rows[0];
    rows[0] = select<0, 2>(first, rows[1]);
    rows[1] = select<1, 3>(first, rows[1]);
}

}   // namespace kfm::simd
