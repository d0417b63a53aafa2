// The twiddle stage of a recursion. The products by the twiddle factors go to a buffer on the
// stack first: rows that are a power of two apart are fetched once and in order, and the long
// network that follows finds its input in the first cache.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int divisor>
struct TwiddleStageNetwork;
template <class Real, int divisor>
struct TwiddleStageRootNetwork;

// Complex rows some distance apart, the real part before the imaginary part.
template <class Real, int divisor>
struct ComplexRowWriter {
    Strided<Real, divisor> rows;

    void store(int slot, VectorOf<Real> v) const {
        storeAligned(rows[slot / 2] + slot % 2 * groupSize, v);
    }
};

// Result t of row p, at a recursion's root, belongs into the rows 4(M't + p) of w and the next; in
// the upper half of t into as many from the other end.
template <class Real, int divisor>
struct MirroredRowWriter {
    Strided<Real, divisor / 2> low;     // from row 4p upwards
    Strided<Real, divisor / 2> high;    // from row 2m - 4p - 2, less half of the rows, downwards
    std::ptrdiff_t rowDistance;

    void store(int slot, VectorOf<Real> v) const {
        const int t = slot / 2;
        Real* pair = t < divisor / 2 ? low[t] : high[t - divisor / 2];
        storeAligned(pair + slot % 2 * rowDistance, v);
    }
};

// The product of one complex row and a pair in the lanes `at` and `at + 1` of `pairs`.
template <int at, class Real>
void multiply(const Real* row, VectorOf<Real> pairs, Real* product) {
    constexpr int L = lanes<Real>;
    const VectorOf<Real> re = loadAligned(row), im = loadAligned(row + groupSize);
    const VectorOf<Real> c = everywhere<at>(pairs), s = everywhere<at + 1>(pairs);
    storeAligned(product, sub(mul(re, c), mul(im, s)));
    storeAligned(product + L, add(mul(re, s), mul(im, c)));
}

template <class Real, int divisor>
void multiplyByTwiddles(const Real* row, std::ptrdiff_t distance, const Real* table,
                        Real* products) {
    constexpr int L = lanes<Real>;
    storeAligned(products, loadAligned(row));
    storeAligned(products + L, loadAligned(row + groupSize));
    if constexpr (L == 4)
        multiply<2>(row + distance, loadAligned(table), products + 2 * L);
    else
        multiply<0>(row + distance, loadAligned(table + 2), products + 2 * L);
#pragma GCC unroll 8
    for (int s = 2; s < divisor; s += L / 2) {
        const VectorOf<Real> pairs = loadAligned(table + 2 * s);
        multiply<0>(row + s * distance, pairs, products + 2 * s * L);
        if constexpr (L == 4)
            multiply<2>(row + (s + 1) * distance, pairs, products + 2 * (s + 1) * L);
    }
}

template <class Real, int divisor>
void twiddleStage(Real* rows, const Real* table, int blockRows) {
    constexpr int L = lanes<Real>;
    const std::ptrdiff_t distance = std::ptrdiff_t(blockRows) * 2 * groupSize;
    ComplexRowWriter<Real, divisor> writer{{rows, distance}};
    alignas(16) Real products[2 * divisor * L];
    for (int p = 0; p < blockRows; ++p, rows += 2 * groupSize, table += 2 * divisor) {
        for (int j = 0; j < groupSize; j += L) {
            multiplyByTwiddles<Real, divisor>(rows + j, distance, table, products);
            TwiddleStageNetwork<Real, divisor>::run(RowReader<Real>{products}, writer);
            writer.rows.advance(L);
        }
        writer.rows.advance(groupSize);
    }
}

template <class Real, int divisor>
void twiddleStageRoot(const Real* rows, const Real* table, int blockRows, Real* w, int d) {
    constexpr int L = lanes<Real>;
    const std::ptrdiff_t distance = std::ptrdiff_t(blockRows) * 2 * groupSize;
    const std::ptrdiff_t row = d, block = 4 * row * blockRows;
    MirroredRowWriter<Real, divisor> writer{
        {w, block}, {w + block * (divisor / 2) - 2 * row, -block}, row};
    alignas(16) Real products[2 * divisor * L];
    for (int p = 0; p < blockRows; ++p, rows += 2 * groupSize, table += 2 * divisor) {
        for (int j = 0; j < groupSize; j += L) {
            multiplyByTwiddles<Real, divisor>(rows + j, distance, table, products);
            TwiddleStageRootNetwork<Real, divisor>::run(RowReader<Real>{products}, writer);
            writer.low.advance(L);
            writer.high.advance(L);
        }
        writer.low.advance(4 * row - groupSize);
        writer.high.advance(-4 * row - groupSize);
    }
}

}   // namespace kfm::dct4
