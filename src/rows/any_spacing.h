// Groups of rows with any strides and distances, and groups that are not full: one text for the
// kernels of all lengths.
#pragma once

#include <array>
#include <cstddef>

#include "rows/transpose.h"

namespace kfm::rows {

// The longest row in numbers: 64 complex elements.
inline constexpr int mostSlots = 128;

// A kernel between two buffers, each of so many vectors; two of the results stay zero.
template <class Real>
struct BufferKernel {
    void (*run)(const Real* in, Real* out, const Real* factor);
    const Real* factor;
    int inSlots, outSlots;
    std::array<int, 2> zeros;
};

// `numbers`: of an element.
template <int rows, int numbers, class Real>
void runAnySpacing(Job<Real> left, const BufferKernel<Real>& kernel);

}   // namespace kfm::rows
