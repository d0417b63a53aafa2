// Rows of the Walsh-Hadamard transform: one after the other, each through a contiguous copy where its
// elements are not side by side.
#include "core/work_buffer.h"
#include "rows/entry.h"
#include "rows/strided_row.h"
#include "wht/blocking.h"

namespace kfm::rows {
namespace {

// For one transform, and behind it for a copy of a row that is too long for the stack.
template <class Real>
std::int64_t transformBytes(int order) {
    return wht::bufferBytes(sizeof(Real) == 8, order);
}
template <class Real>
std::int64_t bufferBytes(int order) {
    const std::int64_t row = std::int64_t{sizeof(Real)} << order;
    return transformBytes<Real>(order) + (row > rowOnStack ? row : 0);
}

template <class Real>
KfmStatus bufferSize(int order, int* size) {
    if (!wht::isOrder(order)) return kfmErrSize;
    *size = static_cast<int>(bufferBytes<Real>(order));
    return kfmOk;
}

template <class Real>
KfmStatus transform(const Job<Real>& job, int order, Kfm8u* buffer,
                    KfmStatus (*single)(const Real*, Real*, int, int, Kfm8u*)) {
    if (!wht::isOrder(order) || job.rows < 0) return kfmErrSize;
    const KfmStatus status = checkPointersAndFlag(job);
    if (status != kfmOk || job.rows == 0) return status;
    const std::int64_t bytes = bufferBytes<Real>(order);
    const WorkBuffer work(buffer, bytes);
    auto* const block = work.template as<Kfm8u>();
    if (bytes > 0 && block == nullptr) return kfmErrNullPtr;
    forEachRow(job, 1 << order, reinterpret_cast<Real*>(block + transformBytes<Real>(order)),
               [&](const Real* src, Real* dst) { single(src, dst, order, job.flag, block); });
    return kfmOk;
}

}   // namespace
}   // namespace kfm::rows

#define KFM_ROWS_OF_WHT(precision, Real)                                                           \
    extern "C" KfmStatus kfmrWHTGetBufferSize_##precision(int order, int* size) {                  \
        return kfm::rows::bufferSize<Real>(order, size);                                           \
    }                                                                                              \
    extern "C" KfmStatus kfmrWHT_##precision(const Real* src, ptrdiff_t srcStride,                 \
                                             ptrdiff_t srcDistance, Real* dst,                     \
                                             ptrdiff_t dstStride, ptrdiff_t dstDistance,           \
                                             int order, ptrdiff_t rows, int flag, Kfm8u* buffer) { \
        return kfm::rows::transform<Real>(                                                         \
            {{src, srcStride, srcDistance}, {dst, dstStride, dstDistance}, rows, flag}, order,     \
            buffer, kfmgWHT_##precision);                                                          \
    }

KFM_ROWS_OF_WHT(32f, Kfm32f)
KFM_ROWS_OF_WHT(64f, Kfm64f)
