// The output stage: rows of w become lanes, are rotated by the table, and go through the cosine and
// sine sums of d points. The results of a row land in every run of the output, from its start and
// from its end.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int d>
struct OutputStageNetwork;

// Columns of `lanes` rows, each `distance` elements after the last, as vectors.
template <class Real>
struct Columns {
    VectorOf<Real> column[lanes<Real>];

    Columns(const Real* first, std::ptrdiff_t distance) {
#pragma GCC unroll 4
        for (int j = 0; j < lanes<Real>; ++j) column[j] = loadAligned(first + j * distance);
        transpose(column);
    }
};

// P_r = c C_r - s T_r to vector r, R_r = s C_r + c T_r to vector d + r, for as many rows as a
// vector has lanes. Cosines and sines stand four to a group in the table.
template <class Real, int d>
void rotateRows(const Real* w, const Real* table, Real* rotated) {
    constexpr int L = lanes<Real>;
    for (int r = 0; r < d; r += L) {
        const Columns<Real> cosinePart(w + r, 2 * d), sinePart(w + d + r, 2 * d);
#pragma GCC unroll 4
        for (int j = 0; j < L; ++j) {
            const VectorOf<Real> C = cosinePart.column[j], T = sinePart.column[j];
            const VectorOf<Real> c = loadAligned(table + 8 * (r + j));
            const VectorOf<Real> s = loadAligned(table + 8 * (r + j) + 4);
            storeAligned(rotated + (r + j) * L, sub(mul(c, C), mul(s, T)));
            storeAligned(rotated + (d + r + j) * L, add(mul(s, C), mul(c, T)));
        }
    }
}

// Slots k and d + k: run k, from its start and, backwards, from its end.
template <class Real, int d>
struct RunWriter {
    Strided<Real, d> low, high;

    void store(int slot, VectorOf<Real> v) const {
        if (slot < d) storeUnaligned(low[slot], v);
        else storeUnaligned(high[slot - d], reverse(v));
    }
};

template <class Real, int d, class Writer>
void outputRows(const Real* w, const Real* table, int q, Writer writer) {
    alignas(16) Real rotated[2 * d * lanes<Real>];
    const Real* block = table + std::ptrdiff_t(q / 4) * 8 * d + q % 4;
    rotateRows<Real, d>(w + std::ptrdiff_t(q) * 2 * d, block, rotated);
    OutputStageNetwork<Real, d>::run(RowReader<Real>{rotated}, writer);
}

template <class Real>
inline constexpr int lineLength = static_cast<int>(64 / sizeof(Real));

// The same slots, to cache lines that wait for the rows that share them.
template <class Real, int d>
struct LineWriter {
    Real* low;
    Real* high;

    void store(int slot, VectorOf<Real> v) const {
        if (slot < d) storeAligned(low + slot * lineLength<Real>, v);
        else storeAligned(high + slot * lineLength<Real>, reverse(v));
    }
};

template <class Real>
void copyLine(const Real* line, Real* dst) {
    for (int i = 0; i < lineLength<Real>; i += lanes<Real>)
        storeUnaligned(dst + i, loadAligned(line + i));
}

// Runs that are a multiple of a page apart fall into the same few sets of every cache, which cannot
// hold a line of each until it is full. So lines are filled on the stack and written whole.
template <class Real, int d>
void outputByLines(const Real* w, const Real* table, Real* dst, std::ptrdiff_t run) {
    constexpr int L = lanes<Real>, line = lineLength<Real>;
    alignas(64) Real lines[2 * d * line];
    for (int q = 0; q < run / 2; q += line) {
        for (int row = 0; row < line; row += L)
            outputRows<Real, d>(w, table, q + row,
                                LineWriter<Real, d>{lines + row, lines + line - L - row});
        for (int k = 0; k < d; ++k) {
            copyLine(lines + k * line, dst + k * run + q);
            copyLine(lines + (d + k) * line, dst + (k + 1) * run - line - q);
        }
    }
}

template <class Real, int d>
void outputStage(const Real* w, const Real* table, Real* dst, int len) {
    constexpr int L = lanes<Real>, page = 4096 / sizeof(Real);
    const std::ptrdiff_t run = len / d;
    if constexpr (d == 32)
        if (run >= page) return outputByLines<Real, d>(w, table, dst, run);
    for (int q = 0; q < run / 2; q += L)
        outputRows<Real, d>(w, table, q,
                            RunWriter<Real, d>{{dst + q, run}, {dst + run - L - q, run}});
}

}   // namespace kfm::dct4
