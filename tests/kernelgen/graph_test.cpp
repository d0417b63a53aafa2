// The expression graph: rewrites, sharing, signs; transposition; evaluation.
#include "kernelgen/graph.h"

#include <gtest/gtest.h>

#include "kernelgen/evaluate.h"
#include "kernelgen/report.h"
#include "kernelgen/transpose.h"

using namespace kfm::kernelgen;

namespace {

class GraphTest : public testing::Test {
protected:
    Graph g{2, {}, 2};
    Ref x = g.load(0), y = g.load(1);
};

TEST_F(GraphTest, SignsAndZerosNeverBecomeNodes) {
    EXPECT_TRUE(g.sub(x, x).isZero());
    EXPECT_EQ(g.add(x, Ref()), x);
    EXPECT_EQ(g.sub(Ref(), x), -x);
    EXPECT_EQ(g.add(-x, -y), -g.add(x, y));
    EXPECT_EQ(g.sub(y, x), -g.sub(x, y));
    EXPECT_EQ(g.mul(-3, x), -g.mul(3, x));
    EXPECT_EQ(g.mul(1, -x), -x);
    EXPECT_EQ(g.nodes().size(), 5u);   // two loads, a sum, a difference, a product
}

TEST_F(GraphTest, DifferencesTurnRoundWhereNothingElseNeedsThem) {
    const Ref used = g.sub(x, y), both = g.sub(g.mul(2, x), y), alone = g.sub(g.mul(3, x), y);
    const Ref values[] = {-used, g.mul(5, used), both, -both, -alone, -alone};
    for (int i = 0; i < 6; ++i) g.store(i, -1, values[i]);
    const std::vector<double> source = {1, 2, 30, 40, 0, 0, 0, 0, 0, 0, 0, 0};
    const std::vector<double> before = evaluate<double>(g, source);
    g.turnDifferences();
    EXPECT_EQ(evaluate<double>(g, source), before);
    const auto negated = [&](int output) { return g.outputs()[output].negated; };
    for (const int output : {0, 3}) EXPECT_EQ(negated(output), (LanePattern{1, 1})) << output;
    for (const int output : {4, 5}) EXPECT_EQ(negated(output), (LanePattern{0, 0})) << output;
}

TEST_F(GraphTest, ProductsMergeAndCommonFactorsLeaveTheSum) {
    EXPECT_EQ(g.mul(2, g.mul(3, x)), g.mul(6, x));
    EXPECT_EQ(g.add(x, x), g.mul(2, x));
    EXPECT_EQ(g.sub(g.mul(5, x), g.mul(5, y)), g.mul(5, g.sub(x, y)));
}

TEST_F(GraphTest, LanesAreKeptApart) {
    EXPECT_NE(g.mul(LaneConstant{2, 3}, x), g.mul(LaneConstant{3, 2}, x));
    EXPECT_EQ(g.select(x, y, {0, 1}), x);
    EXPECT_EQ(g.select(-x, -y, {1, 2}), -g.select(x, y, {1, 2}));
    EXPECT_NE(g.flip(x, {1, 0}), g.flip(-x, {1, 0}));
}

TEST_F(GraphTest, SelectOfUnequalSignsKeepsTheValues) {
    const Ref difference = g.sub(x, y);
    g.store(0, -1, g.select(-difference, y, {0, 3}));
    g.store(1, -1, g.select(-g.add(x, y), x, {1, 2}), {1, 0});
    const std::vector<double> source = {1, 10, 100, 1000};
    EXPECT_EQ(evaluate<double>(g, source), (std::vector<double>{99, 1000, 1010, 1}));
}

TEST(Reloads, AreCountedAgainstTheRegisters) {
    const std::vector<std::vector<int>> sumsOfFour = {{}, {}, {}, {}, {0, 1}, {2, 3}, {4, 5}, {6}};
    const std::vector<int> together = {0, 1, 4, 2, 3, 5, 6, 7}, apart = {0, 1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(countReloads(sumsOfFour, together, 3), 0);
    EXPECT_EQ(countReloads(sumsOfFour, apart, 4), 0);
    EXPECT_EQ(countReloads(sumsOfFour, apart, 3), 1);
}

TEST(Transpose, ReversesEveryEdge) {
    Graph network(1), target(1);
    const Ref a = network.load(0), b = network.load(1);
    const Ref product = network.mul(7, network.sub(a, b));
    const std::vector<Ref> inputs = {a, b};
    const Ref u = target.load(0), v = target.load(1);
    // outputs 7(a - b) and -(a + 7(a - b)) as a matrix [7 -7; -8 7], transposed.
    const std::vector<WeightedOutput> outputs = {{product, u}, {-network.add(a, product), v}};
    const std::vector<Ref> result = transposed(network, inputs, outputs, target);
    target.store(0, -1, result[0]);
    target.store(1, -1, result[1]);
    const std::vector<double> source = {1, 100};
    EXPECT_EQ(evaluate<double>(target, source), (std::vector<double>{7 - 800, -7 + 700}));
    EXPECT_EQ(countOperations(target).multiplications, 1);
}

TEST(Transpose, ZeroValuesPruneTheNetwork) {
    Graph network(1), target(1);
    const std::vector<Ref> inputs = {network.load(0), network.load(1)};
    const std::vector<WeightedOutput> outputs = {{network.add(inputs[0], inputs[1]), Ref()},
                                                 {network.mul(3, inputs[1]), target.load(0)}};
    const std::vector<Ref> result = transposed(network, inputs, outputs, target);
    EXPECT_TRUE(result[0].isZero());
    EXPECT_EQ(result[1], target.mul(3, target.load(0)));
}

}   // namespace
