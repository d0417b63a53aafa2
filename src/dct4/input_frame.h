// The input stage: sub-transforms side by side in the lanes, gathered from both ends of the input.
#pragma once

#include "dct4/codelet_frame.h"

namespace kfm::dct4 {

template <class Real, int m>
struct InputStageNetwork;
template <class Real, int m>
struct InputBlockNetwork;

// Slots k and m/2 + k: a_k upwards from `front`, b_k downwards from `back`.
template <class Real, int m>
struct MirroredReader {
    const Real* front;
    const Real* back;
    std::ptrdiff_t step;

    VectorOf<Real> load(int slot) const {
        if (slot < m / 2) return loadUnaligned(front + slot * step);
        return reverse(loadUnaligned(back - (slot - m / 2) * step - (lanes<Real> - 1)));
    }
};

template <class Real, int m>
void inputStage(const Real* src, Real* w, int len, int d) {
    for (int r = 0; r < d; r += lanes<Real>)
        InputStageNetwork<Real, m>::run(
            MirroredReader<Real, m>{src + r, src + (len - 1 - r), 2 * d},
            RowWriter<Real>{w + r, d});
}

template <class Real, int m>
void inputBlock(const Real* front, const Real* back, std::ptrdiff_t step, Real* rows) {
    InputBlockNetwork<Real, m>::run(MirroredReader<Real, m>{front, back, step},
                                    RowWriter<Real>{rows, lanes<Real>});
}

}   // namespace kfm::dct4
