// The input stage: sub-transforms side by side in the lanes, gathered from both ends of the input.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int m>
struct InputStageNetwork;
template <class Real, int m>
struct InputBlockNetwork;

// Slots k and m/2 + k: a_k upwards from `front`, b_k downwards from `back`.
template <class Real, int L, int half, class Front, class Back>
struct MirroredReader {
    Front front;
    Back back;

    LanesOf<Real, L> load(int slot) const {
        if (slot < half) return loadUnaligned<LanesOf<Real, L>>(front[slot]);
        return reverse(loadUnaligned<LanesOf<Real, L>>(back[slot - half]));
    }
};

template <class Real, int d>
struct ConstantStride {
    Real* base;

    Real* operator[](int i) const { return base + i * d; }
};

// All groups of columns, where the compiler knows the length of w's rows.
template <class Real, int m, int d>
void inputStageOfRows(const Real* src, Real* w) {
    constexpr int L = lanesFor<Real>(d);
    using Reader = MirroredReader<Real, L, m / 2, ConstantStride<const Real, 2 * d>,
                                  ConstantStride<const Real, -2 * d>>;
    for (int r = 0; r < d; r += L)
        InputStageNetwork<Real, m>::template run<LanesOf<Real, L>>(
            Reader{{src + r}, {src + (m * d - r - L)}}, RowWriter<Real, L>{w + r, d});
}

// And where it does not.
template <class Real, int m>
void inputStageOfAnyRows(const Real* src, Real* w, int d) {
    constexpr int L = lanesFor<Real>(4);
    using Stride = Strided<const Real, m / 2>;
    using Reader = MirroredReader<Real, L, m / 2, Stride, Stride>;
    for (int r = 0; r < d; r += L)
        InputStageNetwork<Real, m>::template run<LanesOf<Real, L>>(
            Reader{{src + r, 2 * d}, {src + (m * d - r - L), -2 * d}},
            RowWriter<Real, L>{w + r, d});
}

// Lengths are planned with m from 8 up, and d is m or half of it.
template <class Real, int m>
void inputStage(const Real* src, Real* w, int d) {
    if constexpr (m < 8) return inputStageOfAnyRows<Real, m>(src, w, d);
    else if (m == 64 || d == m / 2) return inputStageOfRows<Real, m, m / 2>(src, w);
    else return inputStageOfRows<Real, m, m>(src, w);
}

// Slots k and m/2 + k: rows 2k and 2k+1.
template <class Real, int half>
struct PairedRowReader {
    const Real* first;

    StageVector<Real> load(int slot) const {
        const int row = slot < half ? 2 * slot : 2 * (slot - half) + 1;
        return loadAligned<StageVector<Real>>(first + row * rowLength);
    }
};

// The inputs of a block are far apart, by a power of two, and fall into the same few sets of every
// cache. They are fetched once, whole rows at a time, to where the results will stand. A result
// depends on the input that it overwrites, a_k in row 2k or b_k in row 2k+1: real parts lack b_0
// alone, imaginary parts a_0.
template <class Real, int m>
void inputBlock(const Real* front, const Real* back, std::ptrdiff_t step, Real* rows) {
    Real* row = rows;
    for (int k = 0; k < m / 2; ++k, front += step, back -= step, row += 2 * rowLength) {
        copyElements<Real, rowLength>(front, row);
        copyReversed<Real, rowLength>(back - (rowLength - 1), row + rowLength);
    }
    for (int column = 0; column < rowLength; column += lanes<Real>)
        InputBlockNetwork<Real, m>::template run<StageVector<Real>>(
            PairedRowReader<Real, m / 2>{rows + column}, RowWriter<Real>{rows + column, rowLength});
}

}   // namespace kfm::dct4
