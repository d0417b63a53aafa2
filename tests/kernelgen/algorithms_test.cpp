// Every building block against the definition, in binary128, and what the blocks refuse.
#include "kernelgen/algorithms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "kernelgen/evaluate.h"
#include "kernelgen/report.h"

using namespace kfm::kernelgen;

namespace {

using Wide = Constant::Wide;

std::vector<Plan> plansOfEveryKind() {
    // clang-format off
    return {2, 3, 4, 5, 7, 8, 11, 13, 16, 32, 64, factored5(), pfa(2, 3), pfa(3, 4), pfa(4, 3),
            pfa(8, 5), pfa(pfa(2, 3), 7), ct(3, 3), ct(5, 5), ct(8, 3), ct(8, 5), ct(ct(3, 3), 3),
            rader(2), rader(4), rader(pfa(2, 3)), rader(pfa(4, 3)), rader(16), rader(pfa(2, 9 + 2)),
            rader(ct(8, 5)), rader(pfa(2, rader(pfa(2, 11))))};
    // clang-format on
}

// A fixed sequence without structure.
Wide sample(int i) { return Wide((i * 7919 + 104729) % 1009) / 512 - 1; }

class Algorithms : public testing::TestWithParam<Plan> {};

TEST_P(Algorithms, RealTransformIsTheDefinition) {
    const Plan& plan = GetParam();
    Graph g(1);
    std::vector<Ref> x(plan.n);
    std::vector<Wide> source(plan.n + 2);
    for (int i = 0; i < plan.n; ++i) x[i] = g.load(i), source[i] = sample(i);
    const HalfSpectrum spectrum = realDft(g, plan, x);
    ASSERT_EQ(spectrum.size(), plan.n / 2 + 1u);
    for (int k = 0; 2 * k <= plan.n; ++k) {
        if (!spectrum[k].re.isZero()) g.store(2 * k, -1, spectrum[k].re);
        if (!spectrum[k].im.isZero()) g.store(2 * k + 1, -1, spectrum[k].im);
    }
    const std::vector<Wide> y = evaluate<Wide>(g, source);
    for (long k = 0; 2 * k <= plan.n; ++k) {
        Wide re = 0, im = 0;
        for (long i = 0; i < plan.n; ++i) {
            re += source[i] * Constant::cosTurn(i * k, plan.n).value();
            im -= source[i] * Constant::sinTurn(i * k, plan.n).value();
        }
        EXPECT_NEAR(double(y[2 * k] - re), 0, 1e-24) << plan.text() << " bin " << k;
        EXPECT_NEAR(double(y[2 * k + 1] - im), 0, 1e-24) << plan.text() << " bin " << k;
    }
}

// The synthesis of the analysis of an impulse is a cosine kernel: its value is known.
TEST_P(Algorithms, SynthesisIsTheTranspose) {
    const Plan& plan = GetParam();
    const int n = plan.n;
    Graph g(1);
    std::vector<Complex> values(n / 2 + 1);
    std::vector<Wide> source(n + 2);
    std::iota(source.begin(), source.end(), 1);
    for (int k = 0; 2 * k <= n; ++k) {
        values[k].re = g.load(2 * k);
        if (k > 0 && 2 * k < n) values[k].im = g.load(2 * k + 1);
    }
    const std::vector<Ref> y = realSynthesis(g, plan, values);
    for (int j = 0; j < n; ++j) g.store(j, -1, y[j]);
    const std::vector<Wide> result = evaluate<Wide>(g, source);
    for (long j = 0; j < n; ++j) {
        Wide sum = 0;
        for (long k = 0; 2 * k <= n; ++k) {
            sum += source[2 * k] * Constant::cosTurn(j * k, n).value();
            if (k > 0 && 2 * k < n) sum -= source[2 * k + 1] * Constant::sinTurn(j * k, n).value();
        }
        EXPECT_NEAR(double(result[j] - sum), 0, 1e-23) << plan.text() << " sample " << j;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, Algorithms, testing::ValuesIn(plansOfEveryKind()));

TEST(Plans, RefuseWhatTheirAlgorithmCannotDo) {
    EXPECT_THROW(Plan(9), std::invalid_argument);
    EXPECT_THROW(pfa(2, 4), std::invalid_argument);
    EXPECT_THROW(rader(8), std::invalid_argument);
    EXPECT_THROW(paddedRader(47, 16), std::invalid_argument);
    EXPECT_THROW(ct(5, 1), std::invalid_argument);
    try {
        pfa(6 + 1, ct(7, 3));
        FAIL();
    } catch (const std::invalid_argument& error) {
        EXPECT_NE(std::string(error.what()).find("147"), std::string::npos) << error.what();
    }
}

TEST(Plans, RaderOrdersGoThroughEveryResidue) {
    for (const Plan& plan : {rader(2), rader(4), rader(pfa(4, 3)), rader(pfa(4, 3), 7), rader(16),
                             rader(pfa(2, 11), 19), rader(ct(8, 5)), rader(ct(8, 5), 35)}) {
        const RaderOrder order(plan);
        const int p = plan.n;
        std::vector<int> input = order.input, output = order.output;
        for (int m = 0; m < p - 1; ++m) EXPECT_EQ(input[m] * output[m] % p, 1);
        std::ranges::sort(input);
        std::ranges::sort(output);
        EXPECT_EQ(input, output);
        for (int i = 0; i < p - 1; ++i) EXPECT_EQ(input[i], i + 1);
    }
    EXPECT_THROW(rader(pfa(4, 3), 3), std::invalid_argument);
    EXPECT_THROW(rader(pfa(4, 3), 13), std::invalid_argument);
}

}   // namespace
