// The stack that the calls take, as the header tells it.
#include <cstring>

#include "dct4/specification.h"
#include "support/small_stack.h"

namespace kfm::tests {
namespace {

constexpr std::size_t planningStack = 4 * 1024, transformStack = 12 * 1024,
                      longestOnStack = 20 * 1024;   // of the inputs of an odd length

template <class Real>
class Stack : public testing::Test {
protected:
    void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
        GTEST_SKIP() << "the address sanitizer's frames are larger";
#endif
    }

    static std::size_t ofTransform(int length) {
        return length == 2049 && sizeof(Real) == 8 ? longestOnStack : transformStack;
    }
};
TYPED_TEST_SUITE(Stack, Precisions);

// Without the odd lengths that take long.
std::vector<int> lengths() {
    std::vector<int> result = acceptedLengths(1 << 18);
    std::erase_if(result, [](int length) { return length > 4097 && length % 2 != 0; });
    return result;
}

TYPED_TEST(Stack, OfATransformIsWhatIsPromised) {
    for (const int length : lengths()) {
        const Specification<TypeParam> specification(length);
        const std::vector<TypeParam> source(static_cast<std::size_t>(length), 1);
        const auto expected = transformed(source, specification.handle());
        std::vector<TypeParam> result(source.size());
        const auto transform = [&] {
            Dct4<TypeParam>::transform(source.data(), result.data(), specification.handle());
        };
        const std::size_t bytes = this->ofTransform(length);
        ASSERT_TRUE(fitsStack(bytes, transform)) << length;
        EXPECT_EQ(result, expected) << length;
        if (bytes == transformStack) {
            EXPECT_TRUE(fitsSmallestThread(transform)) << length;
        }
    }
}

TYPED_TEST(Stack, OfPlanningIsWhatIsPromised) {
    using Calls = Dct4<TypeParam>;
    for (const int length : lengths()) {
        const Specification<TypeParam> specification(length);   // everything is bound from here on
        typename Calls::Spec* spec = nullptr;
        int size = 0;
        ASSERT_TRUE(fitsStack(planningStack, [&] {
            Calls::getSize(length, &size);
            Calls::init(&spec, length, specification.block());
        })) << length;
        EXPECT_EQ(spec, specification.handle());
        ASSERT_TRUE(fitsStack(planningStack, [&] {
            if (Calls::initAlloc(&spec, length) == kfmOk) Calls::free(spec);
        })) << length;
    }
}

}   // namespace
}   // namespace kfm::tests
