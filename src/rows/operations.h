// What the generated row kernels compute with: the vector operations, and vectors of so many rows.
// Lanes never meet, so the types differ in nothing but their width.
#pragma once

#include <cstddef>

#ifdef __AVX2__
#include "simd/f32x2_pairs.h"
#endif
#include "simd/f32x2.h"
#include "simd/launder.h"
#include "simd/reals.h"

namespace kfm::rows {

using simd::add, simd::flip, simd::mul, simd::narrow, simd::pin, simd::sub, simd::subtractFromZero;
#ifdef __AVX2__
using simd::constantHalves, simd::selectHalves, simd::twice;
#endif

// Two floats are the lower half of a vector.
template <class Real, int rows>
struct VectorOfRows {
    using Type = typename simd::VectorWith<Real, rows>::Type;

    KFM_OPERATION static Type load(const Real* p) { return simd::loadAligned<Type>(p); }
    KFM_OPERATION static Type loadAnywhere(const Real* p) { return simd::loadUnaligned<Type>(p); }
    KFM_OPERATION static void store(Real* p, Type v) { simd::storeAligned(p, v); }
    KFM_OPERATION static void storeAnywhere(Real* p, Type v) { simd::storeUnaligned(p, v); }
};
template <>
struct VectorOfRows<float, 2> {
    using Type = simd::f32x2;

    KFM_OPERATION static Type load(const float* p) { return simd::HalfSingle::load(p); }
    KFM_OPERATION static Type loadAnywhere(const float* p) { return simd::HalfSingle::load(p); }
    KFM_OPERATION static void store(float* p, Type v) { simd::HalfSingle::store(p, v); }
    KFM_OPERATION static void storeAnywhere(float* p, Type v) { simd::HalfSingle::store(p, v); }
};

template <class Real, int rows>
using Vector = typename VectorOfRows<Real, rows>::Type;

// Of as many rows as doubles fill a vector.
KFM_OPERATION Vector<double, simd::vectorBytes / 8> widen(simd::f32x4 narrow) {
#ifdef __AVX2__
    return simd::widenHalves(narrow);
#else
    return simd::widen(narrow);
#endif
}

// Row `index` of a table of constants: whole vectors, of 16 bytes at least.
template <int rows, class Real>
KFM_OPERATION auto constantRow(const Real* table, int index) {
    constexpr int length = rows * sizeof(Real) < 16 ? 16 / sizeof(Real) : rows;
    using Row = VectorOfRows<Real, length>;
    return Row::load(table + index * length);
}

}   // namespace kfm::rows
