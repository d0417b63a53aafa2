// Every candidate schedule is a complete order of the live nodes, the same at each call.
#include "kernelgen/schedule.h"

#include <gtest/gtest.h>

#include <set>

#include "dft/complex/complex_kernels.h"
#include "kernelgen/candidates.h"

using namespace kfm::kernelgen;

namespace {

TEST(Schedule, CandidatesOrderTheLiveNodes) {
    Graph g = singleGraph(kfm::dft::complex::singlePrecisionRow(23), false);
    g.mul(3, g.load(1));   // used by nobody
    const std::size_t live = g.liveNodes().size();
    EXPECT_LT(live, g.nodes().size());
    for (const ScheduleChoice& choice : scheduleCandidates()) {
        const std::vector<int> order = schedule(g, choice);
        EXPECT_EQ(order.size(), live) << choice.text();
        EXPECT_EQ(order, schedule(g, choice)) << choice.text();
        std::set<int> done;
        for (const int index : order) {
            for (const Ref operand : {g.nodes()[index].a, g.nodes()[index].b})
                EXPECT_TRUE(operand.isZero() || done.contains(operand.node())) << choice.text();
            EXPECT_TRUE(done.insert(index).second) << choice.text();
        }
        for (const Output& output : g.outputs()) EXPECT_TRUE(done.contains(output.node));
    }
}

TEST(Schedule, ChoicesReadBackAsTheyPrint) {
    std::set<std::string> texts;
    for (const ScheduleChoice& choice : scheduleCandidates()) {
        EXPECT_EQ(ScheduleChoice::parse(choice.text()).text(), choice.text());
        EXPECT_TRUE(texts.insert(choice.text()).second) << "twice: " << choice.text();
    }
    EXPECT_THROW(ScheduleChoice::parse("24:0:0:some:0"), std::invalid_argument);
    EXPECT_THROW(ScheduleChoice::parse("24:0"), std::invalid_argument);
}

}   // namespace
