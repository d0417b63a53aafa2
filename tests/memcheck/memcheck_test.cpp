// Every function on arrays of the heap that are exactly as long as its signals, to be run by
// valgrind's memcheck. An access outside of them or to an element that is never read is an error,
// and so is an output that depends on memory nobody wrote. Memcheck prints where it happens.
#include <valgrind/memcheck.h>

#include <cstring>

#include "dct4/specification.h"
#include "simd/f32x4.h"
#include "support/signal.h"

namespace kfm::tests {
namespace {

// Bytes that start `offset` beyond a multiple of 64 and have not been written yet.
class HeapArray {
public:
    explicit HeapArray(std::size_t bytes, std::size_t offset = 0) : offset_(offset) {
        if (posix_memalign(&block_, 64, bytes + offset) != 0) throw std::bad_alloc();
        VALGRIND_MAKE_MEM_NOACCESS(block_, offset);
    }
    ~HeapArray() { std::free(block_); }
    HeapArray(const HeapArray&) = delete;
    HeapArray& operator=(const HeapArray&) = delete;

    std::byte* data() const { return static_cast<std::byte*>(block_) + offset_; }
    template <class T>
    T* as() const {
        return reinterpret_cast<T*>(data());
    }

private:
    void* block_;
    std::size_t offset_;
};

template <class Body>
unsigned long errorsOf(Body body) {
    const unsigned long before = VALGRIND_COUNT_ERRORS;
    body();
    return VALGRIND_COUNT_ERRORS - before;
}

// `transform` writes `bytes` bytes at `destination`, all of them, from what was written before.
template <class Body>
void expectClean(const std::byte* destination, std::size_t bytes, Body transform) {
    ASSERT_NE(RUNNING_ON_VALGRIND, 0u) << "to be run by valgrind";
    EXPECT_EQ(errorsOf([&] {
                  EXPECT_EQ(transform(), kfmOk);
                  VALGRIND_CHECK_MEM_IS_DEFINED(destination, bytes);
              }),
              0u);
}

// A vector load that begins inside a block is an error as well: nothing below could fail otherwise.
TEST(Memcheck, CountsEachByteTooMuch) {
    const HeapArray array(24);
    std::memset(array.data(), 0, 24);
    const auto load = [&](std::size_t at) {
        return errorsOf([&] {
            auto vector = simd::loadUnaligned<simd::f32x4>(array.as<float>() + at / 4);
            simd::pin(vector);
            asm volatile("" : : "m"(vector));
        });
    };
    EXPECT_EQ(load(0), 0u);
    EXPECT_EQ(load(16), 1u);
    VALGRIND_MAKE_MEM_NOACCESS(array.data() + 5, 1);
    EXPECT_EQ(load(0), 1u);
}

struct Placement {
    std::size_t source, destination;   // in steps from one served address to the next
    bool inPlace;
};
constexpr Placement placements[] = {
    {0, 0, false}, {0, 1, false}, {1, 0, false}, {0, 0, true}, {1, 1, true},
};

// call(source, destination) runs the fixed function, by whichever entry.
template <class Call>
void expectCleanEverywhere(const Transform& fixed, Call call) {
    Random random(testSeed());
    const Bytes signal = encode(randomSignal(fixed, random), fixed);
    const std::size_t step = fixed.addressStep(), real = fixed.realBytes();
    for (const Placement& placement : placements) {
        SCOPED_TRACE(fixed.name() + ", placement " + std::to_string(&placement - placements));
        const std::size_t room = placement.inPlace ? fixed.destinationBytes() : 0;
        const HeapArray source(std::max(signal.size(), room), placement.source * step);
        const HeapArray other(fixed.destinationBytes(), placement.destination * step);
        std::memcpy(source.data(), signal.data(), signal.size());
        for (std::size_t i = 0; i < fixed.sourceReals(); ++i) {
            if (fixed.reads(i)) continue;
            std::byte* at = source.data() + i * real;
            if (placement.inPlace) VALGRIND_MAKE_MEM_UNDEFINED(at, real);
            else VALGRIND_MAKE_MEM_NOACCESS(at, real);
        }
        std::byte* destination = placement.inPlace ? source.data() : other.data();
        expectClean(destination, fixed.destinationBytes(),
                    [&] { return call(source.data(), destination); });
    }
}

// No bytes: the function has no work buffer.
std::size_t bufferBytes(const Transform& fixed) {
    int bytes = 0;
    if (fixed.walshHadamard())
        (fixed.element->doublePrecision ? kfmgWHTGetBufferSize_64f
                                        : kfmgWHTGetBufferSize_32f)(fixed.function->length, &bytes);
    return static_cast<std::size_t>(bytes);
}

class FixedFunction : public testing::TestWithParam<Transform> {};

TEST_P(FixedFunction, StaysWithinItsArrays) {
    const Transform& fixed = GetParam();
    for (const int flag : allFlags) {
        SCOPED_TRACE("flag " + std::to_string(flag));
        expectCleanEverywhere(fixed, [&](const std::byte* source, std::byte* destination) {
            return call(fixed, source, destination, flag);
        });
    }
    if (bufferBytes(fixed) == 0) return;
    expectCleanEverywhere(fixed, [&](const std::byte* source, std::byte* destination) {
        const HeapArray buffer(bufferBytes(fixed));
        return call(fixed, source, destination, kfmScaleBySqrtN, buffer.data());
    });
}

KFM_FOR_EVERY_FIXED_TRANSFORM(FixedFunction);

class GenericFunction : public testing::TestWithParam<Transform> {};

TEST_P(GenericFunction, StaysWithinItsArrays) {
    const Transform& generic = GetParam();
    for (int length = generic.family->first; length <= generic.family->last; ++length)
        expectCleanEverywhere(*findTransform(generic.family->name, length, generic.element->suffix),
                              [&](const std::byte* source, std::byte* destination) {
                                  return call(generic, source, destination, length, kfmScaleNone);
                              });
}

KFM_FOR_EVERY_GENERIC_TRANSFORM(GenericFunction);

template <class Real>
class PlannedTransform : public testing::Test {};
TYPED_TEST_SUITE(PlannedTransform, Precisions);

template <class Real>
void expectCleanTransform(int length, const typename Dct4<Real>::Spec* spec) {
    const std::size_t bytes = static_cast<std::size_t>(length) * sizeof(Real);
    for (const Placement& placement : placements) {
        SCOPED_TRACE(std::to_string(length) + ", placement " +
                     std::to_string(&placement - placements));
        const HeapArray source(bytes, placement.source * sizeof(Real));
        const HeapArray other(bytes, placement.destination * sizeof(Real));
        std::fill_n(source.as<Real>(), length, Real(1));
        const HeapArray& destination = placement.inPlace ? source : other;
        expectClean(destination.data(), bytes, [&] {
            return Dct4<Real>::transform(source.as<Real>(), destination.as<Real>(), spec);
        });
    }
}

// Lengths of every form that a plan may have.
TYPED_TEST(PlannedTransform, StaysWithinItsBlockAndArrays) {
    using Calls = Dct4<TypeParam>;
    for (const int length : acceptedLengths(1 << 15)) {
        int size = 0;
        typename Calls::Spec* spec = nullptr;
        EXPECT_EQ(errorsOf([&] { Calls::getSize(length, &size); }), 0u) << length;
        const HeapArray block(static_cast<std::size_t>(size));
        EXPECT_EQ(errorsOf([&] { Calls::init(&spec, length, block.as<Kfm8u>()); }), 0u) << length;
        expectCleanTransform<TypeParam>(length, spec);

        EXPECT_EQ(errorsOf([&] { Calls::initAlloc(&spec, length); }), 0u) << length;
        expectCleanTransform<TypeParam>(length, spec);
        EXPECT_EQ(errorsOf([&] { Calls::free(spec); }), 0u) << length;
    }
}

// Behind all tests: no function keeps memory that it allocated.
class Leaks : public testing::Environment {
    void TearDown() override {
        [[maybe_unused]] unsigned long leaked = 0, dubious = 0, reachable = 0, suppressed = 0;
        VALGRIND_DO_LEAK_CHECK;
        VALGRIND_COUNT_LEAKS(leaked, dubious, reachable, suppressed);
        EXPECT_EQ(leaked, 0u) << "bytes lost";
    }
};
[[maybe_unused]] testing::Environment* const leaks = testing::AddGlobalTestEnvironment(new Leaks);

}   // namespace
}   // namespace kfm::tests
