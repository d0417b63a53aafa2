// How a kernel reads and writes a group of rows: a value of every row in one vector. The rows stand
// side by side, those of the caller or of a buffer, and `step` values lie between one vector and the
// next: a number, or where it is known a type that stands for one.
#pragma once

#include <cstddef>
#include <type_traits>

#include "rows/operations.h"
#include "rows/places.h"
#include "rows/transpose.h"

namespace kfm::rows {

template <std::ptrdiff_t step>
using Known = std::integral_constant<std::ptrdiff_t, step>;

// A vector of rows: in a buffer, whose step is known, at a multiple of its size.
template <class Value, int rows, class Step>
struct VectorAt {
    using Values = VectorOfRows<Value, rows>;
    static constexpr bool inBuffer = !std::is_same_v<Step, std::ptrdiff_t>;

    KFM_OPERATION static auto load(const Value* p) {
        if constexpr (inBuffer) return Values::load(p);
        else return Values::loadAnywhere(p);
    }
    KFM_OPERATION static void store(Value* p, typename Values::Type v) {
        if constexpr (inBuffer) Values::store(p, v);
        else Values::storeAnywhere(p, v);
    }
};

template <class Value, int rows, class Step>
struct PlainReader {
    using Values = VectorOfRows<Value, rows>;
    using At = VectorAt<Value, rows, Step>;
    const Value* values;
    Step step;

    KFM_OPERATION auto load(int i) const { return At::load(values + i * step); }
    KFM_OPERATION static auto zero() { return typename Values::Type{}; }
    KFM_OPERATION static auto everywhere(const RealOf<Value>* factor) {
        return Values::everywhere(factor);
    }
    template <class Constant>
    KFM_OPERATION static auto constants(const Constant* table, int index) {
        return constantRow<rows>(table, index);
    }
};

template <class Value, int rows, class Step>
struct PlainWriter {
    using At = VectorAt<Value, rows, Step>;
    Value* values;
    Step step;

    KFM_OPERATION void store(int i, typename At::Values::Type v) const {
        At::store(values + i * step, v);
    }
};

// Of the n values of a packed spectrum, whose layout is two places that only a call knows: so one
// kernel serves all layouts.
template <class Real, int rows, int n, class Step>
struct PackedReader : PlainReader<Real, rows, Step> {
    using Base = PlainReader<Real, rows, Step>;
    const Real *others, *last;   // where value 1 stands, and value n - 1 of an even number

    KFM_OPERATION auto load(int i) const {
        if (i == 0) return Base::load(0);
        if (n % 2 == 0 && i == n - 1) return Base::At::load(last);
        return Base::At::load(others + (i - 1) * Base::step);
    }
};

template <class Real, int rows, int n, class Step>
struct PackedWriter : PlainWriter<Real, rows, Step> {
    using Base = PlainWriter<Real, rows, Step>;
    Real *others, *last;

    KFM_OPERATION void store(int i, typename Base::At::Values::Type v) const {
        if (i == 0) Base::store(0, v);
        else if (n % 2 == 0 && i == n - 1) Base::At::store(last, v);
        else Base::At::store(others + (i - 1) * Base::step, v);
    }
};

template <class Layout, int rows, int n, class Value, class Step>
KFM_OPERATION auto reader(const Value* values, Step step) {
    if constexpr (!Packed<Layout>) return PlainReader<Value, rows, Step>{values, step};
    else
        return PackedReader<Value, rows, n, Step>{{values, step},
                                                  values + Layout::at(1) * step,
                                                  values + Layout::at(n - 1) * step};
}

template <class Layout, int rows, int n, class Value, class Step>
KFM_OPERATION auto writer(Value* values, Step step) {
    if constexpr (!Packed<Layout>) return PlainWriter<Value, rows, Step>{values, step};
    else
        return PackedWriter<Value, rows, n, Step>{{values, step},
                                                  values + Layout::at(1) * step,
                                                  values + Layout::at(n - 1) * step};
}

#ifdef __AVX2__
// A complex element of two contiguous rows, `distance` elements apart, in the halves of a vector.
struct PairReader : PlainReader<Kfm64fc, 2, Known<1>> {
    std::ptrdiff_t distance;

    KFM_OPERATION simd::f64x4 load(int i) const {
        return RowPart<double, true>::load(&values[i].re, 2 * distance);
    }
};

struct PairWriter : PlainWriter<Kfm64fc, 2, Known<1>> {
    std::ptrdiff_t distance;

    KFM_OPERATION void store(int i, simd::f64x4 v) const {
        RowPart<double, true>::store(&values[i].re, 2 * distance, v);
    }
};
#endif

}   // namespace kfm::rows
