// What the codelets of the DCT-IV cost, and that the compiled short transforms give the bits of
// their graphs.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "dct4/codelets.h"
#include "dct4/networks/fixed_transform.h"
#include "kernel_commands.h"
#include "kernelgen/evaluate.h"
#include "kernelgen/report.h"

using namespace kfm;
using namespace kfm::kernelgen;

namespace {

struct Cost {
    const char* function;
    int size, multiplications, additions;
};

// For a row of the output stage the rotations by the table come on top: 4d and 2d.
class Dct4Networks : public testing::TestWithParam<Cost> {};

TEST_P(Dct4Networks, CostNoMoreThanTheAlgorithmNeeds) {
    const Cost& cost = GetParam();
    for (const char* suffix : {"32f", "64f"}) {
        const OperationCounts counts =
            countOperations(kernelFamily(cost.function)
                                .graph(cost.size, *registry::findElement(suffix),
                                       *findTarget("sse2-x86-64"), false));
        EXPECT_LE(counts.multiplications, cost.multiplications) << suffix;
        EXPECT_LE(counts.additions, cost.additions) << suffix;
        EXPECT_EQ(counts.signChanges, 0) << suffix;
    }
}

INSTANTIATE_TEST_SUITE_P(
    , Dct4Networks,
    testing::Values(Cost{"inputStage", 8, 10, 22}, Cost{"inputStage", 16, 30, 66},
                    Cost{"inputStage", 32, 82, 174}, Cost{"inputStage", 64, 206, 434},
                    Cost{"inputBlock", 16, 30, 66}, Cost{"inputBlock", 32, 82, 174},
                    Cost{"inputBlock", 64, 206, 434}, Cost{"twiddleStage", 8, 4, 52},
                    Cost{"twiddleStage", 16, 24, 144}, Cost{"twiddleStage", 32, 84, 372},
                    Cost{"outputStage", 8, 62 - 32, 82 - 16},
                    Cost{"outputStage", 16, 146 - 64, 206 - 32},
                    Cost{"outputStage", 32, 334 - 128, 498 - 64}),
    [](const auto& info) {
        return std::string(info.param.function) + "_" + std::to_string(info.param.size);
    });

bool dependsOnSlot(const Graph& g, int node, int slot) {
    const Node& n = g.nodes()[node];
    if (n.op == Op::load) return n.elements[0] == slot;
    return std::ranges::any_of(std::array{n.a, n.b}, [&](Ref operand) {
        return !operand.isZero() && dependsOnSlot(g, operand.node(), slot);
    });
}

// So that no order of the operations stores a result before its product is loaded.
TEST(Dct4TwiddleStages, Of32MayLeaveResultsInThePlaceOfProducts) {
    for (const char* function : {"twiddleStage", "twiddleStageRoot"})
        for (const char* suffix : {"32f", "64f"}) {
            const Graph graph = kernelFamily(function).graph(32, *registry::findElement(suffix),
                                                             *findTarget("sse2-x86-64"), false);
            for (const Output& output : graph.outputs())
                EXPECT_TRUE(dependsOnSlot(graph, output.node, output.elements[0]))
                    << function << ' ' << output.elements[0];
        }
}

template <class Real, int n>
void expectBitsOfTheGraph() {
    const Graph graph = dct4::fixedTransformGraph(n, sizeof(Real) == 8);
    std::mt19937 random(n);
    for (int round = 0; round < 100; ++round) {
        std::vector<Real> x(n), y(n);
        for (Real& value : x) value = static_cast<Real>(random() / 2147483648.0 - 1);
        dct4::fixedTransform<Real, n>(x.data(), y.data());
        const std::vector<Real> result = evaluate<Real>(graph, x);
        for (int i = 0; i < n; ++i) ASSERT_EQ(result[i], y[i]) << n << " at " << i;
    }
}

TEST(Dct4FixedTransforms, GiveTheBitsOfTheirGraphs) {
    expectBitsOfTheGraph<float, 8>();
    expectBitsOfTheGraph<float, 16>();
    expectBitsOfTheGraph<float, 32>();
    expectBitsOfTheGraph<double, 4>();
    expectBitsOfTheGraph<double, 8>();
    expectBitsOfTheGraph<double, 16>();
    expectBitsOfTheGraph<double, 32>();
}

}   // namespace
