// What the generated row kernels compute with: the vector operations, and vectors of so many rows.
// Lanes never meet, so the types differ in nothing but their width.
#pragma once

#include <cstddef>
#include <type_traits>

#include "kfmgen.h"
#ifdef __AVX2__
#include "simd/avx2/f32x2_pairs.h"
#endif
#include "simd/f32x2.h"
#include "simd/launder.h"
#include "simd/reals.h"

namespace kfm::rows {

using simd::add, simd::flip, simd::mul, simd::narrow, simd::pin, simd::sub, simd::subtractFromZero;
#ifdef __AVX2__
using simd::constantHalves, simd::selectHalves, simd::twice;
#endif

// Numbers of a value, and their type.
template <class Value>
inline constexpr int width =
    std::is_same_v<Value, Kfm32fc> || std::is_same_v<Value, Kfm64fc> ? 2 : 1;
template <class Value>
using RealOf = std::conditional_t<sizeof(Value) / width<Value> == 4, float, double>;

// A value of each of so many rows, which stand side by side in memory.
template <class Value, int rows>
struct VectorOfRows {
    using Type = typename simd::VectorWith<Value, rows>::Type;

    KFM_OPERATION static Type load(const Value* p) { return simd::loadAligned<Type>(p); }
    KFM_OPERATION static Type loadAnywhere(const Value* p) { return simd::loadUnaligned<Type>(p); }
    KFM_OPERATION static void store(Value* p, Type v) { simd::storeAligned(p, v); }
    KFM_OPERATION static void storeAnywhere(Value* p, Type v) { simd::storeUnaligned(p, v); }
    KFM_OPERATION static Type everywhere(const Value* p) { return simd::loadEverywhere<Type>(p); }
};
template <>
struct VectorOfRows<float, 2> {
    using Type = simd::f32x2;

    KFM_OPERATION static Type load(const float* p) { return simd::loadBoth(p); }
    KFM_OPERATION static Type loadAnywhere(const float* p) { return simd::loadBoth(p); }
    KFM_OPERATION static void store(float* p, Type v) { simd::storeBoth(p, v); }
    KFM_OPERATION static void storeAnywhere(float* p, Type v) { simd::storeBoth(p, v); }
    KFM_OPERATION static Type everywhere(const float* p) { return simd::loadEverywhere<Type>(p); }
};
#ifdef __AVX2__
template <>
struct VectorOfRows<Kfm64fc, 2> {
    using Type = simd::f64x4;

    KFM_OPERATION static Type loadAnywhere(const Kfm64fc* p) {
        return simd::loadUnaligned<Type>(&p->re);
    }
    KFM_OPERATION static void storeAnywhere(Kfm64fc* p, Type v) { simd::storeUnaligned(&p->re, v); }
    // Of one element; the kernel repeats it in the other half.
    KFM_OPERATION static simd::f64x2 everywhere(const double* p) { return simd::broadcast(p); }
};
#endif

// Of as many rows as doubles fill a vector.
inline constexpr int wideRows = simd::vectorBytes / 8;
KFM_OPERATION auto widen(VectorOfRows<float, wideRows>::Type narrow) {
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
    return VectorOfRows<Real, length>::load(table + index * length);
}

}   // namespace kfm::rows
