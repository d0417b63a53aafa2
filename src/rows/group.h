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

template <class Value, int rows, class Step>
struct PlainReader {
    using Values = VectorOfRows<Value, rows>;
    const Value* values;
    Step step;

    KFM_OPERATION auto load(int i) const { return Values::loadAnywhere(values + i * step); }
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
    using Values = VectorOfRows<Value, rows>;
    Value* values;
    Step step;

    KFM_OPERATION void store(int i, typename Values::Type v) const {
        Values::storeAnywhere(values + i * step, v);
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
        if (n % 2 == 0 && i == n - 1) return Base::Values::loadAnywhere(last);
        return Base::Values::loadAnywhere(others + (i - 1) * Base::step);
    }
};

template <class Real, int rows, int n, class Step>
struct PackedWriter : PlainWriter<Real, rows, Step> {
    using Base = PlainWriter<Real, rows, Step>;
    Real *others, *last;

    KFM_OPERATION void store(int i, typename Base::Values::Type v) const {
        if (i == 0) Base::store(0, v);
        else if (n % 2 == 0 && i == n - 1) Base::Values::storeAnywhere(last, v);
        else Base::Values::storeAnywhere(others + (i - 1) * Base::step, v);
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
