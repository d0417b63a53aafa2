// What only the Walsh-Hadamard transform has: a work buffer, borrowed or allocated, and results
// that are known to the last bit.
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>

#include "support/allocator.h"
#include "support/arguments.h"
#include "support/buffer.h"
#include "support/oracle.h"

namespace kfm::tests {
namespace {

constexpr int firstWithBuffer = 8;

int bufferBytes(const Transform& transform) {
    int bytes = -1;
    const auto query =
        transform.element->doublePrecision ? kfmgWHTGetBufferSize_64f : kfmgWHTGetBufferSize_32f;
    EXPECT_EQ(query(transform.function->length, &bytes), kfmOk);
    return bytes;
}

// The fixed function, or the generic entry for its order, with a buffer.
KfmStatus callWithBuffer(const Transform& transform, const void* source, void* destination,
                         int flag, void* buffer, bool generic = false) {
    return generic ? call(genericOf(transform), source, destination, transform.function->length,
                          flag, buffer)
                   : call(transform, source, destination, flag, buffer);
}

class Wht : public testing::TestWithParam<Transform> {
protected:
    void SetUp() override {
        Random random(testSeed());
        source_ = encode(randomSignal(GetParam(), random), GetParam());
        order_ = GetParam().function->length;
        resetAllocatorRecord();
    }

    // What it records of calls that work in blocks of their own.
    AllocatorRecord blocks(int calls) const {
        if (order_ < firstWithBuffer) return {};
        return {calls, calls, bufferBytes(GetParam()), 0};
    }

    Bytes source_;
    int order_;
};

// Sums of neighbours first, then of pairs, and so on: the plainest loop gives the very bits, which
// are then multiplied once.
template <class Real>
void plainTransform(std::vector<Real>& x, Real factor) {
    for (std::size_t stride = 1; stride < x.size(); stride *= 2)
        for (std::size_t i = 0; i < x.size(); ++i) {
            if (i & stride) continue;
            const Real a = x[i], b = x[i + stride];
            x[i] = a + b;
            x[i + stride] = a - b;
        }
    for (Real& value : x) value *= factor;
}

template <class Real>
Bytes plainResult(const Bytes& source, double factor) {
    std::vector<Real> x(source.size() / sizeof(Real));
    std::memcpy(x.data(), source.data(), source.size());
    plainTransform(x, static_cast<Real>(factor));
    Bytes result(source.size());
    std::memcpy(result.data(), x.data(), result.size());
    return result;
}

TEST_P(Wht, HasTheBitsOfThePlainLoop) {
    for (int flag : allFlags) {
        const double factor = roundedScaleFactor(GetParam(), flag);
        EXPECT_EQ(run(GetParam(), source_, flag), GetParam().element->doublePrecision
                                                      ? plainResult<double>(source_, factor)
                                                      : plainResult<float>(source_, factor))
            << "flag " << flag;
    }
}

TEST_P(Wht, IntegersStayExactByTheSignRule) {
    Random random(testSeed());
    Signal signal = randomSignal(GetParam(), random);
    // As large as the sums leave room for.
    const int bits = (GetParam().element->doublePrecision ? 53 : 24) - order_;
    for (double& value : signal) value = std::floor(std::ldexp(value, bits));
    const std::vector<Quad> expected = definition(GetParam(), signal);
    for (int flag : {kfmScaleNone, kfmScaleFwdByN, kfmScaleInvByN}) {
        const Signal output = run(GetParam(), signal, flag);
        for (std::size_t k = 0; k < output.size(); ++k)
            ASSERT_EQ(Quad(output[k]), expected[k] * scaleFactor(GetParam(), flag)) << k;
    }
    EXPECT_EQ(run(GetParam(), run(GetParam(), signal, kfmScaleNone), kfmScaleFwdByN), signal);
}

// The block is gone after the last store and not before, by whichever path.
TEST_P(Wht, WorksInABlockOfItsOwnUntilTheLastStore) {
    const auto bytes = source_.size();
    GuardedBuffer from(bytes + 16), to(bytes + 16);
    const struct {
        std::byte *source, *destination;
    } places[] = {{from.data(), to.data()},     {from.data() + 4, to.data()},
                  {from.data(), to.data() + 4}, {from.data() + 4, to.data() + 4},
                  {to.data(), to.data()},       {to.data() + 4, to.data() + 4}};
    for (int flag : allFlags) {
        const Bytes expected = run(GetParam(), source_, flag);
        for (const auto& [source, destination] : places)
            for (bool generic : {false, true}) {
                const auto finished = [&, output = destination] {
                    return std::memcmp(output, expected.data(), bytes) == 0;
                };
                std::memset(destination, 0xff, bytes);
                std::memcpy(source, source_.data(), bytes);
                bool early = false;
                resetAllocatorRecord([&] { early |= !finished(); });
                ASSERT_EQ(callWithBuffer(GetParam(), source, destination, flag, nullptr, generic),
                          kfmOk);
                EXPECT_TRUE(finished());
                EXPECT_FALSE(early) << "released before the last store";
                EXPECT_EQ(allocatorRecord(), blocks(1));
                resetAllocatorRecord();   // the watch on this call's values ends with them
            }
    }
}

TEST_P(Wht, AllocatesNothingForARefusedCall) {
    GuardedBuffer data(source_.size() + 16);
    for (int offset : {0, 4}) {
        std::byte* at = data.data() + offset;
        EXPECT_EQ(call(GetParam(), at, at, 3), kfmErrFlag);
        EXPECT_EQ(call(GetParam(), nullptr, at, kfmScaleNone), kfmErrNullPtr);
        EXPECT_EQ(call(GetParam(), at, nullptr, kfmScaleNone), kfmErrNullPtr);
    }
    EXPECT_EQ(allocatorRecord(), AllocatorRecord());
}

// The buffer touches a guard page at either end, and what it holds before the call does not matter.
TEST_P(Wht, WorksInTheCallersBufferAndNowhereElse) {
    const auto bytes = static_cast<std::size_t>(bufferBytes(GetParam()));
    const Bytes expected = run(GetParam(), source_, kfmScaleBySqrtN);
    resetAllocatorRecord();
    for (const bool generic : {false, true})
        for (const Flush flush : {Flush::start, Flush::end})
            for (const std::size_t offset : {0, 4}) {
                GuardedBuffer from(source_.size(), flush, offset), to(source_.size(), flush);
                GuardedBuffer buffer(bytes, flush);
                std::memset(buffer.data(), 0xff, buffer.size());
                std::memcpy(from.data(), source_.data(), source_.size());
                ASSERT_EQ(callWithBuffer(GetParam(), from.data(), to.data(), kfmScaleBySqrtN,
                                         buffer.data(), generic),
                          kfmOk);
                EXPECT_EQ(std::memcmp(to.data(), expected.data(), expected.size()), 0);
                EXPECT_EQ(std::memcmp(from.data(), source_.data(), source_.size()), 0);
                EXPECT_TRUE(from.canariesIntact() && to.canariesIntact());
                EXPECT_TRUE(buffer.canariesIntact());
            }
    EXPECT_EQ(allocatorRecord(), AllocatorRecord());
}

std::vector<Transform> orders(int first, int last) {
    std::vector<Transform> result;
    for (const Transform& transform : fixedTransforms())
        if (const int order = transform.function->length;
            transform.walshHadamard() && first <= order && order <= last)
            result.push_back(transform);
    return result;
}

INSTANTIATE_TEST_SUITE_P(, Wht, testing::ValuesIn(orders(1, 13)), caseName);

class WhtWithoutBuffer : public Wht {};

TEST_P(WhtWithoutBuffer, DoesNotLookAtTheArgument) {
    GuardedBuffer data(source_.size() + 16);
    const GuardedBuffer inaccessible(0, Flush::start);
    for (int offset : {0, 4})
        EXPECT_EQ(callWithBuffer(GetParam(), data.data() + offset, data.data(), kfmScaleNone,
                                 inaccessible.data() - 1),
                  kfmOk);
}

INSTANTIATE_TEST_SUITE_P(, WhtWithoutBuffer, testing::ValuesIn(orders(1, firstWithBuffer - 1)),
                         caseName);

TEST(WhtBufferSize, IsTheSignalAndFromThreePassesAChunk) {
    const struct {
        int order, single, dbl;
    } rows[] = {{1, 0, 0},        {7, 0, 0},         {8, 1024, 2048},    {9, 2048, 4096},
                {10, 4096, 8192}, {11, 8192, 18432}, {12, 18432, 34816}, {13, 34816, 73728}};
    for (const auto& [order, single, dbl] : rows) {
        int size = -1;
        EXPECT_EQ(kfmgWHTGetBufferSize_32f(order, &size), kfmOk);
        EXPECT_EQ(size, single) << order;
        EXPECT_EQ(kfmgWHTGetBufferSize_64f(order, &size), kfmOk);
        EXPECT_EQ(size, dbl) << order;
    }
}

TEST(WhtBufferSize, RefusesOtherOrdersAndWritesNothing) {
    std::vector<int> orders = {0, -1, INT_MIN, INT_MAX};
    for (int order = 1; order <= 13; ++order)
        for (int other : oneBitFrom(order))
            if (other < 1 || other > 13) orders.push_back(other);
    for (const auto query : {kfmgWHTGetBufferSize_32f, kfmgWHTGetBufferSize_64f})
        for (int order : orders) {
            int size = 4711;
            ASSERT_EQ(query(order, &size), kfmErrSize) << order;
            EXPECT_EQ(size, 4711);
            EXPECT_EQ(query(order, nullptr), kfmErrSize);
        }
}

#ifdef __LP64__

TEST(WhtBufferSize, TheOrderIsTheLowerHalfOfItsRegister) {
    using Query = KfmStatus (*)(long, int*);
    int size = -1;
    for (void (*const address)() : {reinterpret_cast<void (*)()>(kfmgWHTGetBufferSize_32f),
                                    reinterpret_cast<void (*)()>(kfmgWHTGetBufferSize_64f)})
        for (unsigned long upper : upperHalves)
            for (int order = 1; order <= 14; ++order)
                EXPECT_EQ(reinterpret_cast<Query>(address)(withUpperHalf(upper, order), &size),
                          order == 14 ? kfmErrSize : kfmOk);
}

#endif

}   // namespace
}   // namespace kfm::tests
