// A Walsh-Hadamard transform across a few vectors, or across the lanes of one: what all passes are
// made of. Index bits are taken from the lowest up, here and from pass to pass, so each output is
// the sum that the plain loop over strides 1, 2, 4 ... forms, whatever the blocking and the target.
#pragma once

#include <type_traits>
#include <utility>

#include "simd/reals.h"

namespace kfm::wht {

// More vectors at once than 2^3 spill: half of the registers hold values, and sums need copies.
// Eight registers bear it as well, better than passes of four.
inline constexpr int registerBlockOrder = 3;

// body(0), body(1), ... as straight-line code.
template <int count, class Body>
KFM_INLINE inline void unrolled(Body body) {
    [&]<int... i>(std::integer_sequence<int, i...>) KFM_INLINE { (body(i), ...); }
    (std::make_integer_sequence<int, count>());
}

template <int order, class Vector>
KFM_INLINE inline void butterflies(Vector* v) {
    if constexpr (order > 0) {
        constexpr int half = 1 << (order - 1);
        butterflies<order - 1>(v);
        butterflies<order - 1>(v + half);
        unrolled<half>([=](int i) KFM_INLINE {
            const Vector a = v[i], b = v[i + half];
            v[i] = simd::add(a, b);
            v[i + half] = simd::sub(a, b);
        });
    }
}

// Vectors 0..2^order-1 come from load(i) and go to store(i, v). More of them than registers hold
// go by way of the stack: first the low bits of i, then the high ones.
template <int order, class Load, class Store>
KFM_INLINE inline void transformVectors(Load load, Store store) {
    using Vector = std::invoke_result_t<Load, int>;
    constexpr int count = 1 << order;
    Vector v[count];
    if constexpr (order <= registerBlockOrder) {
        unrolled<count>([&](int i) KFM_INLINE { v[i] = load(i); });
        butterflies<order>(v);
        unrolled<count>([&](int i) KFM_INLINE { store(i, v[i]); });
    } else {
        constexpr int low = (order + 1) / 2, high = order - low;
        unrolled<1 << high>([&](int group) KFM_INLINE {
            const int first = group << low;
            transformVectors<low>([&](int i) KFM_INLINE { return load(first + i); },
                                  [&](int i, Vector sum) KFM_INLINE { v[first + i] = sum; });
        });
        unrolled<1 << low>([&](int first) KFM_INLINE {
            const auto at = [=](int i) KFM_INLINE { return first + (i << low); };
            transformVectors<high>([&](int i) KFM_INLINE { return v[at(i)]; },
                                   [&](int i, Vector sum) KFM_INLINE { store(at(i), sum); });
        });
    }
}

// Where the difference is taken: a table without functions, which a compiler might call.
template <class Real, int count, int distance>
struct DifferenceSigns {
    Real lanes[count] = {};

    constexpr DifferenceSigns() {
        for (int i = 0; i < count; ++i) lanes[i] = i & distance ? Real(-0.0) : Real(0.0);
    }
};

// Lane i becomes its sum with lane i + distance, or its difference from lane i - distance.
template <int distance, class Vector, class Real>
KFM_INLINE inline Vector laneButterflies(Vector v) {
    constexpr int count = sizeof(Vector) / sizeof(Real);
    static constexpr DifferenceSigns<Real, count, distance> signs;
    return simd::add(simd::exchange<distance>(v),
                     simd::flip(v, simd::loadUnaligned<Vector>(signs.lanes)));
}

// Across the 2^order lowest lanes, log2 of their distance `done`, done + 1, ...
template <int order, class Real, int done = 0, class Vector>
KFM_INLINE inline Vector transformLanes(Vector v) {
    if constexpr (done == order) return v;
    else return transformLanes<order, Real, done + 1>(laneButterflies<1 << done, Vector, Real>(v));
}

}   // namespace kfm::wht
