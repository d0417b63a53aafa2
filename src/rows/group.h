// How a kernel reads and writes the vectors of a group of rows: a value of every row in the lanes of
// one vector.
#pragma once

#include "rows/operations.h"
#include "rows/transpose.h"

namespace kfm::rows {

template <class Real, int rows>
struct PlainReader {
    const Real* values;

    KFM_OPERATION Vector<Real, rows> load(int i) const {
        return VectorOfRows<Real, rows>::load(values + i * rows);
    }
    KFM_OPERATION static Vector<Real, rows> zero() { return Vector<Real, rows>{}; }
    KFM_OPERATION static auto everywhere(const Real* factor) {
        return simd::loadEverywhere<Vector<Real, rows>>(factor);
    }
    template <class Constant>
    KFM_OPERATION static auto constants(const Constant* table, int index) {
        return constantRow<rows>(table, index);
    }
};

template <class Real, int rows>
struct PlainWriter {
    Real* values;

    KFM_OPERATION void store(int i, Vector<Real, rows> v) const {
        VectorOfRows<Real, rows>::store(values + i * rows, v);
    }
};

// Of the n values of a packed spectrum, whose layout is two places that only a call knows: so one
// kernel serves all layouts.
template <class Real, int rows, int n>
struct PackedReader : PlainReader<Real, rows> {
    const Real *others, *last;   // where value 1 stands, and value n - 1 of an even number

    KFM_OPERATION Vector<Real, rows> load(int i) const {
        if (i == 0) return PlainReader<Real, rows>::load(0);
        if (n % 2 == 0 && i == n - 1) return VectorOfRows<Real, rows>::load(last);
        return VectorOfRows<Real, rows>::load(others + (i - 1) * rows);
    }
};

template <class Real, int rows, int n>
struct PackedWriter : PlainWriter<Real, rows> {
    Real *others, *last;

    KFM_OPERATION void store(int i, Vector<Real, rows> v) const {
        if (i == 0) PlainWriter<Real, rows>::store(0, v);
        else if (n % 2 == 0 && i == n - 1) VectorOfRows<Real, rows>::store(last, v);
        else VectorOfRows<Real, rows>::store(others + (i - 1) * rows, v);
    }
};

#ifdef __AVX2__
// A complex element of two rows, `distance` numbers apart, in the halves of a vector.
struct PairReader {
    const double* low;
    std::ptrdiff_t distance;

    KFM_OPERATION simd::f64x4 load(int i) const {
        return RowPart<double, true>::load(low + 2 * i, distance);
    }
    KFM_OPERATION static simd::f64x2 everywhere(const double* factor) {
        return simd::broadcast(factor);
    }
};

struct PairWriter {
    double* low;
    std::ptrdiff_t distance;

    KFM_OPERATION void store(int i, simd::f64x4 v) const {
        RowPart<double, true>::store(low + 2 * i, distance, v);
    }
};
#endif

}   // namespace kfm::rows
