// Which lengths are planned, how large their plans are, what they look like, and that whatever a
// plan takes from its arena is given back.
#include <cstring>
#include <map>

#include "dct4/committed_lines.h"
#include "dct4/plan_text.h"
#include "dct4/root.h"
#include "dct4/specification.h"

namespace kfm::tests {
namespace {

using namespace kfm::dct4;

template <class Real>
class Plan : public testing::Test {};
TYPED_TEST_SUITE(Plan, Precisions);

TYPED_TEST(Plan, AcceptsPowersOfTwoAndFromThirtyThreeOneMore) {
    const auto expected = acceptedLengths(70000);
    const auto check = [&](int length, bool accepted) {
        int size = -1;
        EXPECT_EQ(Dct4<TypeParam>::getSize(length, &size), accepted ? kfmOk : kfmErrSize) << length;
        EXPECT_EQ(size == -1, !accepted) << length;
    };
    for (int length = -70; length < 70000; ++length)
        check(length, std::ranges::binary_search(expected, length));
    for (int exponent = 17; exponent < 31; ++exponent) {
        const bool fits = exponent <= (sizeof(TypeParam) == 4 ? 27 : 26);
        for (int above : {-1, 0, 1, 2})
            check((1 << exponent) + above, fits && (above == 0 || above == 1));
        if (exponent < 30) check(3 << exponent, false);
    }
    for (int length : {-2147483647 - 1, -64, 2147483647}) check(length, false);
}

TYPED_TEST(Plan, Sizes) {
    // clang-format off
    const std::map<int, std::pair<int, int>> expected = {
        {2, {224, 224}},           {16, {224, 224}},
        {32, {224, 224}},          {33, {1408, 1664}},
        {64, {1632, 2144}},        {65, {1664, 2176}},
        {128, {2144, 3168}},       {256, {3168, 5216}},
        {2048, {17504, 33888}},    {2049, {17536, 33920}},
        {4096, {37152, 70432}},    {4097, {51552, 101216}},
        {8192, {72480, 139040}},   {65536, {567072, 1099552}},
        {1 << 20, {9050592, 17574368}}, {1 << 26, {579087520, 1124617376}}};
    // clang-format on
    for (const auto& [length, sizes] : expected)
        EXPECT_EQ(sizeOf<TypeParam>(length), sizeof(TypeParam) == 4 ? sizes.first : sizes.second)
            << length;
    if (sizeof(TypeParam) == 4) {
        EXPECT_EQ(sizeOf<TypeParam>(1 << 27), 1158173024);
    }
}

// The trees do not depend on the precision, nor on the target.
TYPED_TEST(Plan, LooksAsItDid) {
    std::vector<std::string> lines;
    for (int length : acceptedLengths((1 << 20) + 1)) {
        const Specification<TypeParam> specification(length);
        lines.push_back(std::to_string(length) + " " +
                        planText<TypeParam>(specification.handle(), specification.block(),
                                            sizeOf<TypeParam>(length)));
    }
    expectCommitted("dct4_plans.txt",
                    "# The tree of environments of every length: rules and sizes in brackets.\n",
                    lines);
}

// Offsets that do not depend on the target either, and where the handle points.
TYPED_TEST(Plan, RootIsTheHandle) {
    for (int length : {8, 64, 4096}) {
        const Specification<TypeParam> specification(length);
        const auto* root = reinterpret_cast<const Kfm8u*>(specification.handle());
        EXPECT_EQ(root - specification.block(), 64);
        std::int32_t fields[11];
        std::memcpy(fields, root, sizeof fields);
        EXPECT_EQ(fields[1], 44);
        EXPECT_EQ(fields[8], length == 8 ? 3 : 6);
        EXPECT_EQ(fields[9], length == 8 ? 0 : length == 64 ? 8 : 32);
        EXPECT_EQ(fields[10], length);
        EXPECT_EQ(fields[7] == 0, length == 8);
    }
}

// The numbers of an object from a byte on, by their places and not by the names of today.
void expectNumbers(const void* object, std::ptrdiff_t from,
                   const std::vector<std::int32_t>& expected) {
    std::vector<std::int32_t> numbers(expected.size());
    std::memcpy(numbers.data(), static_cast<const Kfm8u*>(object) + from, 4 * numbers.size());
    EXPECT_EQ(numbers, expected);
}

TYPED_TEST(Plan, StagesHoldTheirParameters) {
    using Real = TypeParam;
    for (const int len : acceptedLengths(1 << 17)) {
        if (len <= 32) continue;
        SCOPED_TRACE(len);
        const Specification<Real> specification(len);
        const auto* env1 = reinterpret_cast<const Env1<Real>*>(specification.handle());
        const auto* env2 = stageOf<Env2<Real>>(env1->outputStage);
        const auto* env3 = stageOf<Env3<Real>>(env1->inputStage);
        const auto* env4 = stageOf<Env4<Real>>(env2->stage);
        const auto* env5 = stageOf<Env5<Real>>(env3->stage);
        const void* compose = EnvList_get(env1->children, 0);
        const void* split = EnvList_get(env2->children, 0);
        const int d = env1->divisor, m = len / d, rows = len / (2 * d), blocks = len / (8 * d);
        expectNumbers(env2, 24, {0, 1, d, len, 2 * d, rows, len, 2 * len - 1, m});
        EXPECT_EQ(env2->compose.get(), compose);
        expectNumbers(env3, 24, {0, 1, m, len, 2 * len - 1, 2 * d, d, len, d});
        expectNumbers(env4, 24,
                      {Env4<Real>::chooseRule(d), d, len, 2 * d, 8 * d, blocks, len, 2 * len - 1,
                       m});
        EXPECT_EQ(env4->split.get(), split);
        expectNumbers(env5, 24, {0, subLengthRule(m), m, len, 2 * len - 1, 2 * d, d / 4, len, d});
        expectNumbers(compose, 16, {2 * d, 8 * len, rows, d, 2 * d});
        expectNumbers(split, 16, {2 * d, blocks});
        if (const auto* env7 = stageOf<Env7<Real>>(env5->recursion))
            expectNumbers(EnvList_get(env7->children, 0), 16, {m, env7->divisor});
    }
}

// A plan made by the planner itself, in an arena with room to spare.
class Arena {
public:
    explicit Arena(int bytes) : bytes_(static_cast<std::size_t>(bytes)) { initArena(block()); }
    void* block() { return bytes_.data(); }
    int top() {
        const auto* top = static_cast<char*>(kfmgArenaMalloc(block(), 0));
        return static_cast<int>(top - bytes_.data());
    }

private:
    std::vector<char> bytes_;
};

// Builds an environment, releases it through its own operations, and tells what became of both.
template <class Kind, class Init>
KfmStatus buildAndRelease(Arena& arena, Init init, int* taken = nullptr) {
    const int before = arena.top();
    auto* environment = take<Kind>(arena.block());
    init(*environment);
    const KfmStatus status = environment->plan.get()(environment);
    if (taken) *taken = arena.top() - before;
    environment->release.get()(environment);
    kfmgArenaFree(arena.block(), environment, environment->size);
    EXPECT_EQ(arena.top(), before) << "not all was given back";
    return status;
}

TYPED_TEST(Plan, IsGivenBackWhole) {
    for (int length : acceptedLengths(1 << 18)) {
        Arena arena(sizeOf<TypeParam>(length));
        int taken = 0;
        EXPECT_EQ(buildAndRelease<Env1<TypeParam>>(
                      arena, [&](auto& env1) { env1.init(arena.block(), length); }, &taken),
                  kfmOk);
        EXPECT_LE(taken, Env1<TypeParam>::mem(length)) << length;
        EXPECT_GE(taken, Env1<TypeParam>::mem(length) - 800) << length;
    }
}

// Every step that can refuse a size does so, tells its size as the same refusal, and gives back
// what it had taken.
TYPED_TEST(Plan, FailsAtEachStep) {
    using Real = TypeParam;
    Arena arena(1 << 20);
    void* const block = arena.block();
    const auto refused = [&]<class Kind>(std::type_identity<Kind>, Bytes mem, auto init) {
        EXPECT_EQ(mem, kfmErrSize);
        EXPECT_EQ(buildAndRelease<Kind>(arena, init), kfmErrSize);
    };
    for (int length : {0, 3, 48, 192, 3 << 16})
        refused(std::type_identity<Env1<Real>>{}, Env1<Real>::mem(length),
                [&](auto& env) { env.init(block, length); });
    for (const auto& [length, d] : {std::pair{48, 4}, {512, 64}, {96, 6}})
        refused(std::type_identity<Env2<Real>>{}, Env2<Real>::mem(length, d),
                [&, n = length, d = d](auto& env) { env.init(block, n, d, nullptr); });
    for (const auto& [length, d] : {std::pair{96, 6}, {192, 8}})
        refused(std::type_identity<Env3<Real>>{}, Env3<Real>::mem(length, d),
                [&, n = length, d = d](auto& env) { env.init(block, n, d); });
    for (int a : {6, 12, 24, 96})
        refused(std::type_identity<Env7<Real>>{}, Env7<Real>::mem(a, 8 * a, true), [&](auto& env) {
            env.init(block, {a, 16, 8 * a, true});
        });
    refused(std::type_identity<Env8<Real>>{}, Env8<Real>::mem(192, 64), [&](auto& env) {
        env.init(block, {192, 16, 1536, true}, 64, nullptr);
    });
    refused(std::type_identity<Env9<Real>>{}, Env9<Real>::mem(12, 192), [&](auto& env) {
        env.init(block, {24, 16, 192, true}, 2);
    });
}

}   // namespace
}   // namespace kfm::tests
