// Rows of the DCT-IV: one after the other, each through a contiguous copy where its elements are not
// side by side.
#include "core/work_buffer.h"
#include "dct4/root.h"
#include "kfmrows.h"
#include "rows/strided_row.h"

namespace kfm::rows {
namespace {

template <class Real, class Spec>
KfmStatus transform(const Job<Real>& job, const Spec* spec,
                    KfmStatus (*single)(const Real*, Real*, const Spec*)) {
    if (job.rows < 0) return kfmErrSize;
    if (spec == nullptr || job.src.data == nullptr || job.dst.data == nullptr) return kfmErrNullPtr;
    const auto* root = reinterpret_cast<const dct4::Env1<Real>*>(spec);
    if (!root->planned()) return kfmErrBadSpec;
    if (job.rows == 0) return kfmOk;
    const std::int64_t row = root->len * std::int64_t{sizeof(Real)};
    const bool needsCopy = job.dst.stride != 1 && row > rowOnStack;
    const WorkBuffer copy(nullptr, needsCopy ? row : 0);
    if (needsCopy && copy.template as<Real>() == nullptr) return kfmErrNullPtr;
    KfmStatus status = kfmOk;
    forEachRow(job, root->len, copy.template as<Real>(), [&](const Real* src, Real* dst) {
        if (status == kfmOk) status = single(src, dst, spec);
    });
    return status;
}

}   // namespace
}   // namespace kfm::rows

#define KFM_ROWS_OF_DCT4(precision, Real)                                                       \
    extern "C" KfmStatus kfmrDCT4_##precision(const Real* src, ptrdiff_t srcStride,             \
                                              ptrdiff_t srcDistance, Real* dst,                 \
                                              ptrdiff_t dstStride, ptrdiff_t dstDistance,       \
                                              ptrdiff_t rows,                                   \
                                              const KfmDCT4Spec_##precision* spec) {            \
        return kfm::rows::transform<Real>(                                                      \
            {{src, srcStride, srcDistance}, {dst, dstStride, dstDistance}, rows, kfmScaleNone}, \
            spec, kfmgDCT4_##precision);                                                        \
    }

KFM_ROWS_OF_DCT4(32f, Kfm32f)
KFM_ROWS_OF_DCT4(64f, Kfm64f)
