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

#ifdef __aarch64__

// d8 to d15 belong to the caller.
using CallersRegisters = std::array<std::uint64_t, 8>;

// Calls with these in the caller's registers, and a null work buffer; they are then what the
// function left.
void callWith(CallersRegisters& registers, void (*function)(), const void* source,
              void* destination) {
    register const void* x0 asm("x0") = source;
    register void* x1 asm("x1") = destination;
    register long x2 asm("x2") = kfmScaleBySqrtN;
    register void* x3 asm("x3") = nullptr;
    asm volatile("ldp d8, d9, [%[registers]]\n\t"
                 "ldp d10, d11, [%[registers], #16]\n\t"
                 "ldp d12, d13, [%[registers], #32]\n\t"
                 "ldp d14, d15, [%[registers], #48]\n\t"
                 "blr %[function]\n\t"
                 "stp d8, d9, [%[registers]]\n\t"
                 "stp d10, d11, [%[registers], #16]\n\t"
                 "stp d12, d13, [%[registers], #32]\n\t"
                 "stp d14, d15, [%[registers], #48]"
                 : "+r"(x0), "+r"(x1), "+r"(x2), "+r"(x3)
                 : [function] "r"(function), [registers] "r"(registers.data())
                 : "x4", "x5", "x6", "x7", "x8", "x9", "x10", "x11", "x12", "x13", "x14", "x15",
                   "x16", "x17", "x18", "x30", "v0", "v1", "v2", "v3", "v4", "v5", "v6", "v7", "v8",
                   "v9", "v10", "v11", "v12", "v13", "v14", "v15", "v16", "v17", "v18", "v19",
                   "v20", "v21", "v22", "v23", "v24", "v25", "v26", "v27", "v28", "v29", "v30",
                   "v31", "cc", "memory");
}

TEST_P(Memory, CallersRegistersAreKept) {
    const Bytes expected = run(GetParam(), source_, kfmScaleBySqrtN);
    Bytes output(expected.size());
    CallersRegisters registers;
    for (std::size_t i = 0; i < registers.size(); ++i) registers[i] = 0x0123456789abcdef * (i + 1);
    const CallersRegisters before = registers;
    callWith(registers, GetParam().function->address, source_.data(), output.data());
    EXPECT_EQ(registers, before);
    EXPECT_EQ(output, expected);
}

#endif

}   // namespace
}   // namespace kfm::tests
