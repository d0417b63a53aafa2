// The output stage: rows of w become lanes, are rotated by the table, and go through the cosine and
// sine sums of d points. The results of a row land in every run of the output, from its start and
// from its end.
#pragma once

#include <cstdint>

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int d>
struct OutputStageNetwork;

// Where the cosine part of row j of the next rows stands in w, the sine part following it: one row
// behind the other, or, from a recursion, alternately from the front and from the back.
template <class Real, int d>
struct ConsecutiveRows {
    const Real* first;

    const Real* operator[](int j) const { return first + j * 2 * d; }
};

template <class Real, int d>
struct FoldedRows {
    const Real* front;
    const Real* back;

    const Real* operator[](int j) const {
        return j % 2 == 0 ? front + j / 2 * 2 * d : back - j / 2 * 2 * d;
    }
};

// The elements of as many rows as a vector has lanes, column by column: the columns that stand side
// by side in 16 bytes.
template <class Real, int L>
struct Columns {
    static constexpr int count = static_cast<int>(16 / sizeof(Real));
    LanesOf<Real, L> column[count];

    template <class Rows>
    Columns(const Rows& rows, int offset) {
#pragma GCC unroll 4
        for (int j = 0; j < count; ++j)
            column[j] = loadParts<Real, L>(rows[j] + offset, rows[j + count] + offset);
        transpose(column);
    }
};

// What the table has for as many rows as a vector has lanes: four of them to a group.
template <class Real, int d, int L>
LanesOf<Real, L> loadFactors(const Real* group) {
    if constexpr (L <= 4) return loadAligned<LanesOf<Real, L>>(group);
    else return loadParts<Real, L>(group, group + 8 * d);
}

// P_r = c C_r - s T_r to vector r, R_r = s C_r + c T_r to vector d + r, for as many rows as a
// vector has lanes.
template <class Real, int d, int L, class Rows>
void rotateRows(const Rows& rows, const Real* table, Real* rotated) {
    using Vector = LanesOf<Real, L>;
    constexpr int columns = Columns<Real, L>::count;
    for (int r = 0; r < d; r += columns) {
        const Columns<Real, L> cosinePart(rows, r), sinePart(rows, d + r);
#pragma GCC unroll 4
        for (int j = 0; j < columns; ++j) {
            const Vector C = cosinePart.column[j], T = sinePart.column[j];
            const Vector c = loadFactors<Real, d, L>(table + 8 * (r + j));
            const Vector s = loadFactors<Real, d, L>(table + 8 * (r + j) + 4);
            storeAligned(rotated + (r + j) * L, sub(mul(c, C), mul(s, T)));
            storeAligned(rotated + (d + r + j) * L, add(mul(s, C), mul(c, T)));
        }
    }
}

// Slots k and d + k: run k, from its start and, backwards, from its end.
template <class Real, int d>
struct RunWriter {
    Strided<Real, d> low, high;

    void store(int slot, auto v) const {
        if (slot < d) storeUnaligned(low[slot], v);
        else storeUnaligned(high[slot - d], reverse(v));
    }
};

template <class Real, int d, int L, class Rows, class Writer>
void outputRows(const Rows& rows, const Real* table, int q, Writer writer) {
    using Vector = LanesOf<Real, L>;
    alignas(Vector) Real rotated[2 * d * L];
    rotateRows<Real, d, L>(rows, table + std::ptrdiff_t(q / 4) * 8 * d + q % 4, rotated);
    OutputStageNetwork<Real, d>::template run<Vector>(RowReader<Real, L>{rotated}, writer);
}

template <class Real>
inline constexpr int lineLength = static_cast<int>(64 / sizeof(Real));

// The same slots, to cache lines that wait for the rows that share them.
template <class Real, int d>
struct LineWriter {
    Real* low;
    Real* high;

    void store(int slot, StageVector<Real> v) const {
        if (slot < d) storeAligned(low + slot * lineLength<Real>, v);
        else storeAligned(high + slot * lineLength<Real>, reverse(v));
    }
};

// Past the caches, or through them.
template <class Real, bool streaming>
void writeLine(const Real* line, Real* dst) {
    if constexpr (!streaming) return copyElements<Real, lineLength<Real>>(line, dst);
    for (int i = 0; i < lineLength<Real>; i += lanes<Real>)
        storeStreaming(dst + i, loadAligned<StageVector<Real>>(line + i));
}

// Runs that are a multiple of a page apart fall into the same few sets of every cache, which cannot
// hold a line of each until it is full. So lines are filled on the stack and written whole.
template <class Real, int d, bool streaming>
void outputByLines(const Real* w, const Real* table, Real* dst, std::ptrdiff_t run) {
    constexpr int L = lanes<Real>, line = lineLength<Real>;
    alignas(64) Real lines[2 * d * line];
    for (std::ptrdiff_t q = 0; q < run / 2; q += line) {
        for (int row = 0; row < line; row += L) {
            const std::ptrdiff_t first = (q + row) * d;
            outputRows<Real, d, L>(FoldedRows<Real, d>{w + first, w + (run - 2) * d - first}, table,
                                   static_cast<int>(q) + row,
                                   LineWriter<Real, d>{lines + row, lines + line - L - row});
        }
        for (int k = 0; k < d; ++k) {
            writeLine<Real, streaming>(lines + k * line, dst + k * run + q);
            writeLine<Real, streaming>(lines + (d + k) * line, dst + (k + 1) * run - line - q);
        }
    }
}

// An output too large for the second cache would only be fetched there to be overwritten, and push
// out what is still to be read.
inline constexpr std::ptrdiff_t streamedBytes = 512 * 1024;

template <class Real, int d>
void outputOfRecursion(const Real* w, const Real* table, Real* dst, std::ptrdiff_t run) {
    const bool wholeLines = reinterpret_cast<std::uintptr_t>(dst) % 64 == 0;
    if (!wholeLines || run * d * static_cast<std::ptrdiff_t>(sizeof(Real)) < streamedBytes)
        return outputByLines<Real, d, false>(w, table, dst, run);
    outputByLines<Real, d, true>(w, table, dst, run);
    finishStreaming();
}

template <class Real, int d, int L>
[[gnu::always_inline]] inline void outputOfRows(const Real* w, const Real* table, Real* dst,
                                                std::ptrdiff_t run) {
    for (int q = 0; q < run / 2; q += L)
        outputRows<Real, d, L>(ConsecutiveRows<Real, d>{w + std::ptrdiff_t(q) * 2 * d}, table, q,
                               RunWriter<Real, d>{{dst + q, run}, {dst + run - L - q, run}});
}

template <class Real, int d>
void outputStage(const Real* w, const Real* table, Real* dst, int len) {
    constexpr int L = lanes<Real>;
    const std::ptrdiff_t run = len / d;
    if constexpr (d == rowLength)
        if (run > 64) return outputOfRecursion<Real, d>(w, table, dst, run);
    if constexpr (d < 16 && L > 4)   // longer runs are multiples of sixteen
        if (run % (2 * L) != 0) return outputOfRows<Real, d, 4>(w, table, dst, run);
    outputOfRows<Real, d, L>(w, table, dst, run);
}

}   // namespace kfm::dct4
