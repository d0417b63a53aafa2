// The codelets of the DCT-IV against their definitions in extended precision, one by one and
// together, on arrays between guard pages.
#include <gtest/gtest.h>

#include <complex>
#include <cstring>
#include <random>

#include "support/buffer.h"
#include "support/dct4_walk.h"
#include "support/fault.h"

namespace kfm::tests {
namespace {

using Wide = long double;
using WideComplex = std::complex<Wide>;
using WideSignal = std::vector<Wide>;

constexpr double promisedUnits = 10;

WideComplex unitAngle(Wide x) { return {cosPi(x), sinPi(x)}; }

template <class Real>
std::vector<Real> randomSignal(std::size_t size) {
    static std::mt19937 random(4);
    std::vector<Real> signal(size);
    for (Real& value : signal)
        value = static_cast<Real>(static_cast<double>(random()) / 2147483648.0 - 1);
    return signal;
}

// sum of u[k] exp(-2 pi i kp/n) by halving.
std::vector<WideComplex> transformByHalves(const std::vector<WideComplex>& u) {
    const std::size_t n = u.size();
    if (n == 1) return u;
    std::vector<WideComplex> even(n / 2), odd(n / 2), result(n);
    for (std::size_t k = 0; k < n / 2; ++k) even[k] = u[2 * k], odd[k] = u[2 * k + 1];
    even = transformByHalves(even);
    odd = transformByHalves(odd);
    for (std::size_t p = 0; p < n / 2; ++p) {
        const WideComplex z = odd[p] * unitAngle(-2 * static_cast<Wide>(p) / n);
        result[p] = even[p] + z;
        result[p + n / 2] = even[p] - z;
    }
    return result;
}

// By the definition for short and odd lengths, else by a complex transform of half the length.
template <class Real>
WideSignal reference(const std::vector<Real>& x) {
    const std::size_t n = x.size();
    WideSignal y(n);
    if (n < 128 || n % 2) {
        std::vector<Wide> cosines(8 * n);
        for (std::size_t i = 0; i < 8 * n; ++i) cosines[i] = cosPi(static_cast<Wide>(i) / (4 * n));
        for (std::size_t k = 0; k < n; ++k)
            for (std::size_t i = 0; i < n; ++i)
                y[k] += x[i] * cosines[(2 * i + 1) * (2 * k + 1) % (8 * n)];
        return y;
    }
    std::vector<WideComplex> u(n / 2);
    for (std::size_t i = 0; i < n / 2; ++i)
        u[i] = WideComplex(x[2 * i], x[n - 1 - 2 * i]) * unitAngle(-Wide(4 * i + 1) / (4 * n));
    u = transformByHalves(u);
    for (std::size_t k = 0; k < n / 2; ++k) {
        const WideComplex z = u[k] * unitAngle(-static_cast<Wide>(k) / n);
        y[2 * k] = z.real();
        y[n - 1 - 2 * k] = -z.imag();
    }
    return y;
}

template <class Real>
double errorInUnits(const Real* actual, const WideSignal& expected) {
    Wide error = 0, largest = 0;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        error = std::max(error, std::abs(actual[i] - expected[i]));
        largest = std::max(largest, std::abs(expected[i]));
    }
    return static_cast<double>(std::ldexp(error / largest, sizeof(Real) == 4 ? 24 : 53));
}

// Random signals, then regular ones, on which errors add up where they can.
template <class Real>
std::vector<std::vector<Real>> signals(std::size_t n, int rounds) {
    std::vector<std::vector<Real>> result;
    for (int i = 0; i < rounds; ++i) result.push_back(randomSignal<Real>(n));
    for (const std::size_t at : {std::size_t(0), n / 2, n - 1}) {
        result.emplace_back(n);
        result.back()[at] = 1;
    }
    result.emplace_back(n, Real(1));
    result.emplace_back(n);
    for (std::size_t i = 0; i < n; ++i) result.back()[i] = i % 2 ? -1 : 1;
    return result;
}

// Runs `transform` on every signal: in place, and between arrays that touch guard pages at either
// end, whatever their alignment.
template <class Real>
void expectDefinition(std::size_t n, int rounds, auto&& transform) {
    const std::size_t bytes = n * sizeof(Real);
    double worst = 0;
    for (const std::vector<Real>& x : signals<Real>(n, rounds)) {
        const WideSignal expected = reference(x);
        std::vector<Real> first;
        for (const Flush side : {Flush::start, Flush::end})
            for (const bool inPlace : {false, true}) {
                GuardedBuffer src(bytes, side, sizeof(Real)), other(bytes, side);
                GuardedBuffer& dst = inPlace ? src : other;
                std::memcpy(src.data(), x.data(), bytes);
                auto* y = reinterpret_cast<Real*>(dst.data());
                ASSERT_TRUE(survives(
                    [&] { transform(reinterpret_cast<const Real*>(src.data()), y); }));
                ASSERT_TRUE(src.canariesIntact() && other.canariesIntact());
                if (first.empty()) first.assign(y, y + n);
                ASSERT_EQ(std::memcmp(y, first.data(), bytes), 0) << "bits depend on addresses";
                ASSERT_TRUE(inPlace || std::memcmp(src.data(), x.data(), bytes) == 0);
            }
        worst = std::max(worst, errorInUnits(first.data(), expected));
    }
    EXPECT_LE(worst, promisedUnits);
    testing::Test::RecordProperty("units" + std::to_string(n), std::to_string(worst));
    std::printf("%zu elements of %zu bytes: worst error %.2f units\n", n, sizeof(Real), worst);
}

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

// Every combination of the two stages, also those that no length asks for.
TYPED_TEST(Dct4Codelets, BothStagesAreTheDefinition) {
    for (int d = 4; d <= 32; d *= 2)
        for (int m = 8; m <= 64; m *= 2) {
            SCOPED_TRACE("d " + std::to_string(d) + ", m " + std::to_string(m));
            Dct4Walk<TypeParam> walk(d * m, d, {});
            expectDefinition<TypeParam>(d * m, 5, [&](auto* src, auto* dst) { walk.run(src, dst); });
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
    for (const int n : {33, 65, 129, 257, 513, 2049, 4097}) {
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
    std::vector<WideComplex> G(M);
    for (long p = 0; p < M; ++p)
        for (long k = 0; k < M; ++k)
            G[p] += u[k] * unitAngle(static_cast<Wide>(k * (4 * p + 1) % (4 * M)) / (2 * M));
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
        for (const int d : {4, 12, 32}) {
            const int len = m * d;
            const std::vector<TypeParam> x = randomSignal<TypeParam>(len);
            AlignedArray<TypeParam> w(len);
            withSize<2, 64>(m, [&]<int size>() {
                dct4::inputStage<TypeParam, size>(x.data(), w.data(), len, d);
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

// Blocks joined by a twiddle stage, in place and at the root, are one larger block.
TYPED_TEST(Dct4Codelets, TwiddleStagesJoinBlocks) {
    constexpr int L = dct4::groupSize, blockLength = 16, d = 12;
    for (int divisor = 2; divisor <= 32; divisor *= 2) {
        const int m = divisor * blockLength, step = L + 3;
        const std::vector<TypeParam> x = randomSignal<TypeParam>(m * step);
        const TypeParam* front = x.data();
        const TypeParam* back = x.data() + x.size() - 1;
        AlignedArray<TypeParam> rows(m * L), w(m * d), table(m);
        fillTwiddleTable(table, divisor, blockLength / 2);
        for (int s = 0; s < divisor; ++s)
            dct4::inputBlock<TypeParam, blockLength>(front + s * step, back - s * step,
                                                     divisor * step,
                                                     rows.data() + s * blockLength * L);
        withSize<2, 32>(divisor, [&]<int size>() {
            dct4::twiddleStageRoot<TypeParam, size>(rows.data(), table.data(), blockLength / 2,
                                                    w.data() + 8, d);
            dct4::twiddleStage<TypeParam, size>(rows.data(), table.data(), blockLength / 2);
        });
        for (int lane = 0; lane < L; ++lane) {
            std::vector<WideComplex> u;
            for (int k = 0; k < m / 2; ++k)
                u.emplace_back(front[k * step + lane], -back[-k * step - lane]);
            const std::vector<WideComplex> G = mirroredSums(u);
            WideSignal natural, mirrored;
            std::vector<TypeParam> inPlace, atRoot;
            for (int row = 0; row < m; ++row) {
                natural.push_back(row % 2 ? G[row / 2].imag() : G[row / 2].real());
                mirrored.push_back(rowOfWork(G, row));
                inPlace.push_back(rows[row * L + lane]);
                atRoot.push_back(w[8 + row * d + lane]);
            }
            ASSERT_LE(errorInUnits(inPlace.data(), natural), promisedUnits) << divisor;
            ASSERT_LE(errorInUnits(atRoot.data(), mirrored), promisedUnits) << divisor;
        }
    }
}

}   // namespace
}   // namespace kfm::tests
