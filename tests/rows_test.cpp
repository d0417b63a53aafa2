// Rows: the bits of the single calls, whatever the strides, distances, alignment and number of rows;
// and not a byte beside them touched.
#include <dlfcn.h>

#include <utility>
#include <vector>

#include "kfmrows.h"
#include "support/fault.h"
#include "support/row_arrays.h"
#include "support/signal.h"
#include "support/small_stack.h"

namespace kfm::tests {
namespace {

using RowsFunction = KfmStatus(const void*, Offset, Offset, void*, Offset, Offset, int, Offset, int,
                               void*);

RowsFunction* rowsFunction(const Transform& generic) {
    static void* const library = dlopen(KFM_ROWS_NAME, RTLD_NOW);
    const std::string name = registry::rowsName(*generic.family, *generic.element);
    return reinterpret_cast<RowsFunction*>(dlsym(library, name.c_str()));
}

class Rows : public testing::TestWithParam<Transform> {
protected:
    const Transform& family() const { return GetParam(); }
    std::size_t elementBytes() const { return family().element->bytes; }
    int first() const { return family().family->first; }
    int last() const { return family().family->last; }

    KfmStatus call(const Side& src, const Side& dst, int length, Offset rows, int flag) const {
        const Spacing from = src.spacing(), to = dst.spacing();
        return call(src.origin(), from, dst.origin(), to, length, rows, flag);
    }
    // A family without a buffer ignores the last argument.
    KfmStatus call(const void* src, Spacing from, void* dst, Spacing to, int length, Offset rows,
                   int flag) const {
        KfmStatus status = crashed;
        EXPECT_TRUE(survives([&] {
            status = rowsFunction(family())(src, from.stride, from.distance, dst, to.stride,
                                            to.distance, length, rows, flag, nullptr);
        })) << "crashed: length "
            << length << ", " << rows << " rows, " << from << " to " << to;
        return status;
    }
    const Transform& single(int length) const {
        return *findTransform(family().family->name, length, family().element->suffix);
    }

    // Of source and destination.
    std::pair<int, int> elements(const Transform& one) const {
        return {int(one.sourceBytes() / elementBytes()),
                int(one.destinationBytes() / elementBytes())};
    }

    // One call beside single calls on the same rows.
    void compare(const Transform& one, int length, Offset rows, Spacing from, Spacing to, int flag,
                 Flush flush, int offset, Random& random) const {
        const auto [in, out] = elements(one);
        Side src(in, rows, from, elementBytes(), flush, offset);
        const Side dst(out, rows, to, elementBytes(), flush, 3 * offset % 5);
        const Side expected(out, rows, to, elementBytes(), flush, 3 * offset % 5);
        for (Offset row = 0; row < rows; ++row) {
            const Bytes values = encode(randomSignal(one, random), one);
            src.put(row, values);
            expected.put(row, run(one, values, flag));
        }
        src.memory().makeWritable(false);
        ASSERT_EQ(call(src, dst, length, rows, flag), kfmOk);
        ASSERT_EQ(dst.all(), expected.all())
            << one << ", " << rows << " rows, flag " << flag << ": " << from << " to " << to;
        ASSERT_TRUE(dst.intact()) << one << ": " << from << " to " << to;
    }
};

TEST_P(Rows, GiveTheBitsOfSingleCalls) {
    Random random(testSeed());
    int turn = 0;
    for (int length = first(); length <= last(); ++length) {
        const Transform& one = single(length);
        const auto [in, out] = elements(one);
        const int ways = one.length > 64 ? 3 : spacingCount;
        for (int from = 0; from < spacingCount; from += spacingCount / ways)
            for (int to = 0; to < spacingCount; to += spacingCount / ways) {
                constexpr Offset counts[] = {1, 2, 3, 4, 5, 7, 8, 9, 11, 16, 19};
                const Offset rows = one.length > 64 ? 2 : counts[turn % std::size(counts)];
                const int flag = allFlags[turn % allFlags.size()];
                compare(one, length, rows, spacings(in, rows)[from], spacings(out, rows)[to], flag,
                        turn % 2 ? Flush::end : Flush::start, turn % 5, random);
                if (HasFatalFailure()) return;
                ++turn;
            }
    }
}

// Calls that are too large for the nearest caches go other ways, which end in a group that is not full.
TEST_P(Rows, GiveTheBitsOfSingleCallsBeyondTheCaches) {
    constexpr Offset bytes = 200 << 10;
    Random random(testSeed());
    for (int length = first(); length <= last(); length += 1 + length / 8) {
        const Transform& one = single(length);
        if (one.length > 64) break;
        const auto [in, out] = elements(one);
        const Offset rows = bytes / Offset((in + out) * elementBytes()) + length % 7;
        compare(one, length, rows, {1, in}, {1, out}, allFlags[length % allFlags.size()],
                Flush::end, length % 5, random);
        if (HasFatalFailure()) return;
    }
}

TEST_P(Rows, WorkInPlace) {
    Random random(testSeed());
    int turn = 0;
    for (int length = first(); length <= last(); ++length) {
        const Transform& one = single(length);
        const auto [in, out] = elements(one);
        const int most = std::max(in, out);
        for (const Offset rows : {1, 3, 8, 13})
            for (const Spacing& spacing : spacings(most, rows)) {
                const int flag = allFlags[++turn % allFlags.size()];
                const Side data(most, rows, spacing, elementBytes(), Flush::end);
                const Side expected(most, rows, spacing, elementBytes(), Flush::end);
                for (Offset row = 0; row < rows; ++row) {
                    Bytes values = encode(randomSignal(one, random), one);
                    Bytes results = run(one, values, flag);
                    const std::size_t written = std::min(values.size(), results.size());
                    results.insert(results.end(), values.begin() + written, values.end());
                    const Bytes rest(most * elementBytes(), std::byte{0x5a});
                    for (Bytes* each : {&values, &results})
                        each->insert(each->end(), rest.begin() + each->size(), rest.end());
                    data.put(row, values);
                    expected.put(row, results);
                }
                ASSERT_EQ(call(data, data, length, rows, flag), kfmOk);
                ASSERT_EQ(data.all(), expected.all())
                    << one << ", " << rows << " rows: " << spacing;
                if (one.length > 64) break;
            }
    }
}

TEST_P(Rows, RefuseInTheOrderOfTheChecks) {
    double number[4] = {1, 2, 3, 4};
    const Spacing none = {0, 0};
    const int length = first();
    for (const int bad : {first() - 1, last() + 1, -1, 1 << 30})
        EXPECT_EQ(call(nullptr, none, nullptr, none, bad, -1, 0), kfmErrSize) << bad;
    EXPECT_EQ(call(nullptr, none, nullptr, none, length, -1, 0), kfmErrSize);
    EXPECT_EQ(call(nullptr, none, number, none, length, 0, 0), kfmErrNullPtr);
    EXPECT_EQ(call(number, none, nullptr, none, length, 0, 0), kfmErrNullPtr);
    for (const int flag : {0, 3, 16, -1})
        EXPECT_EQ(call(number, none, number, none, length, 0, flag), kfmErrFlag) << flag;
    for (const int flag : allFlags)
        EXPECT_EQ(call(number, none, number, none, length, 0, flag), kfmOk);
    EXPECT_EQ(number[0] + 2 * number[1] + 4 * number[2] + 8 * number[3], 49);
}

TEST_P(Rows, FitTheStackTheyAreSaidToTake) {
    for (int length = first(); length <= last(); ++length) {
        const Transform& one = single(length);
        const std::size_t bytes = 5 * (one.length + 2) * elementBytes();
        const Bytes source(bytes);
        Bytes destination(bytes);
        KfmStatus status = crashed;
        // Loaded before: what the loader does at a first call is not the function's.
        RowsFunction* const function = rowsFunction(family());
        EXPECT_TRUE(fitsStack(32 << 10, [&] {
            status = function(source.data(), 5, 1, destination.data(), 5, 1, length, 5,
                              kfmScaleNone, nullptr);
        })) << one;
        EXPECT_EQ(status, kfmOk);
    }
}

KFM_FOR_EVERY_GENERIC_TRANSFORM(Rows);

}   // namespace
}   // namespace kfm::tests
