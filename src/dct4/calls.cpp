// The public calls of the DCT-IV, in both precisions. A handle is the address of the root.
#include "dct4/root.h"
#include "kfmcore.h"

namespace kfm::dct4 {
namespace {

template <class Real>
KfmStatus getSize(int len, int* size) {
    const Bytes bytes = Env1<Real>::mem(len);
    if (bytes < 0) return kfmErrSize;
    *size = static_cast<int>(bytes) + 2 * kfmgAlignSize32Bytes(1);
    return kfmOk;
}

template <class Real, class Spec>
KfmStatus init(Spec** spec, int len, Kfm8u* block) {
    if (spec == nullptr || block == nullptr) return kfmErrNullPtr;
    initArena(block);
    auto* root = take<Env1<Real>>(block);
    root->init(block, len);
    const KfmStatus status = root->plan.get()(root);
    if (status != kfmOk) {
        root->release.get()(root);
        kfmgArenaFree(block, root, root->size);
        return status;
    }
    *spec = reinterpret_cast<Spec*>(root);
    return kfmOk;
}

// `size` and `plan` are the exported functions of the precision: a program may have replaced them.
template <class Spec>
KfmStatus initAlloc(Spec** spec, int len, KfmStatus (*size)(int, int*),
                    KfmStatus (*plan)(Spec**, int, Kfm8u*)) {
    if (spec == nullptr) return kfmErrNullPtr;
    int bytes = 0;
    KfmStatus status = size(len, &bytes);
    if (status != kfmOk) return status;
    void* block = kfmMalloc(bytes);
    status = plan(spec, len, static_cast<Kfm8u*>(block));
    if (status != kfmOk) kfmFree(block);
    return status;
}

template <class Real, class Spec>
KfmStatus release(Spec* spec) {
    if (spec == nullptr) return kfmErrNullPtr;
    auto* root = reinterpret_cast<Env1<Real>*>(spec);
    void* block = root->arena;
    root->del();
    kfmgArenaFree(block, root, root->size);
    kfmFree(block);
    return kfmOk;
}

template <class Real, class Spec>
KfmStatus transform(const Real* src, Real* dst, const Spec* spec) {
    if (spec == nullptr || src == nullptr || dst == nullptr) return kfmErrNullPtr;
    return reinterpret_cast<const Env1<Real>*>(spec)->compute(src, dst);
}

}   // namespace
}   // namespace kfm::dct4

#define KFM_DCT4_CALLS(precision, Real, Spec)                                                 \
    extern "C" KfmStatus kfmgDCT4GetSize_##precision(int len, int* size) {                    \
        return kfm::dct4::getSize<Real>(len, size);                                           \
    }                                                                                         \
    extern "C" KfmStatus kfmgDCT4Init_##precision(Spec** spec, int len, Kfm8u* block) {       \
        return kfm::dct4::init<Real>(spec, len, block);                                       \
    }                                                                                         \
    extern "C" KfmStatus kfmgDCT4InitAlloc_##precision(Spec** spec, int len) {                \
        return kfm::dct4::initAlloc<Spec>(spec, len, kfmgDCT4GetSize_##precision,             \
                                          kfmgDCT4Init_##precision);                          \
    }                                                                                         \
    extern "C" KfmStatus kfmgDCT4Free_##precision(Spec* spec) {                               \
        return kfm::dct4::release<Real>(spec);                                                \
    }                                                                                         \
    extern "C" KfmStatus kfmgDCT4_##precision(const Real* src, Real* dst, const Spec* spec) { \
        return kfm::dct4::transform<Real>(src, dst, spec);                                    \
    }

KFM_DCT4_CALLS(32f, Kfm32f, KfmDCT4Spec_32f)
KFM_DCT4_CALLS(64f, Kfm64f, KfmDCT4Spec_64f)
