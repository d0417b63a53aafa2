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

// The rows of a call that are left.
template <class Real>
struct Remaining {
    Side<const Real> src;
    Side<Real> dst;
    std::ptrdiff_t rows;

    template <class Job>
    Remaining(const Job& job, int numbers)
        : src{reinterpret_cast<const Real*>(job.src), job.srcStride * numbers,
              job.srcDistance * numbers},
          dst{reinterpret_cast<Real*>(job.dst), job.dstStride * numbers, job.dstDistance * numbers},
          rows(job.rows) {}

    void advance(int count) {
        rows -= count;
        if (rows == 0) return;   // there may be no address behind the last row
        src.data += count * src.distance;
        dst.data += count * dst.distance;
    }
};

// `numbers`: of an element.
template <int rows, int numbers, class Real>
void runAnySpacing(Remaining<Real> left, const BufferKernel<Real>& kernel);

}   // namespace kfm::rows
