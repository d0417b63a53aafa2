// The root of a plan, env1: the whole transform. Its address is the handle that callers hold.
#pragma once

#include "dct4/codelets.h"
#include "dct4/input_stage.h"
#include "dct4/output_stage.h"

namespace kfm::dct4 {

inline constexpr int generalRule = 6;

template <class Real>
struct Env1 : Environment {
    Ref<EnvList> outputStage, inputStage;   // the env2, the env3; empty below the general rule
    Ref<Real> work;                         // len elements under the general rule, or null
    std::int32_t rule;                      // 1..5 for lengths 2, 4, ..., 32; 6 for all others
    std::int32_t divisor, len;

    static int chooseRule(int len);
    static Bytes mem(int len);
    void init(void* arena, int len);
    KfmStatus build();
    void del();
    bool planned() const { return rule >= 1 && rule <= generalRule; }
    // kfmErrBadSpec, and nothing written, when the rule is none of the six.
    KfmStatus compute(const Real* src, Real* dst) const;

private:
    KfmStatus buildStages();
    KfmStatus computeGeneral(const Real* src, Real* dst) const;
    void computeOdd(const Real* src, Real* dst) const;
    void computeShortOdd(const Real* src, Real* dst) const;
};

// In the header, so that a short transform is one call away from the public one.
template <class Real>
KfmStatus Env1<Real>::compute(const Real* src, Real* dst) const {
    switch (rule) {
    case 1: fixedTransform<Real, 2>(src, dst); return kfmOk;
    case 2: fixedTransform<Real, 4>(src, dst); return kfmOk;
    case 3: fixedTransform<Real, 8>(src, dst); return kfmOk;
    case 4: fixedTransform<Real, 16>(src, dst); return kfmOk;
    case 5: fixedTransform<Real, 32>(src, dst); return kfmOk;
    case generalRule: return computeGeneral(src, dst);
    default: return kfmErrBadSpec;
    }
}

static_assert(sizeof(Env1<Kfm32f>) == 44 && sizeof(Env1<Kfm64f>) == 44);

}   // namespace kfm::dct4

KFM_DCT4_DECLARE_ENVIRONMENT(env1, Env1)
