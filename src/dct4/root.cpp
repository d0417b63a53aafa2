// One codelet for a short length, input stage and output stage for the others. The two stages fold
// the input in halves, which an odd length does not have: it is planned alike, but its work buffer
// holds the table of a direct sum.
#include "dct4/root.h"

#include <limits>

#include "dct4/codelets.h"
#include "dct4/numbers.h"

namespace kfm::dct4 {
namespace {

// Beside the root: the arena's top, and the way to an aligned address.
constexpr Bytes arenaHead = 2 * kfmgAlignSize32Bytes(1);

template <class Real>
constexpr Bytes workBytes(Bytes len) {
    return len * Bytes{sizeof(Real)};
}

// cos(pi (8j - len) / 4len), reduced to an eighth of a turn on integers.
template <class Real>
void fillOddTable(Real* table, int len) {
    for (std::int64_t j = 0; j < len; ++j) {
        const std::int64_t quarters = 4 * j / len;
        const std::int64_t rest = 8 * j - len - 2 * len * quarters;
        const double x = static_cast<double>(rest) / (4.0 * len);
        table[j] = static_cast<Real>(pointOnCircle(quarters, x).cosine);
    }
}

}   // namespace

template <class Real>
int Env1<Real>::chooseRule(int len) {
    switch (len) {
    case 2: return 1;
    case 4: return 2;
    case 8: return 3;
    case 16: return 4;
    case 32: return 5;
    default: return generalRule;
    }
}

template <class Real>
Bytes Env1<Real>::mem(int len) {
    const Bytes own = objectMem<Env1>(3);
    if (chooseRule(len) != generalRule) return own;
    int d;
    if (divisorsIntNonTriv(&d, len / 2) != kfmOk) return kfmErrSize;
    const Bytes env2 = Env2<Real>::mem(len, d), env3 = Env3<Real>::mem(len, d);
    if (env2 < 0 || env3 < 0) return kfmErrSize;
    const Bytes sum = env2 + env3 + aligned(workBytes<Real>(len)) + own + EnvList_add_mem(2) +
                      aligned(sizeof(EnvFCompose<Real>)) + EnvList_add_mem(1) + EnvList_add_mem(2);
    return sum + arenaHead > std::numeric_limits<int>::max() ? Bytes{kfmErrSize} : sum;
}

template <class Real>
void Env1<Real>::init(void* arena, int length) {
    initEnvironment(*this, arena);
    outputStage = newList(arena);
    inputStage = newList(arena);
    work = nullptr;
    rule = 0;
    divisor = 0;
    len = length;
}

// The size is asked first: a length that only the deepest stage refuses must not fill a block that
// is too small for it.
template <class Real>
KfmStatus Env1<Real>::build() {
    if (mem(len) < 0) return kfmErrSize;
    rule = chooseRule(len);
    return rule == generalRule ? buildStages() : kfmOk;
}

template <class Real>
KfmStatus Env1<Real>::buildStages() {
    if (divisorsIntNonTriv(&divisor, len / 2) != kfmOk) return kfmErrSize;
    auto* env2 = take<Env2<Real>>(arena);
    auto* compose = take<EnvFCompose<Real>>(arena);
    compose->init(len, divisor);
    EnvList_add(children, compose);
    env2->init(arena, len, divisor, compose);
    if (addStage(*this, outputStage, env2) != kfmOk) return kfmErrSize;
    auto* env3 = take<Env3<Real>>(arena);
    env3->init(arena, len, divisor);
    if (addStage(*this, inputStage, env3) != kfmOk) return kfmErrSize;
    work = takeArray<Real>(arena, workBytes<Real>(len));
    if (len % 2 != 0) fillOddTable<Real>(work, len);
    return kfmOk;
}

template <class Real>
void Env1<Real>::del() {
    returnArray<Real>(arena, work, workBytes<Real>(len));
    deleteList(inputStage);
    deleteList(outputStage);
    deleteChildren(*this);
}

template <class Real>
KfmStatus Env1<Real>::computeGeneral(const Real* src, Real* dst) const {
    if (len % 2 != 0) {
        computeOdd(src, dst);
        return kfmOk;
    }
    const KfmStatus status = stageOf<Env3<Real>>(inputStage)->compute(src, work);
    if (status == kfmOk) stageOf<Env2<Real>>(outputStage)->compute(work, dst);
    return status;
}

template <class Real>
void Env1<Real>::computeOdd(const Real* src, Real* dst) const {
    const auto* env5 = stageOf<Env5<Real>>(stageOf<Env3<Real>>(inputStage)->stage);
    if (Real* scratch = env5->scratch()) oddTransform<Real>(src, dst, len, work, scratch);
    else computeShortOdd(src, dst);
}

// Up to 2049, beyond which there is a recursion. A function of its own, with as much stack as the
// length asks for, so that no other length pays for it.
template <class Real>
[[gnu::noinline]] void Env1<Real>::computeShortOdd(const Real* src, Real* dst) const {
    const std::size_t bytes = static_cast<std::size_t>(len - 1) * sizeof(Real);
    void* scratch = __builtin_alloca_with_align(bytes, 16 * 8);
    oddTransform<Real>(src, dst, len, work, static_cast<Real*>(scratch));
}

}   // namespace kfm::dct4

KFM_DCT4_DEFINE_ENVIRONMENT(env1, Env1)
