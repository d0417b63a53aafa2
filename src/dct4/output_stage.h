// The output stage of the general rule: env2 stands for the stage, env4 computes it. It rotates the
// rows that the input stage left, four at a time, and combines the elements of each.
#pragma once

#include "dct4/index_maps.h"

namespace kfm::dct4 {

template <class Real>
struct Env4 : Environment {
    Ref<Real> table;     // len/8d blocks; per block 2d columns of four rows each
    std::int32_t rule;   // 1..6 for d = 1, 2, 4, 8, 16, 32
    std::int32_t d, len, columns, blockSize, blocks, outputLen, mirror, run;
    Ref<const EnvFSplit<Real>> split;

    static int chooseRule(int d);
    static Bytes mem(int len, int d);
    void init(void* arena, int inputLen, int divisor, const EnvFSplit<Real>* twiddles);
    KfmStatus build();
    void del();
    void compute(const Real* w, Real* dst) const;
};

template <class Real>
struct Env2 : Environment {
    Ref<EnvList> stage;   // the env4
    Ref<void> spare;
    std::int32_t rule;   // 1
    std::int32_t d, len, columns, rows, outputLen, mirror, run;
    Ref<const EnvFCompose<Real>> compose;

    static int chooseRule(int rows);
    static Bytes mem(int len, int d);
    void init(void* arena, int inputLen, int divisor, const EnvFCompose<Real>* twiddles);
    KfmStatus build();
    void del();
    void compute(const Real* w, Real* dst) const {
        if (rule == 1) stageOf<Env4<Real>>(stage)->compute(w, dst);
    }
};

static_assert(sizeof(Env2<Kfm32f>) == 64 && sizeof(Env2<Kfm64f>) == 64);
static_assert(sizeof(Env4<Kfm32f>) == 64 && sizeof(Env4<Kfm64f>) == 64);

}   // namespace kfm::dct4

KFM_DCT4_DECLARE_ENVIRONMENT(env2, Env2)
KFM_DCT4_DECLARE_ENVIRONMENT(env4, Env4)
