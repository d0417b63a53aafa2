// The input stage: sub-transforms side by side in the lanes, gathered from both ends of the input.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int m>
struct InputStageNetwork;
template <class Real, int m>
struct InputBlockNetwork;

// Slots k and m/2 + k: a_k upwards from `front`, b_k downwards from `back`.
template <class Real, int half, class Front, class Back>
struct MirroredReader {
    Front front;
    Back back;

    VectorOf<Real> load(int slot) const {
        if (slot < half) return loadUnaligned(front[slot]);
        return reverse(loadUnaligned(back[slot - half]));
    }
};

template <class Real, int d>
struct ConstantStride {
    Real* base;

    Real* operator[](int i) const { return base + i * d; }
};

// All groups, where the compiler knows the length of w's rows.
template <class Real, int m, int d>
void inputStageOfRows(const Real* src, Real* w) {
    constexpr int L = lanes<Real>;
    using Reader = MirroredReader<Real, m / 2, ConstantStride<const Real, 2 * d>,
                                  ConstantStride<const Real, -2 * d>>;
    for (int r = 0; r < d; r += L)
        InputStageNetwork<Real, m>::run(Reader{{src + r}, {src + (m * d - r - L)}},
                                        RowWriter<Real>{w + r, d});
}

template <class Real, int m>
void inputStage(const Real* src, Real* w, int len, int d) {
    // The row lengths that go with m where a length is planned.
    if (d == m / 2) return inputStageOfRows<Real, m, m / 2>(src, w);
    if constexpr (m <= 32)
        if (d == m) return inputStageOfRows<Real, m, m>(src, w);
    constexpr int L = lanes<Real>;
    using Stride = Strided<const Real, m / 2>;
    for (int r = 0; r < d; r += L)
        InputStageNetwork<Real, m>::run(
            MirroredReader<Real, m / 2, Stride, Stride>{{src + r, 2 * d},
                                                        {src + (len - r - L), -2 * d}},
            RowWriter<Real>{w + r, d});
}

// The inputs of a block are far apart, by a power of two, and fall into the same few sets of every
// cache. They are fetched once, whole rows at a time, to where all columns find them side by side.
template <class Real, int m>
void inputBlock(const Real* front, const Real* back, std::ptrdiff_t step, Real* rows) {
    constexpr int L = lanes<Real>, half = m / 2;
    alignas(64) Real fromFront[half * rowLength], fromBack[half * rowLength];
    for (int k = 0; k < half; ++k) {
        copyElements<Real, rowLength>(front + k * step, fromFront + k * rowLength);
        copyElements<Real, rowLength>(back - k * step - (rowLength - 1), fromBack + k * rowLength);
    }
    using Stride = ConstantStride<const Real, rowLength>;
    for (int column = 0; column < rowLength; column += L)
        InputBlockNetwork<Real, m>::run(
            MirroredReader<Real, half, Stride, Stride>{{fromFront + column},
                                                       {fromBack + rowLength - column - L}},
            RowWriter<Real>{rows + column, rowLength});
}

}   // namespace kfm::dct4
