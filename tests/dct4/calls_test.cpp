// Status of each call, in the order of the checks, and what a failed call leaves alone.
#include <cstring>

#include "dct4/specification.h"

namespace kfm::tests {
namespace {

template <class Real>
class Calls : public testing::Test {
protected:
    using Spec = typename Dct4<Real>::Spec;
    static inline Spec* const unset = reinterpret_cast<Spec*>(64);
};
TYPED_TEST_SUITE(Calls, Precisions);

// Every combination of arguments: null pointers come first, then the length.
TYPED_TEST(Calls, RefuseToPlan) {
    using Calls = Dct4<TypeParam>;
    for (const int length : {-64, -4, 0, 1, 3, 7, 31, 48, 192, 1 << 30, 2, 8, 32}) {
        const bool planned = length == 2 || length == 8 || length == 32;
        const KfmStatus ofLength = planned ? kfmOk : kfmErrSize;
        for (const bool withSpec : {false, true}) {
            for (const bool withBlock : {false, true}) {
                alignas(32) Kfm8u block[224] = {};
                const std::vector<Kfm8u> zeros(sizeof block);
                typename Calls::Spec* spec = this->unset;
                const bool complete = withSpec && withBlock;
                EXPECT_EQ(Calls::init(withSpec ? &spec : nullptr, length,
                                      withBlock ? block : nullptr),
                          complete ? ofLength : kfmErrNullPtr)
                    << length;
                EXPECT_EQ(spec == this->unset, !complete || !planned) << length;
                EXPECT_EQ(std::memcmp(block, zeros.data(), sizeof block) == 0, !complete) << length;
            }
            typename Calls::Spec* spec = this->unset;
            EXPECT_EQ(Calls::initAlloc(withSpec ? &spec : nullptr, length),
                      withSpec ? ofLength : kfmErrNullPtr)
                << length;
            EXPECT_EQ(spec == this->unset, !withSpec || !planned) << length;
            if (spec != this->unset) {
                EXPECT_EQ(Calls::free(spec), kfmOk);
            }
        }
        if (!planned) {
            EXPECT_EQ(Calls::getSize(length, nullptr), kfmErrSize) << "before it would be written";
        }
    }
    EXPECT_EQ(Calls::free(nullptr), kfmErrNullPtr);
}

// The same: null pointers come first, then the rule.
TYPED_TEST(Calls, RefuseToTransform) {
    using Calls = Dct4<TypeParam>;
    constexpr std::size_t ruleOffset = 32;
    for (const int length : {2, 64, 65})
        for (const bool ruled : {true, false})
            for (const std::int32_t rule : {-1, 0, 7, 1 << 30}) {
                const Specification<TypeParam> specification(length);
                if (!ruled)
                    std::memcpy(reinterpret_cast<Kfm8u*>(specification.handle()) + ruleOffset,
                                &rule, sizeof rule);
                for (int present = 0; present < 8; ++present) {
                    const std::vector<TypeParam> source(static_cast<std::size_t>(length), 1);
                    auto destination = source;
                    const KfmStatus expected = present < 7 ? kfmErrNullPtr
                                               : ruled     ? kfmOk
                                                           : kfmErrBadSpec;
                    EXPECT_EQ(Calls::transform(present & 1 ? source.data() : nullptr,
                                               present & 2 ? destination.data() : nullptr,
                                               present & 4 ? specification.handle() : nullptr),
                              expected)
                        << length << ", rule " << rule << ", arguments " << present;
                    EXPECT_EQ(source == destination, expected != kfmOk) << length;
                }
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
