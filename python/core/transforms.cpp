#include "transforms.h"

#include <bit>
#include <cmath>

#include "dct4_plans.h"
#include "kfmrows.h"

namespace kfm::python {
namespace {

int flagOf(Norm norm, bool inverse) {
    if (norm == Norm::ortho) return kfmScaleBySqrtN;
    if (inverse) return norm == Norm::backward ? kfmScaleInvByN : kfmScaleNone;
    return norm == Norm::forward ? kfmScaleFwdByN : kfmScaleNone;
}

template <auto call, class Element, bool inverse>
KfmStatus fixed(const Rows& rows) {
    return call(static_cast<const Element*>(rows.src), rows.srcStride, rows.srcDistance,
                static_cast<Element*>(rows.dst), rows.dstStride, rows.dstDistance, rows.length,
                rows.count, flagOf(rows.norm, inverse));
}

template <auto call, class Element>
KfmStatus byOrder(const Rows& rows) {
    const auto length = static_cast<unsigned>(rows.length);
    if (!std::has_single_bit(length)) return kfmErrSize;
    return call(static_cast<const Element*>(rows.src), rows.srcStride, rows.srcDistance,
                static_cast<Element*>(rows.dst), rows.dstStride, rows.dstDistance,
                std::countr_zero(length), rows.count, flagOf(rows.norm, false), nullptr);
}

// That of scipy.fft: the sum twice, or its orthogonal or forward form.
template <class Real>
Real dct4Factor(Norm norm, int length) {
    if (norm == Norm::ortho) return static_cast<Real>(std::sqrt(2.0 / length));
    return norm == Norm::forward ? static_cast<Real>(1.0 / length) : Real(2);
}

template <class Real>
void scale(Real* values, std::ptrdiff_t stride, int count, Real factor) {
    if (stride == 1)
        for (int k = 0; k < count; ++k) values[k] *= factor;
    else
        for (int k = 0; k < count; ++k) values[k * stride] *= factor;
}

template <auto call, class Spec, class Real>
KfmStatus planned(const Rows& rows) {
    if (rows.count == 0) return dct4LengthStatus<Spec>(rows.length);
    const Spec* plan;
    KfmStatus status = dct4Plan(rows.length, plan);
    if (status != kfmOk) return status;
    const auto dst = static_cast<Real*>(rows.dst);
    status = call(static_cast<const Real*>(rows.src), rows.srcStride, rows.srcDistance, dst,
                  rows.dstStride, rows.dstDistance, rows.count, plan);
    if (status != kfmOk) return status;
    const Real factor = dct4Factor<Real>(rows.norm, rows.length);
    for (std::ptrdiff_t row = 0; row < rows.count; ++row)
        scale(dst + row * rows.dstDistance, rows.dstStride, rows.length, factor);
    return kfmOk;
}

int same(int length) { return length; }
int ccsReals(int length) { return 2 * (length / 2 + 1); }
int halfSpectrum(int length) { return length / 2 + 1; }

constexpr Shape complexes{true, false, same}, reals{false, true, same}, ccs{false, true, ccsReals},
    bins{true, true, halfSpectrum};

constexpr const char* shortLengths = "2 to 64";

#define KFM_BOTH(name, complex, inverse)                        \
    fixed<kfmr##name##_32f##complex, Kfm32f##complex, inverse>, \
        fixed<kfmr##name##_64f##complex, Kfm64f##complex, inverse>

constexpr Transform table[] = {
    {"DFT", "dft", shortLengths, complexes, complexes, false, KFM_BOTH(DFTFwd_CToC, c, false)},
    {"IDFT", "idft", shortLengths, complexes, complexes, false, KFM_BOTH(DFTInv_CToC, c, true)},
    {"RDFT_CCS", "rdft", shortLengths, reals, ccs, false, KFM_BOTH(DFTFwd_RToCCS, , false)},
    {"RDFT_PACK", "rdft", shortLengths, reals, reals, false, KFM_BOTH(DFTFwd_RToPack, , false)},
    {"RDFT_PERM", "rdft", shortLengths, reals, reals, false, KFM_BOTH(DFTFwd_RToPerm, , false)},
    {"IRDFT_CCS", "irdft", shortLengths, ccs, reals, true, KFM_BOTH(DFTInv_CCSToR, , true)},
    {"IRDFT_PACK", "irdft", shortLengths, reals, reals, false, KFM_BOTH(DFTInv_PackToR, , true)},
    {"IRDFT_PERM", "irdft", shortLengths, reals, reals, false, KFM_BOTH(DFTInv_PermToR, , true)},
    {"RFFT", "rfft", shortLengths, reals, bins, false, KFM_BOTH(DFTFwd_RToCCS, , false)},
    {"IRFFT", "irfft", shortLengths, bins, reals, true, KFM_BOTH(DFTInv_CCSToR, , true)},
    {"HARTLEY", "hartley", shortLengths, reals, reals, false, KFM_BOTH(Hartley, , false)},
    {"WHT", "wht", "powers of two from 2 to 8192", reals, reals, false,
     byOrder<kfmrWHT_32f, Kfm32f>, byOrder<kfmrWHT_64f, Kfm64f>},
    {"DCT4", "dct4", "powers of two from 2, from 32 on also one more", reals, reals, false,
     planned<kfmrDCT4_32f, KfmDCT4Spec_32f, Kfm32f>,
     planned<kfmrDCT4_64f, KfmDCT4Spec_64f, Kfm64f>}};

}   // namespace

std::span<const Transform> transforms() { return table; }

}   // namespace kfm::python
