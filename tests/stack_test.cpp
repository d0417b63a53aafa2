// The stack that the functions of fixed length take, as the header tells it.
#include "support/buffer.h"
#include "support/signal.h"
#include "support/small_stack.h"

namespace kfm::tests {
namespace {

std::size_t promisedStack(const Transform& transform) {
    return (transform.walshHadamard() ? 4 : 8) * 1024;
}

class Stack : public testing::TestWithParam<Transform> {};

TEST_P(Stack, IsWhatIsPromised) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer's frames are larger";
#endif
    const Transform& transform = GetParam();
    GuardedBuffer from(transform.sourceBytes() + 8), to(transform.destinationBytes());
    for (const std::size_t offset : {0, 8}) {
        KfmStatus status = crashed;
        EXPECT_TRUE(fitsStack(promisedStack(transform), [&] {
            status = call(transform, from.data() + offset, to.data(), kfmScaleNone);
        }));
        EXPECT_EQ(status, kfmOk);
    }
}

KFM_FOR_EVERY_FIXED_TRANSFORM(Stack);

}   // namespace
}   // namespace kfm::tests
