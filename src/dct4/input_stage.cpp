// Computing is one call of the codelet for m, or one recursion for each row length of columns.
#include "dct4/input_stage.h"

#include "dct4/codelets.h"

namespace kfm::dct4 {
namespace {

// What both kinds are told about the input and the work buffer.
template <class Kind>
void initShape(Kind& environment, int len, int d) {
    environment.rule = 0;
    environment.m = len / d;
    environment.len = environment.workLen = len;
    environment.mirror = 2 * len - 1;
    environment.step = 2 * d;
    environment.stride = d;
}

}   // namespace

template <class Real>
int Env3<Real>::chooseRule(int d) {
    return d % 4 == 0 ? 1 : 0;
}

template <class Real>
Bytes Env3<Real>::mem(int len, int d) {
    if (chooseRule(d) == 0) return kfmErrSize;
    const Bytes env5 = Env5<Real>::mem(len, d);
    return env5 < 0 ? env5 : env5 + objectMem<Env3>(2) + EnvList_add_mem(2);
}

template <class Real>
void Env3<Real>::init(void* arena, int inputLen, int d) {
    initEnvironment(*this, arena);
    stage = newList(arena);
    initShape(*this, inputLen, d);
    count = d;
}

template <class Real>
KfmStatus Env3<Real>::build() {
    rule = chooseRule(count);
    if (rule == 0) return kfmErrSize;
    auto* env5 = take<Env5<Real>>(arena);
    env5->init(arena, len, count);
    return addStage(*this, stage, env5);
}

template <class Real>
void Env3<Real>::del() {
    deleteList(stage);
    deleteChildren(*this);
}

template <class Real>
Bytes Env5<Real>::mem(int len, int d) {
    const Bytes own = objectMem<Env5>(2);
    if (subLengthRule(len / d) != splitRule) return own;
    const Bytes env7 = Env7<Real>::mem(len / d, len, true);
    return env7 < 0 ? env7 : env7 + own + EnvList_add_mem(2);
}

template <class Real>
void Env5<Real>::init(void* arena, int inputLen, int d) {
    initEnvironment(*this, arena);
    recursion = newList(arena);
    initShape(*this, inputLen, d);
    groups = d / 4;
}

template <class Real>
KfmStatus Env5<Real>::build() {
    rule = subLengthRule(m);
    if (rule != splitRule) return kfmOk;
    auto* env7 = take<Env7<Real>>(arena);
    env7->init(arena, {m, step, len, true});
    return addStage(*this, recursion, env7);
}

template <class Real>
void Env5<Real>::del() {
    deleteList(recursion);
    deleteChildren(*this);
}

template <class Real>
KfmStatus Env5<Real>::compute(const Real* src, Real* w) const {
    switch (rule) {
    case 1: inputStage<Real, 2>(src, w, stride); return kfmOk;
    case 2: inputStage<Real, 4>(src, w, stride); return kfmOk;
    case 3: inputStage<Real, 8>(src, w, stride); return kfmOk;
    case 4: inputStage<Real, 16>(src, w, stride); return kfmOk;
    case 5: inputStage<Real, 32>(src, w, stride); return kfmOk;
    case 6: inputStage<Real, 64>(src, w, stride); return kfmOk;
    default: return computeGroups(src, w);
    }
}

template <class Real>
KfmStatus Env5<Real>::computeGroups(const Real* src, Real* w) const {
    const auto* env7 = stageOf<Env7<Real>>(recursion);
    for (int first = 0; first < stride; first += rowLength) {
        const KfmStatus status = env7->compute(src, w, first, mirror - 2 * first, first);
        if (status != kfmOk) return status;
    }
    return kfmOk;
}

template <class Real>
Real* Env5<Real>::scratch() const {
    return rule == splitRule ? stageOf<Env7<Real>>(recursion)->scratch.get() : nullptr;
}

}   // namespace kfm::dct4

KFM_DCT4_DEFINE_ENVIRONMENT(env3, Env3)
KFM_DCT4_DEFINE_ENVIRONMENT(env5, Env5)
