// The codelets of the DCT-IV against their definitions in extended precision, one by one and
// together, on arrays between guard pages.
#include <gtest/gtest.h>

#include "support/dct4_definition.h"
#include "support/dct4_walk.h"

namespace kfm::tests {
namespace {

template <class Real>
class Dct4Codelets : public testing::Test {};
using Reals = testing::Types<float, double>;
TYPED_TEST_SUITE(Dct4Codelets, Reals);

TYPED_TEST(Dct4Codelets, FixedTransformsAreTheDefinition) {
    for (int n = 2; n <= 32; n *= 2)
        withSize<2, 32>(n, [&]<int size>() {
            expectDefinition<TypeParam>(n, 200, dct4::fixedTransform<TypeParam, size>);
        });
}

// The row lengths of the work buffer that go with m.
std::vector<int> rowLengths(int m) {
    if (m < 8) return {4, 12, 32};
    if (m == 64) return {32};
    return {m / 2, m};
}

TYPED_TEST(Dct4Codelets, BothStagesAreTheDefinition) {
    for (int m = 8; m <= 64; m *= 2)
        for (const int d : rowLengths(m)) {
            SCOPED_TRACE("d " + std::to_string(d) + ", m " + std::to_string(m));
            Dct4Walk<TypeParam> walk(d * m, d, {});
            expectDefinition<TypeParam>(d * m, 5,
                                        [&](auto* src, auto* dst) { walk.run(src, dst); });
        }
}

TYPED_TEST(Dct4Codelets, RecursionsAreTheDefinition) {
    const std::vector<std::vector<int>> chains = {{8}, {16}, {32}, {2, 4}, {32, 32}, {8, 2}};
    const std::vector<int> lengths = {4096, 8192, 32768, 8192, 65536, 4096};
    for (std::size_t i = 0; i < chains.size(); ++i) {
        SCOPED_TRACE(lengths[i]);
        Dct4Walk<TypeParam> walk(lengths[i], 32, chains[i]);
        expectDefinition<TypeParam>(lengths[i], 5,
                                    [&](auto* src, auto* dst) { walk.run(src, dst); });
    }
}

TYPED_TEST(Dct4Codelets, OddTransformsAreTheDefinition) {
    for (const int n : {33, 65, 129, 257, 513, 2049}) {
        AlignedArray<TypeParam> table(n), scratch(n);
        for (int j = 0; j < n; ++j)
            table[j] = static_cast<TypeParam>(cosPi((8 * j - n) / (4.0L * n)));
        expectDefinition<TypeParam>(n, n > 2000 ? 2 : 20, [&](const auto* src, auto* dst) {
            dct4::oddTransform(src, dst, n, table.data(), scratch.data());
        });
    }
}

// The sums G(p) of a sub-transform.
std::vector<WideComplex> mirroredSums(const std::vector<WideComplex>& u) {
    const long M = static_cast<long>(u.size());
    std::vector<WideComplex> G(M), angles;
    for (long i = 0; i < 4 * M; ++i) angles.push_back(unitAngle(static_cast<Wide>(i) / (2 * M)));
    for (long p = 0; p < M; ++p)
        for (long k = 0; k < M; ++k) G[p] += product(u[k], angles[k * (4 * p + 1) % (4 * M)]);
    return G;
}

// What belongs into row `row` of w where a stage of m = 2 G.size() rows has made the sums G.
Wide rowOfWork(const std::vector<WideComplex>& G, int row) {
    const int m = 2 * static_cast<int>(G.size());
    if (row % 4 < 2) return row % 2 ? G[row / 4].imag() : G[row / 4].real();
    const WideComplex& G2 = G[(2 * m - 2 - (row - row % 2)) / 4];
    return row % 2 ? -G2.imag() : G2.real();
}

TYPED_TEST(Dct4Codelets, InputStageFillsTheRowsOfWork) {
    for (int m = 2; m <= 64; m *= 2)
        for (const int d : rowLengths(m)) {
            const int len = m * d;
            const std::vector<TypeParam> x = randomSignal<TypeParam>(len);
            AlignedArray<TypeParam> w(len);
            withSize<2, 64>(m, [&]<int size>() {
                dct4::inputStage<TypeParam, size>(x.data(), w.data(), d);
            });
            for (int r = 0; r < d; ++r) {
                std::vector<WideComplex> u;
                for (int k = 0; k < m / 2; ++k)
                    u.emplace_back(x[2 * d * k + r], -x[len - 1 - 2 * d * k - r]);
                const std::vector<WideComplex> G = mirroredSums(u);
                WideSignal expected;
                std::vector<TypeParam> column;
                for (int row = 0; row < m; ++row) {
                    expected.push_back(rowOfWork(G, row));
                    column.push_back(w[row * d + r]);
                }
                ASSERT_LE(errorInUnits(column.data(), expected), promisedUnits)
                    << "m " << m << ", d " << d << ", column " << r;
            }
        }
}

// Blocks joined by a twiddle stage are one larger block, with half of it conjugated at the root.
TYPED_TEST(Dct4Codelets, TwiddleStagesJoinBlocks) {
    constexpr int d = dct4::rowLength, blockLength = 16;
    for (int divisor = 2; divisor <= 32; divisor *= 2) {
        const int m = divisor * blockLength, step = d + 3;
        const std::vector<TypeParam> x = randomSignal<TypeParam>(m * step);
        const TypeParam* front = x.data();
        const TypeParam* back = x.data() + x.size() - 1;
        AlignedArray<TypeParam> below(m * d), root(m * d), table(m);
        fillTwiddleTable(table, divisor, blockLength / 2);
        for (int s = 0; s < divisor; ++s)
            dct4::inputBlock<TypeParam, blockLength>(front + s * step, back - s * step,
                                                     divisor * step,
                                                     below.data() + s * blockLength * d);
        std::copy_n(below.data(), m * d, root.data());
        withSize<2, 32>(divisor, [&]<int size>() {
            dct4::twiddleStage<TypeParam, size>(below.data(), table.data(), blockLength / 2);
            dct4::twiddleStageRoot<TypeParam, size>(root.data(), table.data(), blockLength / 2);
        });
        for (int column = 0; column < d; ++column) {
            std::vector<WideComplex> u;
            for (int k = 0; k < m / 2; ++k)
                u.emplace_back(front[k * step + column], -back[-k * step - column]);
            const std::vector<WideComplex> G = mirroredSums(u);
            WideSignal natural, halfConjugated;
            std::vector<TypeParam> belowColumn, rootColumn;
            for (int row = 0; row < m; ++row) {
                const Wide part = row % 2 ? G[row / 2].imag() : G[row / 2].real();
                natural.push_back(part);
                halfConjugated.push_back(row % 2 && row >= m / 2 ? -part : part);
                belowColumn.push_back(below[row * d + column]);
                rootColumn.push_back(root[row * d + column]);
            }
            ASSERT_LE(errorInUnits(belowColumn.data(), natural), promisedUnits) << divisor;
            ASSERT_LE(errorInUnits(rootColumn.data(), halfConjugated), promisedUnits) << divisor;
        }
    }
}

}   // namespace
}   // namespace kfm::tests
