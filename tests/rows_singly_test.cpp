// Rows of the DCT-IV, and of the Walsh-Hadamard transform in a buffer of the caller's: one after the
// other, through copies where they are not contiguous.
#include "dct4/specification.h"
#include "kfmrows.h"
#include "support/row_arrays.h"
#include "support/small_stack.h"

namespace kfm::tests {
namespace {

template <class Real>
struct RowCalls;
#define KFM_ROW_CALLS(precision)                                          \
    template <>                                                           \
    struct RowCalls<Kfm##precision> {                                     \
        static constexpr auto dct4 = kfmrDCT4_##precision;                \
        static constexpr auto wht = kfmrWHT_##precision;                  \
        static constexpr auto whtOne = kfmgWHT_##precision;               \
        static constexpr auto whtSize = kfmrWHTGetBufferSize_##precision; \
    };
KFM_ROW_CALLS(32f)
KFM_ROW_CALLS(64f)
#undef KFM_ROW_CALLS

template <class Real>
class RowsSingly : public testing::Test {
protected:
    using Calls = RowCalls<Real>;

    static std::vector<Real> signal(int length, Offset row) {
        std::vector<Real> values(length);
        for (int k = 0; k < length; ++k) values[k] = Real((7 * k + 13 * row) % 32) - 16;
        return values;
    }
    static Bytes bytes(const std::vector<Real>& values) {
        const auto* first = reinterpret_cast<const std::byte*>(values.data());
        return Bytes(first, first + values.size() * sizeof(Real));
    }
    // Rows by `rows(src, spacing, dst, spacing, count)` beside one(values), in every pair of spacings.
    template <class Rows, class One>
    static void compare(int length, Rows rows, One one) {
        constexpr Offset count = 3;
        for (const Spacing& from : spacings(length, count))
            for (const Spacing& to : spacings(length, count)) {
                const Side src(length, count, from, sizeof(Real), Flush::end);
                const Side dst(length, count, to, sizeof(Real), Flush::end);
                const Side expected(length, count, to, sizeof(Real), Flush::end);
                for (Offset row = 0; row < count; ++row) {
                    std::vector<Real> values = signal(length, row);
                    src.put(row, bytes(values));
                    one(values.data());
                    expected.put(row, bytes(values));
                }
                ASSERT_EQ(rows(reinterpret_cast<const Real*>(src.origin()), from,
                               reinterpret_cast<Real*>(dst.origin()), to, count),
                          kfmOk);
                ASSERT_EQ(dst.all(), expected.all()) << length << ": " << from << " to " << to;
                ASSERT_TRUE(dst.intact());
            }
    }
};
TYPED_TEST_SUITE(RowsSingly, Precisions);

TYPED_TEST(RowsSingly, OfTheDct4GiveTheBitsOfSingleCalls) {
    using Real = TypeParam;
    for (const int length : {2, 4, 8, 16, 32, 33, 64, 129, 1024, 2048, 4096}) {
        typename Dct4<Real>::Spec* spec = nullptr;
        ASSERT_EQ(Dct4<Real>::initAlloc(&spec, length), kfmOk);
        this->compare(
            length,
            [&](const Real* src, Spacing from, Real* dst, Spacing to, Offset rows) {
                return RowCalls<Real>::dct4(src, from.stride, from.distance, dst, to.stride,
                                            to.distance, rows, spec);
            },
            [&](Real* values) { Dct4<Real>::transform(values, values, spec); });
        Dct4<Real>::free(spec);
    }
}

TYPED_TEST(RowsSingly, OfTheDct4RefuseInTheOrderOfTheChecks) {
    using Real = TypeParam;
    using Spec = typename Dct4<Real>::Spec;
    const auto call = RowCalls<Real>::dct4;
    Real number = 1;
    alignas(32) std::byte nothing[512] = {};
    const auto* bad = reinterpret_cast<const Spec*>(nothing);
    const Spec* none = nullptr;
    EXPECT_EQ(call(nullptr, 1, 1, nullptr, 1, 1, -1, none), kfmErrSize);
    EXPECT_EQ(call(&number, 1, 1, &number, 1, 1, 1, none), kfmErrNullPtr);
    EXPECT_EQ(call(nullptr, 1, 1, &number, 1, 1, 1, bad), kfmErrNullPtr);
    EXPECT_EQ(call(&number, 1, 1, nullptr, 1, 1, 1, bad), kfmErrNullPtr);
    EXPECT_EQ(call(&number, 1, 1, &number, 1, 1, 1, bad), kfmErrBadSpec);
    EXPECT_EQ(number, 1);
}

TYPED_TEST(RowsSingly, OfTheDct4FitTheStackTheyAreSaidToTake) {
    using Real = TypeParam;
    for (const int length : {32, 1024, 2048, 4096}) {
        typename Dct4<Real>::Spec* spec = nullptr;
        ASSERT_EQ(Dct4<Real>::initAlloc(&spec, length), kfmOk);
        std::vector<Real> values(2 * length);
        EXPECT_TRUE(fitsStack(32 << 10, [&] {
            RowCalls<Real>::dct4(values.data(), 2, 1, values.data(), 2, 1, 2, spec);
        })) << length;
        Dct4<Real>::free(spec);
    }
}

TYPED_TEST(RowsSingly, OfTheWhtTakeABufferOfTheSizeThatIsTold) {
    using Real = TypeParam;
    for (int order = 1; order <= 13; ++order) {
        int size = -1;
        ASSERT_EQ(RowCalls<Real>::whtSize(order, &size), kfmOk);
        ASSERT_EQ(size % 16, 0);
        GuardedBuffer buffer(size, Flush::end);
        auto* const block = reinterpret_cast<Kfm8u*>(buffer.data());
        this->compare(
            1 << order,
            [&](const Real* src, Spacing from, Real* dst, Spacing to, Offset rows) {
                return RowCalls<Real>::wht(src, from.stride, from.distance, dst, to.stride,
                                           to.distance, order, rows, kfmScaleBySqrtN, block);
            },
            [&](Real* values) {
                RowCalls<Real>::whtOne(values, values, order, kfmScaleBySqrtN, nullptr);
            });
        EXPECT_TRUE(buffer.canariesIntact());
    }
    int size = -1;
    for (const int order : {0, 14, -1})
        EXPECT_EQ(RowCalls<Real>::whtSize(order, &size), kfmErrSize);
    EXPECT_EQ(size, -1);
}

}   // namespace
}   // namespace kfm::tests
