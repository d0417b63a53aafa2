// The twiddle stage of a recursion. The rows it joins are a power of two apart and fall into the
// same few sets of every cache, so they are fetched once, whole, and written once, whole: products
// by the twiddle factors and results wait on the stack, in the first cache.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int divisor>
struct TwiddleStageNetwork;
template <class Real, int divisor>
struct TwiddleStageRootNetwork;

inline constexpr std::ptrdiff_t complexRow = 2 * rowLength;   // the real part, then the imaginary

// One complex row times cosine and sine; the vectors of a column are `stride` elements apart.
template <class Real>
void multiplyRow(const Real* row, const Real* pair, Real* products, std::ptrdiff_t stride) {
    constexpr int L = lanes<Real>;
    const VectorOf<Real> c = loadEverywhere(pair), s = loadEverywhere(pair + 1);
#pragma GCC unroll 4
    for (int column = 0; column < rowLength; column += L, products += stride) {
        const VectorOf<Real> re = loadAligned(row + column);
        const VectorOf<Real> im = loadAligned(row + rowLength + column);
        storeAligned(products, sub(mul(re, c), mul(im, s)));
        storeAligned(products + L, add(mul(re, s), mul(im, c)));
    }
}

template <class Real>
void prefetchRow(const Real* row) {
    constexpr int line = static_cast<int>(64 / sizeof(Real));
    for (int i = 0; i < complexRow; i += line) __builtin_prefetch(row + i);
}

template <class Real, int divisor, class Network>
void joinRows(Real* rows, const Real* table, int blockRows) {
    constexpr int L = lanes<Real>, slots = 2 * divisor;
    const std::ptrdiff_t distance = blockRows * complexRow;
    alignas(64) Real products[slots * rowLength], results[slots * rowLength];
    for (int p = 0; p < blockRows; ++p, rows += complexRow, table += slots) {
        for (int s = 0; s < divisor; ++s) {
            prefetchRow(rows + s * distance + complexRow);
            multiplyRow(rows + s * distance, table + 2 * s, products + 2 * s * L, slots * L);
        }
        for (int column = 0; column < rowLength; column += L)
            Network::run(RowReader<Real>{products + column * slots},
                         RowWriter<Real>{results + column, rowLength});
        for (int t = 0; t < divisor; ++t)
            copyElements<Real, complexRow>(results + t * complexRow, rows + t * distance);
    }
}

template <class Real, int divisor>
void twiddleStage(Real* rows, const Real* table, int blockRows) {
    joinRows<Real, divisor, TwiddleStageNetwork<Real, divisor>>(rows, table, blockRows);
}

template <class Real, int divisor>
void twiddleStageRoot(Real* rows, const Real* table, int blockRows) {
    joinRows<Real, divisor, TwiddleStageRootNetwork<Real, divisor>>(rows, table, blockRows);
}

}   // namespace kfm::dct4
