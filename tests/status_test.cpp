// Which status answers which arguments, also when several are wrong at once, and that a refused
// call writes nothing; and the version record.
#include <climits>
#include <cstring>

#include "support/arguments.h"
#include "support/buffer.h"
#include "support/signal.h"

namespace kfm::tests {
namespace {

enum class Pointer { null, aligned, misaligned };
using enum Pointer;

constexpr int badFlags[] = {0, 3, 5, 6, 7, 9, 10, 12, 15, 16, -1, -8, INT_MIN, INT_MAX};

struct Arguments {
    Pointer source, destination;
    bool flagIsGood;
    KfmStatus status;
};

constexpr Arguments table[] = {
    {aligned, aligned, true, kfmOk},
    {aligned, misaligned, true, kfmOk},
    {misaligned, aligned, true, kfmOk},
    {misaligned, misaligned, true, kfmOk},
    {null, aligned, true, kfmErrNullPtr},
    {null, misaligned, true, kfmErrNullPtr},
    {aligned, null, true, kfmErrNullPtr},
    {misaligned, null, true, kfmErrNullPtr},
    {null, null, true, kfmErrNullPtr},
    {aligned, aligned, false, kfmErrFlag},
    {aligned, misaligned, false, kfmErrFlag},
    {misaligned, aligned, false, kfmErrFlag},
    {misaligned, misaligned, false, kfmErrFlag},
    {null, aligned, false, kfmErrNullPtr},
    {null, misaligned, false, kfmErrNullPtr},
    {aligned, null, false, kfmErrNullPtr},
    {misaligned, null, false, kfmErrNullPtr},
    {null, null, false, kfmErrNullPtr},
};

// Every row of the table with every flag of its kind through callWith(source, destination, flag).
template <class Call>
void checkTable(const Transform& transform, Call callWith,
                KfmStatus (*expected)(const Arguments&)) {
    GuardedBuffer source(transform.sourceBytes() + 16);
    std::memset(source.data(), 0, source.size());
    for (const Arguments& row : table) {
        const std::span<const int> flags =
            row.flagIsGood ? std::span<const int>(allFlags) : std::span<const int>(badFlags);
        for (int flag : flags) {
            GuardedBuffer destination(transform.destinationBytes() + 16);
            const auto at = [](Pointer kind, const GuardedBuffer& buffer) {
                return kind == null ? nullptr : buffer.data() + (kind == misaligned ? 8 : 0);
            };
            ASSERT_EQ(callWith(at(row.source, source), at(row.destination, destination), flag),
                      expected(row))
                << "row " << &row - table << ", flag " << flag;
            ASSERT_EQ(destination.untouched(), expected(row) != kfmOk);
        }
    }
}

class FixedStatus : public testing::TestWithParam<Transform> {};

TEST_P(FixedStatus, FollowsTheOrderOfChecks) {
    checkTable(
        GetParam(),
        [](auto source, auto destination, int flag) {
            return call(GetParam(), source, destination, flag);
        },
        [](const Arguments& row) { return row.status; });
}

TEST_P(FixedStatus, EveryBitOfTheFlagCounts) {
    GuardedBuffer source(GetParam().sourceBytes()), destination(GetParam().destinationBytes());
    GuardedBuffer elsewhere(GetParam().destinationBytes(), Flush::start, GetParam().realBytes());
    for (int good : allFlags)
        for (int flag : oneBitFrom(good))
            for (const GuardedBuffer* to : {&destination, &elsewhere})
                ASSERT_EQ(call(GetParam(), source.data(), to->data(), flag), kfmErrFlag) << flag;
    EXPECT_TRUE(destination.untouched() && elsewhere.untouched());
}

KFM_FOR_EVERY_FIXED_TRANSFORM(FixedStatus);

class GenericStatus : public testing::TestWithParam<Transform> {};

TEST_P(GenericStatus, GoodLengthLeavesTheChecksToTheFixedFunction) {
    for (int length : {GetParam().family->first, GetParam().family->last})
        checkTable(
            GetParam(),
            [length](auto source, auto destination, int flag) {
                return call(GetParam(), source, destination, length, flag);
            },
            [](const Arguments& row) { return row.status; });
}

TEST_P(GenericStatus, BadLengthComesFirst) {
    const registry::Family& family = *GetParam().family;
    for (int length : {family.first - 1, family.last + 1, 0, -1, -family.first, 2 * family.last + 1,
                       family.first + (1 << 16), INT_MIN, INT_MIN + family.first, INT_MAX})
        checkTable(
            GetParam(),
            [length](auto source, auto destination, int flag) {
                return call(GetParam(), source, destination, length, flag);
            },
            [](const Arguments&) -> KfmStatus { return kfmErrSize; });
}

TEST_P(GenericStatus, EveryBitOfTheArgumentsCounts) {
    const registry::Family& family = *GetParam().family;
    GuardedBuffer source(GetParam().sourceBytes()), destination(GetParam().destinationBytes());
    for (int length = family.first; length <= family.last; ++length) {
        for (int other : oneBitFrom(length)) {
            const bool good = family.first <= other && other <= family.last;
            ASSERT_EQ(call(GetParam(), nullptr, destination.data(), other, kfmScaleNone),
                      good ? kfmErrNullPtr : kfmErrSize)
                << other;
        }
        for (int good : allFlags)
            for (int flag : oneBitFrom(good))
                ASSERT_EQ(call(GetParam(), source.data(), destination.data(), length, flag),
                          kfmErrFlag)
                    << length << ", " << flag;
    }
    EXPECT_TRUE(destination.untouched());
}

KFM_FOR_EVERY_GENERIC_TRANSFORM(GenericStatus);

#ifdef __LP64__

TEST_P(FixedStatus, TheFlagIsTheLowerHalfOfItsRegister) {
    using Function = KfmStatus (*)(const void*, void*, long, void*);
    const auto function = reinterpret_cast<Function>(GetParam().function->address);
    GuardedBuffer source(GetParam().sourceBytes()), destination(GetParam().destinationBytes());
    for (unsigned long upper : upperHalves) {
        for (int flag : allFlags)
            ASSERT_EQ(function(source.data(), destination.data(), withUpperHalf(upper, flag),
                               nullptr),
                      kfmOk);
        ASSERT_EQ(function(source.data(), destination.data(), withUpperHalf(upper, 3), nullptr),
                  kfmErrFlag);
    }
}

TEST_P(GenericStatus, ArgumentsAreTheLowerHalvesOfTheirRegisters) {
    using Function = KfmStatus (*)(const void*, void*, long, long, void*);
    const auto function = reinterpret_cast<Function>(GetParam().function->address);
    const registry::Family& family = *GetParam().family;
    GuardedBuffer source(GetParam().sourceBytes()), destination(GetParam().destinationBytes());
    for (unsigned long upper : upperHalves) {
        const auto status = [&](int length, int flag) {
            return function(source.data(), destination.data(), withUpperHalf(upper, length),
                            withUpperHalf(upper, flag), nullptr);
        };
        for (int length = family.first; length <= family.last; ++length) {
            ASSERT_EQ(status(length, kfmScaleNone), kfmOk) << length;
            ASSERT_EQ(status(length, 3), kfmErrFlag) << length;
        }
        ASSERT_EQ(status(family.last + 1, kfmScaleNone), kfmErrSize);
    }
}

#endif

TEST(Version, NamesTheLibraryFile) {
    const KfmLibraryVersion* version = kfmgenGetLibVersion();
    EXPECT_EQ(version, kfmgenGetLibVersion());
    EXPECT_EQ(std::memcmp(version->targetCode, "w7\0\0", 4), 0);
    EXPECT_STREQ(version->libraryName, KFM_LIBRARY_NAME);
    const std::string numbers = std::to_string(version->versionMajor) + "." +
                                std::to_string(version->versionMinor) + " build " +
                                std::to_string(version->buildMajor) + ".";
    EXPECT_EQ(std::string(version->versionText).substr(0, numbers.size()), numbers);
    EXPECT_TRUE(std::string(version->libraryName).ends_with(".so." + numbers.substr(0, 3)));
    EXPECT_STRNE(version->buildDate, "");
}

}   // namespace
}   // namespace kfm::tests
