// Status of each call, in the order of the checks, and what a failed call leaves alone.
#include <cstring>

#include "dct4/specification.h"
#include "kfmcore.h"

namespace kfm::tests {
namespace {

template <class Real>
class Calls : public testing::Test {
protected:
    using Spec = typename Dct4<Real>::Spec;
    static inline Spec* const unset = reinterpret_cast<Spec*>(64);
};
TYPED_TEST_SUITE(Calls, Precisions);

TYPED_TEST(Calls, RefuseNullPointers) {
    using Calls = Dct4<TypeParam>;
    const Specification<TypeParam> specification(64);
    alignas(32) Kfm8u block[224];
    TypeParam signal[64] = {};
    typename Calls::Spec* spec = this->unset;
    EXPECT_EQ(Calls::init(nullptr, 8, block), kfmErrNullPtr);
    EXPECT_EQ(Calls::init(nullptr, 7, nullptr), kfmErrNullPtr);
    EXPECT_EQ(Calls::init(&spec, 7, nullptr), kfmErrNullPtr);
    EXPECT_EQ(spec, this->unset);
    EXPECT_EQ(Calls::initAlloc(nullptr, 7), kfmErrNullPtr);
    EXPECT_EQ(Calls::free(nullptr), kfmErrNullPtr);
    EXPECT_EQ(Calls::transform(signal, signal, nullptr), kfmErrNullPtr);
    EXPECT_EQ(Calls::transform(nullptr, signal, specification.handle()), kfmErrNullPtr);
    EXPECT_EQ(Calls::transform(signal, nullptr, specification.handle()), kfmErrNullPtr);
}

TYPED_TEST(Calls, RefuseLengths) {
    using Calls = Dct4<TypeParam>;
    alignas(32) Kfm8u block[224];
    for (int length : {-64, -4, 0, 1, 3, 31, 48, 192, 1 << 30}) {
        typename Calls::Spec* spec = this->unset;
        EXPECT_EQ(Calls::init(&spec, length, block), kfmErrSize) << length;
        EXPECT_EQ(Calls::initAlloc(&spec, length), kfmErrSize) << length;
        EXPECT_EQ(spec, this->unset) << length;
    }
}

TYPED_TEST(Calls, RefuseASpecificationWithoutARule) {
    using Calls = Dct4<TypeParam>;
    constexpr std::size_t ruleOffset = 32;
    for (int length : {2, 64, 65})
        for (std::int32_t rule : {-1, 0, 7, 1 << 30}) {
            const Specification<TypeParam> specification(length);
            std::memcpy(reinterpret_cast<Kfm8u*>(specification.handle()) + ruleOffset, &rule, 4);
            const std::vector<TypeParam> source(static_cast<std::size_t>(length), 1);
            auto destination = source;
            EXPECT_EQ(Calls::transform(source.data(), destination.data(), specification.handle()),
                      kfmErrBadSpec);
            EXPECT_EQ(source, destination) << rule;
        }
}

// The allocation is aligned, so the handle stands where it does in any aligned block.
TYPED_TEST(Calls, AllocateAndFree) {
    using Calls = Dct4<TypeParam>;
    for (int length : acceptedLengths(4097)) {
        typename Calls::Spec* spec = nullptr;
        ASSERT_EQ(Calls::initAlloc(&spec, length), kfmOk) << length;
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(spec) % 32, 0u);
        const std::vector<TypeParam> source(static_cast<std::size_t>(length), 1);
        EXPECT_EQ(transformed(source, spec),
                  transformed(source, Specification<TypeParam>(length).handle()));
        EXPECT_EQ(Calls::free(spec), kfmOk) << length;
    }
}

}   // namespace
}   // namespace kfm::tests
