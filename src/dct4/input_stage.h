// The input stage of the general rule: env3 stands for the stage, env5 computes it. It transforms
// the d interleaved sub-sequences of the input, each folded to m = len/d values.
#pragma once

#include "dct4/recursion.h"

namespace kfm::dct4 {

template <class Real>
struct Env5 : Environment {
    Ref<EnvList> recursion;   // the env7 of rule 7
    Ref<void> spare;
    std::int32_t rule;   // 1..6 for m = 2, 4, ..., 64; 7 splits m further
    std::int32_t m, len, mirror, step, groups, workLen, stride;

    static Bytes mem(int len, int d);
    void init(void* arena, int len, int d);
    KfmStatus build();
    void del();
    KfmStatus compute(const Real* src, Real* w) const;
    // Memory for a transform's time, at least len elements when len is odd; null below rule 7.
    Real* scratch() const;

private:
    KfmStatus computeGroups(const Real* src, Real* w) const;
};

template <class Real>
struct Env3 : Environment {
    Ref<EnvList> stage;   // the env5
    Ref<void> spare;
    std::int32_t rule;   // 1
    std::int32_t m, len, mirror, step, count, workLen, stride;

    static int chooseRule(int d);
    static Bytes mem(int len, int d);
    void init(void* arena, int len, int d);
    KfmStatus build();
    void del();
    KfmStatus compute(const Real* src, Real* w) const {
        return rule == 1 ? stageOf<Env5<Real>>(stage)->compute(src, w) : kfmOk;
    }
};

static_assert(sizeof(Env3<Kfm32f>) == 60 && sizeof(Env3<Kfm64f>) == 60);
static_assert(sizeof(Env5<Kfm32f>) == 60 && sizeof(Env5<Kfm64f>) == 60);

}   // namespace kfm::dct4

KFM_DCT4_DECLARE_ENVIRONMENT(env3, Env3)
KFM_DCT4_DECLARE_ENVIRONMENT(env5, Env5)
