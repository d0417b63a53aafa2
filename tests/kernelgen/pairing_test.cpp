// Pairings of operations: what they join, what they cost, and that a choice always gives the same.
#include "kernelgen/pairing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <tuple>

#include "kernel_commands.h"
#include "kernelgen/evaluate.h"
#include "kernelgen/joined_graph.h"
#include "kernelgen/pairing_state.h"
#include "kernelgen/program.h"

using namespace kfm::kernelgen;

namespace {

struct Case {
    const char* source;
    const char* element;
    int length;
};

void PrintTo(const Case& c, std::ostream* out) { *out << c.source << c.length << c.element; }

const kfm::registry::Element& elementOf(const Case& c) {
    return *kfm::registry::findElement(c.element);
}

Graph graphOf(const Case& c) {
    return kernelFamily(c.source).graph(c.length, elementOf(c), *findTarget("avx2-x86-64"), false);
}

std::unique_ptr<Ports> portsOf(const Case& c) { return kernelFamily(c.source).ports(elementOf(c)); }

class Pairings : public testing::TestWithParam<Case> {
protected:
    Graph graph() const { return graphOf(GetParam()); }
};

constexpr PairingChoice choices[] = {{0, 1, 20}, {1, 1, 20}, {2, 5, 20}, {-12, 1, 20}};

TEST_P(Pairings, JoinOperationsOfOneKindThatDoNotDependOnEachOther) {
    const Graph g = graph();
    for (const PairingChoice& choice : choices) {
        const Pairing pairing = pairOperations(g, choice);
        const PairingState state(g);
        const std::set<int> items(state.items().begin(), state.items().end());
        for (int item = 0; item < static_cast<int>(pairing.partner.size()); ++item) {
            if (pairing.alone(item)) continue;
            const int partner = pairing.partner[item];
            ASSERT_EQ(pairing.partner[partner], item);
            ASSERT_NE(pairing.upper[partner], pairing.upper[item]);
            ASSERT_TRUE(items.contains(item) && state.compatible(item, partner));
        }
    }
}

TEST_P(Pairings, CostNoMoreThanNoneAndAreTheSameEachTime) {
    const Graph g = graph();
    for (const PairingChoice& choice : choices) {
        const Pairing pairing = pairOperations(g, choice);
        EXPECT_EQ(pairing.partner, pairOperations(g, choice).partner);
        PairingState state(g);
        const int alone = state.cost();
        for (const int item : state.items())
            if (!pairing.alone(item) && !pairing.upper[item])
                state.join(item, pairing.partner[item]);
        state.commit();
        EXPECT_LE(state.cost(), alone) << choice.text();
    }
}

// Whatever happened on the way: moves that were taken back leave nothing.
TEST_P(Pairings, CostsDependOnThePairsAlone) {
    const Graph g = graph();
    PairingState state(g);
    const std::vector<int>& items = state.items();
    unsigned random = 1;
    const auto any = [&] {
        random = random * 1664525u + 1013904223u;
        return items[random % items.size()];
    };
    for (int round = 0; round < 300; ++round) {
        const int before = state.cost();
        for (int move = 0; move < 5; ++move) {
            const int a = any(), b = any();
            if (state.compatible(a, b)) state.join(a, b);
            else if (round % 4 == 0) state.dissolve(a);
            else state.exchangeHalves(a);
        }
        if (round % 3 == 0) {
            state.commit();
        } else {
            state.rollBack();
            ASSERT_EQ(state.cost(), before);
        }
    }
    PairingState again(g);
    for (const int item : items)
        if (!state.pairing().alone(item) && !state.pairing().upper[item])
            again.join(item, state.pairing().partner[item]);
    again.commit();
    EXPECT_EQ(again.cost(), state.cost());
}

// Of elements 0, 1, 2, ...
template <class Real, class Product>
std::vector<Real> outputs(const Graph& g) {
    int elements = 0;
    for (const Node& node : g.nodes())
        for (const int element : node.elements) elements = std::max(elements, element + 1);
    std::vector<Real> source(elements * g.lanesPerElement());
    for (std::size_t i = 0; i < source.size(); ++i) source[i] = Real(i * 7919 % 1009) / 3 - 100;
    return evaluate<Real, Product>(g, source);
}

TEST_P(Pairings, GiveTheSameBitsOnceAndTwice) {
    const auto bits = [](const Graph& g) {
        if (elementOf(GetParam()).doublePrecision) return outputs<double, double>(g);
        const std::vector<float> y = outputs<float, double>(g);
        return std::vector<double>(y.begin(), y.end());
    };
    const Graph g = graph();
    const std::vector<double> expected = bits(g);
    for (const PairingChoice& choice : choices) {
        const Graph once = joinedGraph(g, pairOperations(g, choice));
        EXPECT_EQ(bits(once), expected) << choice.text();
        EXPECT_EQ(bits(joinedGraph(once, pairOperations(once, choice))), expected) << choice.text();
    }
}

INSTANTIATE_TEST_SUITE_P(
    , Pairings,
    testing::Values(Case{"DFT_CToC", "64fc", 12}, Case{"DFT_CToC", "64fc", 17},
                    Case{"DFT_CToC", "32fc", 12}, Case{"DFT_CToC", "32fc", 17},
                    Case{"DFTFwd_RToPacked", "64f", 15}, Case{"DFTFwd_RToPacked", "32f", 16},
                    Case{"DFTInv_PackedToR", "32f", 5},   // in both precisions
                    Case{"DFTInv_PackedToR", "32f", 15}, Case{"Hartley", "64f", 16},
                    Case{"fixedTransform", "64f", 16}, Case{"fixedTransform", "32f", 32}));

// By whatever compiler the generator was built. What the search is told to weigh may change them.
TEST(PairedOperations, AreAsMany) {
    struct Row {
        Case kernel;
        const char* choice;
        int operations, pairs, moves;
    };
    const Row rows[] = {
        {{"DFT_CToC", "64fc", 15}, "1:1:60", 103, 65, 12},
        {{"DFT_CToC", "64fc", 31}, "-12:1:20", 396, 331, 26},
        {{"DFT_CToC", "32fc", 31}, "0:1:20", 340, 254, 59},
        {{"DFTFwd_RToPacked", "32f", 32}, "2:5:20", 147, 92, 18},
        {{"DFTInv_PackedToR", "64f", 24}, "2:5:20", 86, 45, 12},
        {{"Hartley", "64f", 31}, "1:1:60", 252, 113, 34},
    };
    for (const auto& [kernel, choice, operations, pairs, moves] : rows) {
        const Graph g = graphOf(kernel);
        const auto ports = portsOf(kernel);
        const Program paired =
            program(g, elementOf(kernel), *ports, {PairingChoice::parse(choice)});
        const OperationCounts counts = paired.counts();
        EXPECT_EQ(std::tuple(static_cast<int>(paired.operations().size()), counts.pairs,
                             counts.moves),
                  std::tuple(operations, pairs, moves))
            << testing::PrintToString(kernel) << ' ' << choice;
    }
}

TEST(PairingChoice, ReadsBackAsItPrints) {
    for (const PairingChoice& choice : choices)
        EXPECT_EQ(PairingChoice::parse(choice.text()).text(), choice.text());
    EXPECT_THROW(PairingChoice::parse("1:1"), std::invalid_argument);
    EXPECT_THROW(PairingChoice::parse("1:1:60:afar"), std::invalid_argument);
    for (const char* text :
         {"24:0:1:sums:0/-12:2:60", "6:0:0:all:0/0:1:60:apart", "6:0:0:all:0/1:1:60/2:1:60"})
        EXPECT_EQ(ScheduleChoice::parse(text).text(), text);
}

}   // namespace
