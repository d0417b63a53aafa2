// The parts a plan is built from: arena, lists, split factors, trigonometric helpers, index maps.
#include <gtest/gtest.h>

#include <cmath>

#include "dct4/index_maps.h"
#include "dct4/numbers.h"

namespace kfm::dct4 {
namespace {

std::ptrdiff_t topOf(void* arena) {
    return static_cast<char*>(kfmgArenaMalloc(arena, 0)) - static_cast<char*>(arena);
}

struct ArenaTest : testing::Test {
    ArenaTest() { initArena(block); }
    alignas(32) char block[1024];
};

TEST_F(ArenaTest, RoundsSizesUpAndGivesBackTheSame) {
    EXPECT_EQ(topOf(block), 64);
    for (const auto& [size, step] : {std::pair{1, 32}, {33, 64}, {32, 32}, {0, 0}}) {
        const std::ptrdiff_t before = topOf(block);
        void* piece = kfmgArenaMalloc(block, size);
        EXPECT_EQ(static_cast<char*>(piece) - block, before) << size;
        EXPECT_EQ(topOf(block), before + step) << size;
        kfmgArenaFree(block, piece, size);
        EXPECT_EQ(topOf(block), before) << size;
    }
}

TEST_F(ArenaTest, ListTakesNoNodeForItsFirstItem) {
    EnvList* list = newList(block);
    const std::ptrdiff_t before = topOf(block);
    EXPECT_EQ(EnvList_get(list, 0), nullptr);
    EXPECT_EQ(EnvList_add(list, &block[900]), &block[900]);
    EXPECT_EQ(EnvList_get(list, 2), nullptr);
    for (int i = 1; i < 3; ++i) EnvList_add(list, &block[900 + i]);
    EXPECT_EQ(topOf(block) - before, EnvList_add_mem(2));
    for (int i = 0; i < 3; ++i) EXPECT_EQ(EnvList_get(list, i), &block[900 + i]);
    EXPECT_EQ(EnvList_get(list, -1), nullptr);
    EXPECT_EQ(EnvList_get(list, 4), nullptr);
    EnvList___del__(list);
    EXPECT_EQ(topOf(block), before);
}

int released = 0;
struct Child : Object {
    char payload[92];
};

TEST_F(ArenaTest, ChildrenAreReleasedAndGivenBack) {
    EnvList* list = newList(block);
    const std::ptrdiff_t before = topOf(block);
    for (int i = 0; i < 2; ++i) {
        auto* child = take<Child>(block);
        child->release = +[](void*) { ++released; };
        child->size = sizeof(Child);
        EnvList_add(list, child);
    }
    EXPECT_EQ(topOf(block) - before, 2 * 128 + 32);
    EnvList_freeChildren(list);
    EXPECT_EQ(released, 2);
    EXPECT_EQ(topOf(block) - before, 32);
    EnvList_freeChildren(EnvList___init__(list, block));   // nothing to release
    EXPECT_EQ(released, 2);
    EnvList_freeChildren(nullptr);
}

TEST(SplitFactor, IsTheLargestOfferedPowerOfTwo) {
    const auto offered = [](int n) {
        return n >= 512 ? 32 : n >= 128 ? 16 : n >= 32 ? 8 : n >= 16 ? 4 : 2;
    };
    for (int n = -70; n < 3000; ++n) {
        int largest = 0;
        for (int c = 2; n >= 4 && c <= offered(n); c *= 2)
            if (n % c == 0) largest = c;
        int divisor = 0;
        EXPECT_EQ(divisorsIntNonTriv(&divisor, n), largest ? kfmOk : kfmErrSize) << n;
        EXPECT_EQ(divisor, largest) << n;
    }
}

// The single-precision helpers round the product with pi before the function sees it.
TEST(TrigonometricHelpers, RoundWhereTheyShould) {
    for (int i = -300; i <= 300; ++i) {
        const float x = static_cast<float>(i) / 77.0f;
        const float angle = static_cast<float>(x * 0x1.921fb54442d18p+1);
        EXPECT_EQ(kfmgCosPi_32f(x), std::cos(angle));
        EXPECT_EQ(kfmgSinPi_32f(x), std::sin(angle));
        const double angle64 = double(x) * 0x1.921fb54442d18p+1;
        EXPECT_EQ(kfmgCosPi_64f(x), std::cos(angle64));
        EXPECT_EQ(kfmgSinPi_64f(x), std::sin(angle64));
    }
}

template <class Real>
struct IndexMaps : testing::Test {
    IndexMaps() { initArena(block); }
    alignas(32) char block[512];
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(IndexMaps, Precisions);

TYPED_TEST(IndexMaps, GiveTheKernelAngles) {
    using Real = TypeParam;
    constexpr int len = 128, d = 8;
    auto* compose = take<EnvFCompose<Real>>(this->block);
    compose->init(len, d);
    auto* split = take<EnvFSplit<Real>>(this->block);
    split->init(len, d, compose);
    for (int q = 0; q < len / (2 * d); ++q)
        for (int r = 0; r < d; ++r) {
            const double angle = M_PI * (2 * q + 1) * (2 * r + 1) / (4 * len);
            const double tolerance = sizeof(Real) == 4 ? 2e-7 : 4e-16;
            EXPECT_NEAR(compose->at.get()(compose, q, 2 * r), std::cos(angle), tolerance);
            EXPECT_NEAR(compose->at.get()(compose, q, 2 * r + 1), std::sin(angle), tolerance);
            EXPECT_EQ(owng_TFunc_IIIR_at<Real>(split, q / 4, q % 4, 2 * r),
                      compose->value(q, 2 * r));
        }
    auto* lambda = take<EnvLambda<Real>>(this->block);
    lambda->init(130, 8);   // 130 / 8 truncates to 16
    EXPECT_EQ(lambda->at.get()(lambda, 5), Real(5.5 / 16));
}

}   // namespace
}   // namespace kfm::dct4
