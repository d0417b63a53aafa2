// The graphs of all complex kernels before emission, the constants that their factor trees imply,
// the committed operation counts, and the emitted text.
#include "dft/complex/complex_kernels.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "dft/complex/two_step.h"
#include "kernel_commands.h"
#include "kernelgen/evaluate.h"
#include "kfmgen.h"
#include "registry/functions.h"

using namespace kfm::kernelgen;
using namespace kfm::dft::complex;

namespace {

using Wide = Constant::Wide;

Graph kernelGraph(int n, bool single, bool inverse) {
    return single ? singleGraph(singlePrecisionRow(n), inverse)
                  : doubleGraph(doublePrecisionPlan(n), inverse);
}

class ComplexGraph : public testing::TestWithParam<std::tuple<int, bool, bool>> {};

TEST_P(ComplexGraph, IsTheDefinition) {
    const auto [n, single, inverse] = GetParam();
    std::vector<Wide> x(2 * n);
    for (int i = 0; i < 2 * n; ++i) x[i] = Wide((i * 7919 + 104729) % 1009) / 512 - 1;
    const std::vector<Wide> y = evaluate<Wide>(kernelGraph(n, single, inverse), x);
    for (long k = 0; k < n; ++k) {
        Wide re = 0, im = 0;
        for (long i = 0; i < n; ++i) {
            const Wide c = Constant::cosTurn(i * k, n).value();
            const Wide s = Constant::sinTurn(inverse ? i * k : -i * k, n).value();
            re += x[2 * i] * c - x[2 * i + 1] * s;
            im += x[2 * i] * s + x[2 * i + 1] * c;
        }
        EXPECT_NEAR(double(y[2 * k] - re), 0, 1e-24) << "output " << k;
        EXPECT_NEAR(double(y[2 * k + 1] - im), 0, 1e-24) << "output " << k;
    }
}

INSTANTIATE_TEST_SUITE_P(All, ComplexGraph,
                         testing::Combine(testing::Range(2, 65), testing::Bool(), testing::Bool()));

// Magnitudes of all lanes of all constants in use, rounded to single precision.
std::set<float> constantsOf(int n, bool single) {
    const Graph g = kernelGraph(n, single, false);
    std::set<float> result;
    for (const int index : g.liveNodes())
        if (const Node& node = g.nodes()[index]; node.op == Op::mul)
            for (const Constant& lane : g.constant(node.constant))
                result.insert(std::abs(static_cast<float>(lane.value())));
    return result;
}

float cosine(int k, int n) { return std::abs(static_cast<float>(Constant::cosTurn(k, n).value())); }

TEST(ComplexConstants, FollowFromTheFactorTree) {
    const auto has = [](int n, bool single, float value) {
        return constantsOf(n, single).contains(value);
    };
    EXPECT_TRUE(constantsOf(4, true).empty());
    EXPECT_TRUE(constantsOf(4, false).empty());
    // 7 and 11: a convolution in single precision, the roots themselves in double precision.
    for (const int p : {7, 11})
        for (int k = 1; k < p; ++k) {
            EXPECT_FALSE(has(p, true, cosine(k, p)));
            EXPECT_TRUE(has(p, false, cosine(k, p)));
        }
    EXPECT_TRUE(has(7, true, 1.0f / 6));
    EXPECT_TRUE(has(7, true, 0.44095856f));
    EXPECT_TRUE(has(11, true, 0.1f));
    // Twiddle factors where the step is twiddled, none where it is a prime-factor step.
    for (const int n : {24, 40, 48, 56}) {
        EXPECT_TRUE(has(n, true, cosine(1, n)));
        EXPECT_FALSE(has(n, false, cosine(1, n)));
    }
    EXPECT_TRUE(has(45, true, cosine(1, 45)));
    EXPECT_FALSE(has(45, false, cosine(1, 45)));
    EXPECT_TRUE(has(60, true, cosine(1, 15)));
    EXPECT_FALSE(has(15, true, cosine(1, 15)));
    for (const int n : {21, 33, 39})
        for (const bool single : {true, false}) EXPECT_FALSE(has(n, single, cosine(1, n))) << n;
}

TEST(TwoStep, MapsAreBijections) {
    const std::vector<std::pair<Plan, bool>> cases = {
        {pfa(5, 3), false},       {ct(4, 4), false},        {ct(3, ct(3, 5)), false},
        {pfa(2, ct(3, 3)), true}, {pfa(ct(5, 5), 2), true}, {pfa(ct(3, ct(3, 3)), 2), true}};
    for (const auto& [plan, joined] : cases) {
        const TwoStep step(plan, joined);
        std::set<int> inputs, outputs;
        for (int r = 0; r < step.rows; ++r)
            for (int i = 0; i < step.columns; ++i) {
                inputs.insert(step.input(r, i));
                outputs.insert(step.output(i, r));
            }
        EXPECT_EQ(inputs.size(), std::size_t(plan.n)) << plan.text();
        EXPECT_EQ(outputs.size(), std::size_t(plan.n)) << plan.text();
        EXPECT_EQ(*inputs.rbegin(), plan.n - 1) << plan.text();
        EXPECT_EQ(*outputs.rbegin(), plan.n - 1) << plan.text();
    }
}

// The compiler keeps every operation of the graph: the library gives the evaluation's bits.
template <class Real>
void expectBitsOfTheGraph(const kfm::registry::Function& function, bool inverse) {
    const int n = function.length;
    std::vector<Real> x(2 * n), y(2 * n);
    for (int i = 0; i < 2 * n; ++i) x[i] = Real((i * 7919 + 104729) % 1009) / 3 - 100;
    using Kernel = KfmStatus (*)(const Real*, Real*, int);
    ASSERT_EQ(reinterpret_cast<Kernel>(function.address)(x.data(), y.data(), kfmScaleNone), kfmOk);
    EXPECT_EQ(evaluate<Real>(kernelGraph(n, sizeof(Real) == 4, inverse), x), y) << function.name;
}

TEST(CompiledKernels, GiveTheBitsOfTheirGraphs) {
    for (const kfm::registry::Function& function : kfm::registry::functions()) {
        const kfm::registry::Family* family = kfm::registry::findFamily(function.family);
        const bool mine = family->kernelSource == kfm::dft::complex::kernelFamily().source;
        if (!mine || function.length == 0) continue;
        if (std::string_view(function.element) == "32fc")
            expectBitsOfTheGraph<float>(function, family->inverse());
        else expectBitsOfTheGraph<double>(function, family->inverse());
    }
}

TEST(OperationCounts, AreTheCommittedOnes) {
    std::ifstream file(KFM_OPERATION_COUNTS);
    std::stringstream committed;
    committed << file.rdbuf();
    EXPECT_TRUE(operationCountTable(*findTarget("sse2-x86-64")) == committed.str())
        << "renew with `kernelgen counts -o` and look at the difference";
}

TEST(Emission, IsDeterministicAndOneTextForBothCopies) {
    const auto* element = kfm::registry::findElement("32fc");
    const Target& target = *findTarget("sse2-x86-64");
    const std::string text = kernelSource("DFT_CToC", 25, *element, target);
    EXPECT_EQ(text, kernelSource("DFT_CToC", 25, *element, target));
    EXPECT_NE(text.find("owngDFTInv_CToC_25_32fc_unaligned"), std::string::npos);
    std::size_t transforms = 0;
    const std::string signature = "static void transform";
    for (std::size_t at = 0; (at = text.find(signature, at)) != std::string::npos; ++at)
        ++transforms;
    EXPECT_EQ(transforms, 2u) << "one forward, one inverse";
}

}   // namespace
