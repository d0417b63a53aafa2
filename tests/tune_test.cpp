// The parts of the schedule tuner that decide what is committed: the rule for ties, the table that
// keeps all rows but the tuned ones, and how codelets are called to be timed.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/buffer.h"
#include "support/dct4_walk.h"
#include "support/fault.h"
#include "tune/codelet_calls.h"
#include "tune/contest.h"
#include "tune/schedule_table.h"

namespace kfm::tune {
namespace {

TEST(Winner, TiesGoToTheIncumbentThenToTheEarliest) {
    const double times[] = {10.06, 10.04, 10.00, 10.03, 11.00};
    EXPECT_EQ(winner(times, -1), 1);
    EXPECT_EQ(winner(times, 3), 3);
    EXPECT_EQ(winner(times, 0), 1) << "the incumbent is slower by more than the margin";
}

TEST(FindFastest, KeepsTheFastestThroughAllRounds) {
    // Dependent additions: the times differ by far more than any noise.
    std::vector<bench::Subject> contestants;
    for (int i = 0; i < 11; ++i) {
        const long steps = i == 8 ? 1 : 4 + i;
        contestants.emplace_back([steps](long calls) {
            unsigned sum = 0;
            for (long k = 0; k < calls * steps; ++k) {
                sum += sum;
                asm volatile("" : "+r"(sum));
            }
        });
    }
    EXPECT_EQ(findFastest(contestants, -1, 3), 8);
    EXPECT_EQ(findFastest(contestants, 10, 3), 8);
}

class ScheduleTableTest : public testing::Test {
protected:
    void write(const std::string& text) { std::ofstream(file) << text; }
    std::string read() const {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }
    ~ScheduleTableTest() override { std::filesystem::remove(file); }

    std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("schedules." + std::to_string(getpid()) + ".def");
};

TEST_F(ScheduleTableTest, ReplacesOnlyChosenRowsAndSorts) {
    write("// heading\n"
          "KFM_SCHEDULE(b, 9, 32fc, 1:0:0:none:0)\n"
          "KFM_SCHEDULE(b, 10, 32fc, 2:0:0:none:0)\n"
          "KFM_SCHEDULE(a, 9, 32fc, 3:0:0:none:0)\n");
    ScheduleTable table(file);
    EXPECT_EQ(table.find({"b", "32fc", 9}), "1:0:0:none:0");
    EXPECT_EQ(table.find({"b", "64fc", 9}), "");
    table.choose({"b", "32fc", 9}, "7:1:1:all:1");
    table.choose({"a", "64fc", 2}, "8:0:0:none:0");
    table.write();
    EXPECT_EQ(read(), "// heading\n"
                      "KFM_SCHEDULE(a, 9, 32fc, 3:0:0:none:0)\n"
                      "KFM_SCHEDULE(a, 2, 64fc, 8:0:0:none:0)\n"
                      "KFM_SCHEDULE(b, 9, 32fc, 7:1:1:all:1)\n"
                      "KFM_SCHEDULE(b, 10, 32fc, 2:0:0:none:0)\n");
}

TEST_F(ScheduleTableTest, KeepsFunctionsOfOneSizeApart) {
    write("KFM_SCHEDULE(a, inputStage, 8, 32f, 1:0:0:none:0)\n"
          "KFM_SCHEDULE(a, inputBlock, 8, 32f, 2:0:0:none:0)\n"
          "KFM_SCHEDULE(a, DFTFwd_RToPacked, 8, 32f, 3:0:0:none:0)\n");
    ScheduleTable table(file);
    EXPECT_EQ(table.find({"a", "32f", 8, "inputBlock"}), "2:0:0:none:0");
    EXPECT_EQ(table.find({"a", "32f", 8}), "");
    table.choose({"a", "32f", 8, "inputBlock"}, "7:1:1:all:1");
    table.write();
    EXPECT_EQ(read(), "KFM_SCHEDULE(a, DFTFwd_RToPacked, 8, 32f, 3:0:0:none:0)\n"
                      "KFM_SCHEDULE(a, inputBlock, 8, 32f, 7:1:1:all:1)\n"
                      "KFM_SCHEDULE(a, inputStage, 8, 32f, 1:0:0:none:0)\n");
}

TEST_F(ScheduleTableTest, RefusesToDropWhatItCannotRead) {
    write("KFM_SCHEDULE(b, 9, 32fc, 1:0:0:none:0)\nKFM_SCHEDULE(b, ten, 32fc, 2:0:0:none:0)\n");
    EXPECT_THROW(ScheduleTable{file}, std::runtime_error);
}

TEST_F(ScheduleTableTest, StartsEmptyWithoutAFile) {
    EXPECT_EQ(ScheduleTable(file).find({"a", "32fc", 2}), "");
}

template <class Real>
class CodeletCalls : public testing::Test {
protected:
    // Arrays of whole pages: both ends are guarded.
    static void expectInside(const char* codelet, int size, void (*call)(const Real*, Real*)) {
        constexpr std::size_t bytes = codeletArrayLength * sizeof(Real);
        tests::GuardedBuffer from(bytes), to(bytes);
        auto* const source = reinterpret_cast<Real*>(from.data());
        std::fill_n(source, codeletArrayLength, Real(1));
        EXPECT_TRUE(tests::survives([&] { call(source, reinterpret_cast<Real*>(to.data())); }))
            << codelet << ' ' << size;
        EXPECT_FALSE(to.untouched()) << codelet << ' ' << size;
        EXPECT_EQ(std::count(source, source + codeletArrayLength, Real(1)), codeletArrayLength);
    }
};
using Reals = testing::Types<float, double>;
TYPED_TEST_SUITE(CodeletCalls, Reals);

TYPED_TEST(CodeletCalls, StayInsideTheirArrays) {
#define KFM_CODELET(function, first, last)                            \
    for (int size = first; size <= last; size *= 2)                   \
        tests::withSize<first, last>(size, [&]<int n>() {             \
            this->expectInside(#function, n, function<TypeParam, n>); \
        });
#include "dct4/codelets.def"
#undef KFM_CODELET
}

}   // namespace
}   // namespace kfm::tune
