// Transforms that take one row at a time: contiguous, or copied to be so.
#pragma once

#include <cstddef>
#include <cstdint>

#include "rows/job.h"

namespace kfm::rows {

// Rows of up to so many bytes are copied to the stack.
inline constexpr std::int64_t rowOnStack = 8192;

// Through contiguous rows of the destination themselves, else through `copy`.
template <class Real, class Transform>
void throughCopy(const Job<Real>& job, int length, Real* copy, Transform transform) {
    for (std::ptrdiff_t row = 0; row < job.rows; ++row) {
        const Real* from = job.src + row * job.srcDistance;
        Real* to = job.dst + row * job.dstDistance;
        Real* contiguous = job.dstStride == 1 ? to : copy;
        for (int k = 0; k < length; ++k) contiguous[k] = from[k * job.srcStride];
        transform(contiguous, contiguous);
        if (contiguous == to) continue;
        for (int k = 0; k < length; ++k) to[k * job.dstStride] = contiguous[k];
    }
}

template <class Real, class Transform>
[[gnu::noinline]] void throughStack(const Job<Real>& job, int length, Transform transform) {
    alignas(32) Real copy[rowOnStack / sizeof(Real)];
    throughCopy(job, length, copy, transform);
}

// Calls transform(src, dst) for each row of `length`. Longer rows than the stack takes are copied to
// `copy`, unless those of the destination are contiguous.
template <class Real, class Transform>
void forEachRow(const Job<Real>& job, int length, Real* copy, Transform transform) {
    if (job.srcStride == 1 && job.dstStride == 1)
        for (std::ptrdiff_t row = 0; row < job.rows; ++row)
            transform(job.src + row * job.srcDistance, job.dst + row * job.dstDistance);
    else if (length * std::int64_t{sizeof(Real)} <= rowOnStack)
        throughStack(job, length, transform);
    else throughCopy(job, length, copy, transform);
}

}   // namespace kfm::rows
