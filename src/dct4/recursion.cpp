// Planning and walking the split of a sub-transform.
#include "dct4/recursion.h"

#include <algorithm>
#include <cmath>

#include "dct4/numbers.h"

namespace kfm::dct4 {
namespace {

// A vector for each of the sub-transform's values, so that sizes follow one rule; only an odd
// length uses it.
template <class Real>
constexpr Bytes scratchBytes(int a, int len, bool root) {
    if (!root) return 0;
    const Bytes odd = len % 2 != 0 ? Bytes{sizeof(Real)} * len : 0;
    return std::max(Bytes{16} * a, odd);
}

}   // namespace

int subLengthRule(int m) {
    switch (m) {
    case 2: return 1;
    case 4: return 2;
    case 8: return 3;
    case 16: return 4;
    case 32: return 5;
    case 64: return 6;
    default: return splitRule;
    }
}

template <class Real>
Bytes Env7<Real>::mem(int a, int len, bool root) {
    int divisor;
    if (divisorsIntNonTriv(&divisor, a / 2) != kfmOk) return kfmErrSize;
    const Bytes env8 = Env8<Real>::mem(a, divisor);
    const Bytes env9 = Env9<Real>::mem(a / divisor, len);
    if (env8 < 0 || env9 < 0) return kfmErrSize;
    return env8 + env9 + aligned(scratchBytes<Real>(a, len, root)) + objectMem<Env7>(3) +
           aligned(sizeof(EnvLambda<Real>)) + EnvList_add_mem(3) + EnvList_add_mem(1) +
           EnvList_add_mem(1);
}

template <class Real>
void Env7<Real>::init(void* arena, const SplitShape& shape) {
    initEnvironment(*this, arena);
    joining = newList(arena);
    splitting = newList(arena);
    scratch = nullptr;
    rule = 0;
    a = shape.a;
    divisor = 0;
    step = shape.step;
    len = shape.len;
    root = shape.root;
}

template <class Real>
KfmStatus Env7<Real>::build() {
    rule = 1;
    if (divisorsIntNonTriv(&divisor, a / 2) != kfmOk) return kfmErrSize;
    const SplitShape shape{a, step, len, root};
    auto* env8 = take<Env8<Real>>(arena);
    auto* map = take<EnvLambda<Real>>(arena);
    map->init(a, divisor);
    EnvList_add(children, map);
    env8->init(arena, shape, divisor, map);
    if (addStage(*this, joining, env8) != kfmOk) return kfmErrSize;
    auto* env9 = take<Env9<Real>>(arena);
    env9->init(arena, shape, divisor);
    if (addStage(*this, splitting, env9) != kfmOk) return kfmErrSize;
    if (root != 0) scratch = takeArray<Real>(arena, scratchBytes<Real>(a, len, true));
    return kfmOk;
}

template <class Real>
void Env7<Real>::del() {
    returnArray<Real>(arena, scratch, scratchBytes<Real>(a, len, true));
    deleteList(splitting);
    deleteList(joining);
    deleteChildren(*this);
}

template <class Real>
KfmStatus Env7<Real>::compute(const Real* src, Real* w, int in0, int refl, int out0) const {
    if (rule != 1) return kfmErrBadSpec;
    const KfmStatus status = stageOf<Env9<Real>>(splitting)->compute(src, w, in0, refl, out0);
    if (status == kfmOk) stageOf<Env8<Real>>(joining)->compute(w + out0);
    return status;
}

template <class Real>
int Env8<Real>::chooseRule(int divisor) {
    switch (divisor) {
    case 2: return 1;
    case 4: return 2;
    case 8: return 3;
    case 16: return 4;
    case 32: return 5;
    default: return 0;
    }
}

template <class Real>
Bytes Env8<Real>::mem(int a, int divisor) {
    if (chooseRule(divisor) == 0) return kfmErrSize;
    return aligned(Bytes{sizeof(Real)} * a) + objectMem<Env8>(1);
}

template <class Real>
void Env8<Real>::init(void* arena, const SplitShape& shape, int splitFactor,
                      const EnvLambda<Real>* map) {
    initEnvironment(*this, arena);
    table = nullptr;
    rule = 0;
    lambda = map;
    divisor = splitFactor;
    a = shape.a;
    blockRows = a / divisor / 2;
    root = shape.root;
}

template <class Real>
KfmStatus Env8<Real>::build() {
    rule = chooseRule(divisor);
    if (rule == 0) return kfmErrSize;
    table = takeArray<Real>(arena, Bytes{sizeof(Real)} * a);
    fillTable();
    return kfmOk;
}

// Fractions with a power of two below are exact, and so is their reduction.
template <class Real>
void Env8<Real>::fillTable() {
    Real* element = table;
    for (int row = 0; row < blockRows; ++row) {
        const double first = 2.0 * lambda->at.get()(lambda.get(), 2 * row) / divisor;
        for (int s = 0; s < divisor; ++s) {
            const double x = first * s;
            const double quarters = std::floor(2 * x + 0.5);
            const TurnPoint point =
                pointOnCircle(static_cast<long long>(quarters), x - quarters / 2);
            *element++ = static_cast<Real>(point.cosine);
            *element++ = static_cast<Real>(point.sine);
        }
    }
}

template <class Real>
void Env8<Real>::del() {
    returnArray<Real>(arena, table, Bytes{sizeof(Real)} * a);
    deleteChildren(*this);
}

template <class Real>
void Env8<Real>::compute(Real* rows) const {
    switch (rule) {
    case 1: return join<2>(rows);
    case 2: return join<4>(rows);
    case 3: return join<8>(rows);
    case 4: return join<16>(rows);
    case 5: return join<32>(rows);
    }
}

template <class Real>
Bytes Env9<Real>::mem(int m, int len) {
    const Bytes own = objectMem<Env9>(2);
    if (subLengthRule(m) != splitRule) return own;
    const Bytes env7 = Env7<Real>::mem(m, len, false);
    return env7 < 0 ? env7 : env7 + own + EnvList_add_mem(2);
}

template <class Real>
void Env9<Real>::init(void* arena, const SplitShape& shape, int divisor) {
    initEnvironment(*this, arena);
    recursion = newList(arena);
    rule = 0;
    m = shape.a / divisor;
    step = shape.step * divisor;
    shift = shape.step;
    shiftBack = 2 * shift;
    len = shape.len;
    count = divisor;
    blockStride = m * rowLength;
}

template <class Real>
KfmStatus Env9<Real>::build() {
    rule = subLengthRule(m);
    if (rule != splitRule) return kfmOk;
    auto* env7 = take<Env7<Real>>(arena);
    env7->init(arena, {m, step, len, false});
    return addStage(*this, recursion, env7);
}

template <class Real>
void Env9<Real>::del() {
    deleteList(recursion);
    deleteChildren(*this);
}

template <class Real>
KfmStatus Env9<Real>::compute(const Real* src, Real* w, int in0, int refl, int out0) const {
    for (int s = 0; s < count; ++s) {
        if (rule == splitRule) {
            const KfmStatus status =
                stageOf<Env7<Real>>(recursion)->compute(src, w, in0, refl, out0);
            if (status != kfmOk) return status;
        } else {
            const Real* front = src + in0;
            computeBlock(front, front + (refl - len), w + out0);
        }
        in0 += shift;
        refl -= shiftBack;
        out0 += blockStride;
    }
    return kfmOk;
}

template <class Real>
void Env9<Real>::computeBlock(const Real* front, const Real* back, Real* rows) const {
    switch (rule) {
    case 1: return inputBlock<Real, 2>(front, back, step, rows);
    case 2: return inputBlock<Real, 4>(front, back, step, rows);
    case 3: return inputBlock<Real, 8>(front, back, step, rows);
    case 4: return inputBlock<Real, 16>(front, back, step, rows);
    case 5: return inputBlock<Real, 32>(front, back, step, rows);
    case 6: return inputBlock<Real, 64>(front, back, step, rows);
    }
}

}   // namespace kfm::dct4

KFM_DCT4_DEFINE_ENVIRONMENT(env7, Env7)
KFM_DCT4_DEFINE_ENVIRONMENT(env8, Env8)
KFM_DCT4_DEFINE_ENVIRONMENT(env9, Env9)
