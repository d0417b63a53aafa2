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

template <class Real, int m>
void inputBlock(const Real* front, const Real* back, std::ptrdiff_t step, Real* rows) {
    constexpr int L = lanes<Real>;
    using Stride = Strided<const Real, m / 2>;
    for (int j = 0; j < groupSize; j += L)
        InputBlockNetwork<Real, m>::run(
            MirroredReader<Real, m / 2, Stride, Stride>{{front + j, step},
                                                        {back - (j + L - 1), -step}},
            RowWriter<Real>{rows + j, groupSize});
}

}   // namespace kfm::dct4
