// Plans of the DCT-IV: whose memory they live in, and who may hold them.
#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "kfmgen.hpp"

namespace kfm::tests {
namespace {

static_assert(!std::copyable<Dct4<float>> && std::movable<Dct4<float>>);
static_assert(!std::copyable<Dct4In<double>> && std::movable<Dct4In<double>>);

template <class T>
class Plans : public testing::Test {
protected:
    static std::vector<T> signal(std::size_t length) {
        std::vector<T> values(length);
        for (std::size_t i = 0; i < length; ++i) values[i] = T(i * 7 % 13);
        return values;
    }
};
using Numbers = testing::Types<float, double>;
TYPED_TEST_SUITE(Plans, Numbers);

TYPED_TEST(Plans, HaveTheBitsOfC) {
    using Functions = detail::Dct4Functions<TypeParam>;
    for (const int length : {2, 16, 64, 1024, 65}) {
        const auto source = this->signal(length);
        std::vector<TypeParam> expected(length), own(length), borrowed(length);
        typename Functions::Spec* spec = nullptr;
        ASSERT_EQ(Functions::make(&spec, length), kfmOk);
        ASSERT_EQ(Functions::run(source.data(), expected.data(), spec), kfmOk);
        Functions::free(spec);

        Dct4<TypeParam> plan(length);
        ASSERT_TRUE(plan(source, own));
        EXPECT_EQ(own, expected);
        const Dct4<TypeParam> moved = std::move(plan);
        EXPECT_EQ(moved.size(), std::size_t(length));

        const std::size_t size = Dct4In<TypeParam>::memorySize(length).orThrow();
        std::vector<std::byte> memory(size + 32);
        std::byte* const aligned =
            memory.data() + (32 - reinterpret_cast<std::uintptr_t>(memory.data()) % 32) % 32;
        auto inMemory = Dct4In<TypeParam>::make(length, std::span(aligned, size));
        ASSERT_TRUE(inMemory) << inMemory.text();
        ASSERT_TRUE((*inMemory)(source, borrowed));
        EXPECT_EQ(borrowed, expected);
        EXPECT_EQ(Dct4In<TypeParam>::make(length, std::span(aligned, size - 1)).status(),
                  kfmErrSize);
        EXPECT_EQ(Dct4In<TypeParam>::make(length, std::span(aligned + 8, size - 8)).status(),
                  kfmErrSize);
    }
}

TYPED_TEST(Plans, RefuseOtherLengths) {
    for (const std::size_t length : {std::size_t(0), std::size_t(63), std::size_t(1) << 40}) {
        EXPECT_THROW(Dct4<TypeParam>{length}, Error);
        EXPECT_EQ(Dct4<TypeParam>::make(length).status(), kfmErrSize);
        EXPECT_EQ(Dct4In<TypeParam>::memorySize(length).status(), kfmErrSize);
    }
    Dct4<TypeParam> plan(64);
    std::vector<TypeParam> source(64), destination(63, 7);
    const auto untouched = destination;
    EXPECT_EQ(plan(source, destination).status(), kfmErrSize);
    EXPECT_EQ(destination, untouched);
}

}   // namespace
}   // namespace kfm::tests
