// The same bits by every road: each path through a function (aligned or not, in place, overlapping,
// by length argument, from several threads at once) must equal the aligned out-of-place call, and
// that one must equal the hash that was committed, whatever the target and the compiler.
#include <barrier>
#include <cstdio>
#include <cstring>
#include <map>
#include <thread>

#include "support/buffer.h"
#include "support/committed_table.h"
#include "support/signal.h"

namespace kfm::tests {
namespace {

constexpr std::size_t vectorBytes = 16;

class Identity : public testing::TestWithParam<Transform> {
protected:
    void SetUp() override {
        Random random(testSeed());
        source_ = encode(randomSignal(GetParam(), random), GetParam());
    }

    // Copies the source to `from`, transforms to `to` and compares with the plain result.
    testing::AssertionResult matches(std::byte* from, std::byte* to, int flag) {
        const auto [found, isNew] = expected_.try_emplace(flag);
        if (isNew) found->second = run(GetParam(), source_, flag);
        const Bytes& expected = found->second;
        std::memcpy(from, source_.data(), source_.size());
        const KfmStatus status = call(GetParam(), from, to, flag);
        if (status == kfmOk && std::memcmp(to, expected.data(), expected.size()) == 0)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "flag " << flag << ", status " << status;
    }

    Bytes source_;
    std::map<int, Bytes> expected_;   // by flag
};

TEST_P(Identity, AtEveryAlignment) {
    GuardedBuffer from(GetParam().sourceBytes() + vectorBytes);
    GuardedBuffer to(GetParam().destinationBytes() + vectorBytes);
    const std::size_t step = GetParam().addressStep();
    for (std::size_t i = 0; i < vectorBytes; i += step)
        for (std::size_t j = 0; j < vectorBytes; j += step)
            for (int flag : allFlags)
                ASSERT_TRUE(matches(from.data() + i, to.data() + j, flag))
                    << "source offset " << i << ", destination offset " << j;
}

TEST_P(Identity, InPlaceAtEveryAlignment) {
    const auto bytes = std::max(GetParam().sourceBytes(), GetParam().destinationBytes());
    GuardedBuffer both(bytes + vectorBytes);
    for (std::size_t i = 0; i < vectorBytes; i += GetParam().addressStep())
        for (int flag : allFlags)
            ASSERT_TRUE(matches(both.data() + i, both.data() + i, flag)) << "offset " << i;
}

// Every distance by single reals at which the arrays share memory, from a source that is aligned
// and from one that is not; in a long transform, every so many reals, an odd number.
TEST_P(Identity, WithArraysThatOverlapByAnyShift) {
    const std::size_t real = GetParam().realBytes(), sourceBytes = GetParam().sourceBytes(),
                      destinationBytes = GetParam().destinationBytes();
    const std::size_t step = real * (GetParam().sourceReals() / 256 | 1);
    const std::size_t before = (destinationBytes / vectorBytes + 1) * vectorBytes;
    GuardedBuffer both(before + vectorBytes + sourceBytes + destinationBytes);
    for (std::size_t offset : {std::size_t{0}, real}) {
        std::byte* from = both.data() + before + offset;
        for (std::size_t overlap = real; overlap < sourceBytes + destinationBytes; overlap += step)
            ASSERT_TRUE(matches(from, from + sourceBytes - overlap, kfmScaleNone))
                << "source offset " << offset << ", " << overlap << " bytes from its end";
    }
}

KFM_FOR_EVERY_FIXED_TRANSFORM(Identity);

class GenericEntry : public testing::TestWithParam<Transform> {};

TEST_P(GenericEntry, GivesTheBitsOfTheFixedFunction) {
    const Transform& generic = GetParam();
    Random random(testSeed());
    for (int length = generic.family->first; length <= generic.family->last; ++length) {
        const Transform* fixed =
            findTransform(generic.family->name, length, generic.element->suffix);
        ASSERT_NE(fixed, nullptr) << length;
        const Bytes source = encode(randomSignal(*fixed, random), *fixed);
        GuardedBuffer output(fixed->destinationBytes());
        for (int flag : allFlags) {
            const Bytes expected = run(*fixed, source, flag);
            ASSERT_EQ(call(generic, source.data(), output.data(), length, flag), kfmOk);
            ASSERT_EQ(std::memcmp(output.data(), expected.data(), expected.size()), 0)
                << "length " << length;
        }
    }
}

KFM_FOR_EVERY_GENERIC_TRANSFORM(GenericEntry);

// FNV-1a, 64 bits.
std::uint64_t hash(const Bytes& bytes, std::uint64_t state) {
    for (std::byte value : bytes)
        state = (state ^ std::to_integer<std::uint64_t>(value)) * 0x100000001b3u;
    return state;
}

class Hashes : public testing::TestWithParam<Transform> {
public:
    static CommittedTable& table() {
        static CommittedTable table(
            "hashes.txt",
            "# FNV-1a of the outputs of each function for fixed signals and all flags, the same\n"
            "# on every target. Made by the build target update-hashes.\n");
        return table;
    }
};

TEST_P(Hashes, MatchTheCommittedValue) {
    const Transform& transform = GetParam();
    std::uint64_t state = 0xcbf29ce484222325u;
    Random random(static_cast<std::uint64_t>(transform.length));
    for (int i = 0; i < 4; ++i) {
        const Bytes source = encode(randomSignal(transform, random), transform);
        for (int flag : allFlags) state = hash(run(transform, source, flag), state);
    }
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(state));
    if (table().updating()) table().record(transform.name(), text);
    EXPECT_EQ(table().expected(transform.name()), text);
}

KFM_FOR_EVERY_FIXED_TRANSFORM(Hashes);

TEST(HashTable, NamesEveryFunctionOnly) { EXPECT_TRUE(Hashes::table().namesEveryFunctionOnly()); }

// All threads are inside the same function, each with a signal of its own, so that anything they
// shared would show.
TEST(Threads, GiveTheBitsOfOneThread) {
    constexpr std::size_t count = 4;
    std::barrier meeting(count);
    const auto work = [&](std::size_t id) {
        Random random(testSeed() + id);
        for (const Transform& transform : fixedTransforms()) {
            const Bytes source = encode(randomSignal(transform, random), transform);
            const Bytes expected = run(transform, source, kfmScaleBySqrtN);
            GuardedBuffer output(expected.size());
            meeting.arrive_and_wait();
            int wrong = 0;
            for (int i = 0; i < 1000; ++i) {
                call(transform, source.data(), output.data(), kfmScaleBySqrtN);
                wrong += std::memcmp(output.data(), expected.data(), expected.size()) != 0;
            }
            EXPECT_EQ(wrong, 0) << transform;
        }
    };
    std::vector<std::thread> threads;
    for (std::size_t id = 0; id < count; ++id) threads.emplace_back(work, id);
    for (std::thread& thread : threads) thread.join();
}

}   // namespace
}   // namespace kfm::tests
