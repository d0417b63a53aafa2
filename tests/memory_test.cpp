// What a call reads and writes, and what it does with numbers at the edge of the element type.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "support/buffer.h"
#include "support/fault.h"
#include "support/first_write.h"
#include "support/oracle.h"

namespace kfm::tests {
namespace {

class Memory : public testing::TestWithParam<Transform> {
protected:
    void SetUp() override {
        Random random(testSeed());
        source_ = encode(randomSignal(GetParam(), random), GetParam());
    }

    Bytes source_;
};

struct Placement {
    Flush source, destination;
    std::size_t sourceOffset, destinationOffset;
};

// Both blocks flush with a guard page, then one of them off by one address so that the other is
// still flush when an unaligned path runs.
constexpr Placement placements[] = {
    {Flush::start, Flush::start, 0, 0}, {Flush::end, Flush::end, 0, 0},
    {Flush::start, Flush::end, 0, 0},   {Flush::end, Flush::start, 0, 0},
    {Flush::start, Flush::start, 0, 1}, {Flush::start, Flush::start, 1, 0},
    {Flush::end, Flush::end, 0, 1},     {Flush::end, Flush::end, 1, 0},
};

TEST_P(Memory, OnlyTheTwoArraysAreTouched) {
    const Transform& transform = GetParam();
    const Bytes expected = run(transform, source_, kfmScaleNone);
    for (const Placement& placement : placements) {
        SCOPED_TRACE(&placement - placements);
        const std::size_t step = transform.addressStep();
        GuardedBuffer from(transform.readBytes(), placement.source, placement.sourceOffset * step);
        GuardedBuffer to(transform.destinationBytes(), placement.destination,
                         placement.destinationOffset * step);
        std::memcpy(from.data(), source_.data(), from.size());
        ASSERT_EQ(call(transform, from.data(), to.data(), kfmScaleNone), kfmOk);
        EXPECT_EQ(std::memcmp(to.data(), expected.data(), expected.size()), 0);
        EXPECT_EQ(std::memcmp(from.data(), source_.data(), from.size()), 0);
        EXPECT_TRUE(from.canariesIntact());
        EXPECT_TRUE(to.canariesIntact());
    }
}

// So the arrays may overlap in any way: once the first output is written, nothing that the source
// holds matters any more.
TEST_P(Memory, TheWholeSourceIsReadBeforeTheFirstWrite) {
    const Transform& transform = GetParam();
    const Bytes expected = run(transform, source_, kfmScaleNone);
    for (std::size_t offset : {std::size_t{0}, transform.realBytes()}) {
        GuardedBuffer from(source_.size(), Flush::start, offset);
        GuardedBuffer to(expected.size(), Flush::start, offset);
        std::memcpy(from.data(), source_.data(), from.size());
        const bool written = atFirstWrite(
            to, [&] { std::memset(from.data(), 0xff, from.size()); },
            [&] { call(transform, from.data(), to.data(), kfmScaleNone); });
        EXPECT_TRUE(written);
        EXPECT_EQ(std::memcmp(to.data(), expected.data(), expected.size()), 0)
            << "offset " << offset;
    }
}

// Every element is written: none is left as it is because it looks right already.
TEST_P(Memory, WhatTheDestinationHeldDoesNotMatter) {
    const Transform& transform = GetParam();
    Random random(testSeed());
    Signal signal = randomSignal(transform, random);
    signal[1] = -0.0;   // in place, where a zero of a spectrum may have to be written
    const Bytes source = encode(signal, transform);
    for (std::size_t offset : {std::size_t{0}, transform.realBytes()}) {
        GuardedBuffer from(source.size());
        GuardedBuffer to(std::max(source.size(), transform.destinationBytes()), Flush::start,
                         offset);
        for (int flag : allFlags) {
            const Bytes expected = run(transform, source, flag);
            for (double value : {0.0, -0.0, std::numeric_limits<double>::quiet_NaN()})
                for (std::byte* start : {from.data(), to.data()}) {
                    const Signal held(to.size() / transform.realBytes(), value);
                    std::memcpy(to.data(), encode(held, transform).data(), to.size());
                    std::memcpy(start, source.data(), source.size());
                    call(transform, start, to.data(), flag);
                    ASSERT_EQ(std::memcmp(to.data(), expected.data(), expected.size()), 0)
                        << (start == to.data() ? "in place" : "apart") << " over " << value
                        << ", flag " << flag << ", offset " << offset;
                }
        }
        EXPECT_TRUE(to.canariesIntact());
    }
}

// A value that is no number reaches each output that depends on it.
TEST_P(Memory, NonFiniteInputReachesItsOutputs) {
    const Transform& transform = GetParam();
    Random random(testSeed());
    const Signal plain = randomSignal(transform, random);
    for (std::size_t at : positions(transform)) {
        const auto weights = definition(transform, impulse(plain.size(), at));
        for (double value : {std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL}) {
            Signal signal = plain;
            signal[at] = value;
            const Signal output = run(transform, signal, kfmScaleBySqrtN);
            for (std::size_t k = 0; k < output.size(); ++k)
                ASSERT_FALSE(std::isfinite(output[k]) && quad::abs(weights[k]) > 1e-18)
                    << value << " at " << at << " is lost in output " << k;
        }
    }
}

TEST_P(Memory, DenormalsAreNotFlushed) {
    const Transform& transform = GetParam();
    const int smallest = transform.element->doublePrecision ? -1074 : -149;
    Random random(testSeed());
    Signal signal = randomSignal(transform, random);
    for (double& value : signal) value = std::ldexp(std::floor(std::ldexp(value, 16)), smallest);
    const auto expected = definition(transform, signal);
    const Signal output = run(transform, signal, kfmScaleNone);
    for (std::size_t i = 0; i < output.size(); ++i) {
        const Quad units = (output[i] - expected[i]) / std::ldexp(1.0, smallest);
        ASSERT_LE(std::abs(static_cast<double>(units)), 2 * transform.length) << "output " << i;
    }
}

KFM_FOR_EVERY_FIXED_TRANSFORM(Memory);

#ifdef __i386__

// Calls with the stack pointer `shift` bytes below where the current convention of Linux wants it,
// and a null work buffer, which functions without one do not look at.
__attribute__((naked, noinline)) KfmStatus callWithShiftedStack(void (*)(), const void*, void*, int,
                                                                int) {
    asm("push %ebp\n\t"
        "mov %esp, %ebp\n\t"
        "and $-16, %esp\n\t"
        "sub 24(%ebp), %esp\n\t"   // with four arguments: aligned at the call
        "push $0\n\t"
        "push 20(%ebp)\n\t"
        "push 16(%ebp)\n\t"
        "push 12(%ebp)\n\t"
        "call *8(%ebp)\n\t"
        "leave\n\t"
        "ret");
}

TEST_P(Memory, CallersMayAlignTheStackToFourBytes) {
    const Transform& transform = GetParam();
    const Bytes expected = run(transform, source_, kfmScaleBySqrtN);
    for (std::size_t offset : {0, 4})
        for (int shift : {0, 4, 8, 12}) {
            GuardedBuffer from(source_.size(), Flush::start, offset);
            GuardedBuffer to(expected.size());
            std::memcpy(from.data(), source_.data(), source_.size());
            ASSERT_TRUE(survives([&] {
                callWithShiftedStack(transform.function->address, from.data(), to.data(),
                                     kfmScaleBySqrtN, shift);
            })) << "source offset "
                << offset << ", stack shifted by " << shift;
            EXPECT_EQ(std::memcmp(to.data(), expected.data(), expected.size()), 0);
        }
}

#endif

}   // namespace
}   // namespace kfm::tests
