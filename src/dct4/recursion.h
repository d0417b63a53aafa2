// Sub-transforms of the input stage too long for one codelet. env7 splits a length a = d' m' (d'
// its divisor): env9 transforms d' interleaved sub-sequences of m' values each, by codelet or by
// another env7; env8 joins them. All levels work in the work buffer, in place.
//
// Three integers say which sub-transforms are meant: in0, refl and out0. Their inputs are
// src[in0 + t] and, once the input is mirrored at its end, src[in0 + refl - t], t = 0, step, ...;
// their results start at element out0 of the work buffer.
#pragma once

#include "dct4/codelets.h"
#include "dct4/index_maps.h"

namespace kfm::dct4 {

// The rule of env5 and env9: 1..6 for sub-lengths 2, 4, ..., 64, and splitRule for all others.
inline constexpr int splitRule = 7;
int subLengthRule(int m);

// What an env7 stands for: a sub-transform of `a` values in every column of the work buffer.
struct SplitShape {
    std::int32_t a;
    std::int32_t step;   // between the inputs of one sub-transform
    std::int32_t len;    // of the whole transform
    std::int32_t root;   // whether an env5 made it
};

template <class Real>
struct Env8 : Environment {
    Ref<Real> table;     // a/2d' groups of d' pairs, cosine and sine
    std::int32_t rule;   // 1..5 for d' = 2, 4, ..., 32
    Ref<const EnvLambda<Real>> lambda;
    std::int32_t divisor, a, spare0 = 0, blockRows;   // blockRows = m'/2, complex rows
    std::int32_t spare1[5] = {}, root;

    static int chooseRule(int divisor);
    static Bytes mem(int a, int divisor);
    void init(void* arena, const SplitShape& shape, int splitFactor, const EnvLambda<Real>* map);
    KfmStatus build();
    void del();
    void compute(Real* rows) const;

private:
    void fillTable();

    template <int d>
    void join(Real* rows) const {
        if (root != 0) twiddleStageRoot<Real, d>(rows, table, blockRows);
        else twiddleStage<Real, d>(rows, table, blockRows);
    }
};

template <class Real>
struct Env9 : Environment {
    Ref<EnvList> recursion;   // the env7 of rule 7
    std::int32_t rule;
    std::int32_t m, step, shift, shiftBack;   // step of the sub-sequences; from one to the next
    std::int32_t len, spare0 = 0, count, blockStride, spare1[2] = {};

    static Bytes mem(int m, int len);
    void init(void* arena, const SplitShape& shape, int divisor);
    KfmStatus build();
    void del();
    KfmStatus compute(const Real* src, Real* w, int in0, int refl, int out0) const;

private:
    void computeBlock(const Real* front, const Real* back, Real* rows) const;
};

template <class Real>
struct Env7 : Environment {
    Ref<EnvList> joining, splitting;   // the env8, the env9
    Ref<Real> scratch;                 // of the root, for odd lengths; null below
    std::int32_t rule;                 // 1
    std::int32_t a, divisor, step, len, spare0 = 0, root, spare1 = 0;

    static Bytes mem(int a, int len, bool root);
    void init(void* arena, const SplitShape& shape);
    KfmStatus build();
    void del();
    KfmStatus compute(const Real* src, Real* w, int in0, int refl, int out0) const;
};

static_assert(sizeof(Env7<Kfm32f>) == 64 && sizeof(Env7<Kfm64f>) == 64);
static_assert(sizeof(Env8<Kfm32f>) == 72 && sizeof(Env8<Kfm64f>) == 72);
static_assert(sizeof(Env9<Kfm32f>) == 68 && sizeof(Env9<Kfm64f>) == 68);

}   // namespace kfm::dct4

KFM_DCT4_DECLARE_ENVIRONMENT(env7, Env7)
KFM_DCT4_DECLARE_ENVIRONMENT(env8, Env8)
KFM_DCT4_DECLARE_ENVIRONMENT(env9, Env9)
