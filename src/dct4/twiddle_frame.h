// The twiddle stage of a recursion. The rows it joins are a power of two apart and fall into the
// same few sets of every cache, so each of their lines is fetched once and written once: products
// by the twiddle factors and results wait on the stack, in the first cache.
#pragma once

#include <algorithm>

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int divisor>
struct TwiddleStageNetwork;
template <class Real, int divisor>
struct TwiddleStageRootNetwork;

inline constexpr std::ptrdiff_t complexRow = 2 * rowLength;   // the real part, then the imaginary

// Columns that are joined at a time: all, unless their products take more than 8 KiB of the stack.
template <class Real, int divisor>
inline constexpr int joinedColumns = std::min(rowLength, 8192 / (2 * divisor *
                                                                 static_cast<int>(sizeof(Real))));

// Columns of one complex row times cosine and sine; the vectors of a column are `stride` elements
// apart.
template <class Real, int columns>
void multiplyRow(const Real* row, const Real* pair, Real* products, std::ptrdiff_t stride) {
    constexpr int L = lanes<Real>;
    const auto c = loadEverywhere<StageVector<Real>>(pair);
    const auto s = loadEverywhere<StageVector<Real>>(pair + 1);
#pragma GCC unroll 4
    for (int column = 0; column < columns; column += L, products += stride) {
        const StageVector<Real> re = loadAligned<StageVector<Real>>(row + column);
        const StageVector<Real> im = loadAligned<StageVector<Real>>(row + rowLength + column);
        storeAligned(products, sub(mul(re, c), mul(im, s)));
        storeAligned(products + L, add(mul(re, s), mul(im, c)));
    }
}

template <class Real, int columns>
void prefetchRow(const Real* row) {
    constexpr int line = static_cast<int>(64 / sizeof(Real));
    for (int part = 0; part < complexRow; part += rowLength)
        for (int i = 0; i < columns; i += line) __builtin_prefetch(row + part + i);
}

// Columns of one complex row, from vectors that are `stride` elements apart; a part at a time, so
// that lines are filled in their order.
template <class Real, int columns>
void writeRow(const Real* results, Real* row, std::ptrdiff_t stride) {
    constexpr int L = lanes<Real>;
    for (int part = 0; part < 2; ++part, results += L, row += rowLength)
#pragma GCC unroll 16
        for (int i = 0; i < columns / L; ++i)
            storeAligned(row + i * L, loadAligned<StageVector<Real>>(results + i * stride));
}

// The products of a vector of columns stand behind the place of its results, which is that of the
// vector before, used up by then. Of 32 they stand in that very place, to save stack: result t
// depends on product t, because cos(2 pi t^2/32) is never zero.
template <class Real, int divisor, class Network>
void joinRows(Real* rows, const Real* table, int blockRows) {
    constexpr int L = lanes<Real>, slots = 2 * divisor, group = slots * L;
    constexpr int lead = divisor == 32 ? 0 : group;
    constexpr int columns = joinedColumns<Real, divisor>;
    const std::ptrdiff_t distance = blockRows * complexRow;
    alignas(64) Real results[lead + slots * columns];
    Real* products = results + lead;
    for (int p = 0; p < blockRows; ++p, rows += complexRow, table += slots)
        for (Real* first = rows; first < rows + rowLength; first += columns) {
            for (int s = 0; s < divisor; ++s) {
                const Real* row = first + s * distance;
                prefetchRow<Real, columns>(row + complexRow);
                multiplyRow<Real, columns>(row, table + 2 * s, products + 2 * s * L, group);
            }
            for (int at = 0; at < slots * columns; at += group)
                Network::template run<StageVector<Real>>(RowReader<Real>{products + at},
                                                         RowWriter<Real>{results + at, L});
            for (int t = 0; t < divisor; ++t)
                writeRow<Real, columns>(results + 2 * t * L, first + t * distance, group);
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
