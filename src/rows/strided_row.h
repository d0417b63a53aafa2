// Transforms that take one row at a time: contiguous, or copied to be so.
#pragma once

#include <cstddef>
#include <cstdint>

#include "rows/job.h"

namespace kfm::rows {

// Rows of up to so many bytes are copied to the stack.
inline constexpr std::int64_t rowOnStack = 8192;

template <class Element>
void copyStrided(const Element* from, std::ptrdiff_t stride, Element* to, std::ptrdiff_t toStride,
                 int length) {
    for (int k = 0; k < length; ++k) to[k * toStride] = from[k * stride];
}

// Through contiguous rows of the destination themselves, else through `copy`.
template <class Real, class Transform>
void throughCopy(Job<Real> job, int length, Real* copy, Transform transform) {
    for (; job.rows > 0; job.advance(1)) {
        Real* contiguous = job.dst.stride == 1 ? job.dst.data : copy;
        copyStrided(job.src.data, job.src.stride, contiguous, 1, length);
        transform(contiguous, contiguous);
        if (contiguous != job.dst.data)
            copyStrided(contiguous, 1, job.dst.data, job.dst.stride, length);
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
void forEachRow(Job<Real> job, int length, Real* copy, Transform transform) {
    if (job.contiguous())
        for (; job.rows > 0; job.advance(1)) transform(job.src.data, job.dst.data);
    else if (length * std::int64_t{sizeof(Real)} <= rowOnStack)
        throughStack(job, length, transform);
    else throughCopy(job, length, copy, transform);
}

}   // namespace kfm::rows
