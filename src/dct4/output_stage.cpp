// Planning fills the table of rotations; computing is one call of the codelet for d.
#include "dct4/output_stage.h"

#include "dct4/codelets.h"

namespace kfm::dct4 {
namespace {

// Of env4's table: `rounds` blocks of 2d columns of four elements.
template <class Real>
constexpr Bytes tableBytes(Bytes rounds, int d) {
    return rounds * 8 * d * static_cast<Bytes>(sizeof(Real));
}

}   // namespace

template <class Real>
int Env2<Real>::chooseRule(int rows) {
    return rows % 4 == 0 ? 1 : 0;
}

template <class Real>
Bytes Env2<Real>::mem(int len, int d) {
    if (chooseRule(len / (2 * d)) == 0) return kfmErrSize;
    const Bytes env4 = Env4<Real>::mem(len, d);
    if (env4 < 0) return env4;
    return env4 + objectMem<Env2>(2) + EnvList_add_mem(2) + aligned(sizeof(EnvFSplit<Real>)) +
           EnvList_add_mem(1);
}

template <class Real>
void Env2<Real>::init(void* arena, int inputLen, int divisor, const EnvFCompose<Real>* twiddles) {
    initEnvironment(*this, arena);
    stage = newList(arena);
    rule = 0;
    d = divisor;
    len = outputLen = inputLen;
    columns = 2 * d;
    rows = len / columns;
    mirror = 2 * len - 1;
    run = len / d;
    compose = twiddles;
}

template <class Real>
KfmStatus Env2<Real>::build() {
    rule = chooseRule(rows);
    if (rule == 0) return kfmErrSize;
    auto* env4 = take<Env4<Real>>(arena);
    auto* split = take<EnvFSplit<Real>>(arena);
    split->init(len, d, compose);
    EnvList_add(children, split);
    env4->init(arena, len, d, split);
    return addStage(*this, stage, env4);
}

template <class Real>
void Env2<Real>::del() {
    deleteList(stage);
    deleteChildren(*this);
}

template <class Real>
int Env4<Real>::chooseRule(int d) {
    switch (d) {
    case 1: return 1;
    case 2: return 2;
    case 4: return 3;
    case 8: return 4;
    case 16: return 5;
    case 32: return 6;
    default: return 0;
    }
}

template <class Real>
Bytes Env4<Real>::mem(int len, int d) {
    if (chooseRule(d) == 0) return kfmErrSize;
    return aligned(tableBytes<Real>(len / (2 * d) / 4, d)) + objectMem<Env4>(1);
}

template <class Real>
void Env4<Real>::init(void* arena, int inputLen, int divisor, const EnvFSplit<Real>* twiddles) {
    initEnvironment(*this, arena);
    table = nullptr;
    rule = 0;
    d = divisor;
    len = outputLen = inputLen;
    columns = 2 * d;
    blockSize = 8 * d;
    blocks = len / blockSize;
    mirror = 2 * len - 1;
    run = len / d;
    split = twiddles;
}

template <class Real>
KfmStatus Env4<Real>::build() {
    rule = chooseRule(d);
    if (rule == 0) return kfmErrSize;
    table = takeArray<Real>(arena, tableBytes<Real>(blocks, d));
    Real* element = table;
    for (int i = 0; i < blocks; ++i)
        for (int column = 0; column < columns; ++column)
            for (int j = 0; j < 4; ++j) *element++ = owng_TFunc_IIIR_at<Real>(split, i, j, column);
    return kfmOk;
}

template <class Real>
void Env4<Real>::del() {
    returnArray<Real>(arena, table, tableBytes<Real>(blocks, d));
    deleteChildren(*this);
}

template <class Real>
void Env4<Real>::compute(const Real* w, Real* dst) const {
    switch (rule) {   // d = 1 and 2 have no codelet: no accepted length has them
    case 3: return outputStage<Real, 4>(w, table, dst, len);
    case 4: return outputStage<Real, 8>(w, table, dst, len);
    case 5: return outputStage<Real, 16>(w, table, dst, len);
    case 6: return outputStage<Real, 32>(w, table, dst, len);
    }
}

}   // namespace kfm::dct4

KFM_DCT4_DEFINE_ENVIRONMENT(env2, Env2)
KFM_DCT4_DEFINE_ENVIRONMENT(env4, Env4)
