// `kfmgen bench` and `kfmgen accuracy`: that they measure what they say, of all there is.
#include <map>
#include <sstream>

#include "registry/registry.h"
#include "run_tool.h"

namespace kfm::test {
namespace {

using Measure = ToolTest;
using Row = std::map<std::string, std::string>;

std::vector<std::string> split(const std::string& line) {
    std::vector<std::string> cells(1);
    for (const char c : line)
        if (c == ',') cells.emplace_back();
        else cells.back() += c;
    return cells;
}

std::vector<Row> rowsIn(const std::string& csv) {
    std::istringstream lines(csv);
    std::string line;
    std::getline(lines, line);
    const std::vector<std::string> names = split(line);
    std::vector<Row> rows;
    while (std::getline(lines, line)) {
        const std::vector<std::string> cells = split(line);
        EXPECT_EQ(cells.size(), names.size()) << line;
        rows.emplace_back();
        for (std::size_t i = 0; i < names.size(); ++i) rows.back()[names[i]] = cells[i];
    }
    return rows;
}

double number(const Row& row, const std::string& name) { return std::stod(row.at(name)); }

// A layout that is misread, an output that is left out, a wrong scale: any of these is an error of
// millions of units. None at all would mean that nothing is compared.
TEST_F(Measure, ErrorsOfEveryFunctionAreSomeUnits) {
    // Without the search for FFTW's plans, which takes longer than all else here.
    const Outcome all = run("accuracy --format csv --signals 2 --fftw-folder /nowhere");
    ASSERT_EQ(all.status, 0) << all.err;
    const std::vector<Row> rows = rowsIn(all.out);
    std::size_t planned = 0, fixed = 0;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.at("function"));
        EXPECT_GT(number(row, "error"), 0.05);
        EXPECT_LT(number(row, "error"), 4);
        EXPECT_GT(number(row, "largest"), 0);
        EXPECT_LT(number(row, "largest"), 10);
        ++(row.at("family") == "DCT4" ? planned : fixed);
        EXPECT_EQ(row.at("ratio"), "");
    }
    std::size_t expected = 0;
    for (const registry::Family& family : registry::families())
        expected += (family.last - family.first + 1) * family.elements.size();
    EXPECT_EQ(fixed, expected);
    EXPECT_EQ(planned, 20u);   // powers of two to 1024
}

// In its own layouts and factors.
TEST_F(Measure, ErrorsOfFftwAreSomeUnitsWhereItIs) {
    const Outcome some = run("accuracy --format csv --signals 2 --lengths 8-9");
    ASSERT_EQ(some.status, 0) << some.err;
    for (const Row& row : rowsIn(some.out)) {
        SCOPED_TRACE(row.at("function"));
        if (row.at("peer").empty()) continue;
        EXPECT_GT(number(row, "peer_error"), 0.1);
        EXPECT_LT(number(row, "peer_error"), 4);
    }
}

TEST_F(Measure, TimesAreThoseOfTheFunctionsChosen) {
    const std::string options = "bench --batches 2 --rounds 1 --precision double --lengths 16-64 ";
    const Outcome wht = run(options + "--family WHT --format csv");
    ASSERT_EQ(wht.status, 0) << wht.err;
    const std::vector<Row> rows = rowsIn(wht.out);
    ASSERT_EQ(rows.size(), 3u);
    for (const Row& row : rows) {
        EXPECT_EQ(row.at("type"), "64f");
        EXPECT_EQ(row.at("peer"), "plain loop");
        EXPECT_GT(number(row, "ns"), 0.5);
        EXPECT_LT(number(row, "ns"), 1e6);
        EXPECT_NEAR(number(row, "ratio"), number(row, "ns") / number(row, "peer_ns"),
                    0.01 * number(row, "ratio"));
    }
    EXPECT_EQ(rows[2].at("function"), "kfmgWHT_6_64f");
    EXPECT_EQ(rows[2].at("length"), "64");

    const Outcome json = run(options + "--family Hartley --fftw-folder /nowhere --format json");
    ASSERT_EQ(json.status, 0) << json.err;
    EXPECT_EQ(std::count(json.out.begin(), json.out.end(), '\n'), 49);
    EXPECT_NE(json.out.find("{\"function\":\"kfmgHartley_16_64f\",\"family\":\"Hartley\","
                            "\"type\":\"64f\",\"length\":16,\"ns\":"),
              std::string::npos);
    EXPECT_NE(json.out.find("\"peer_ns\":null,\"ratio\":null,\"peer\":null}"), std::string::npos);
}

TEST_F(Measure, PagesFitATerminal) {
    for (const std::string command :
         {"bench --batches 1 --rounds 1 --lengths 64", "accuracy --signals 1 --lengths 8-9",
          "bench --batches 1 --rounds 1 --lengths 2-4 --family DFTInv_PermToR",
          "accuracy --signals 1 --lengths 2-4 --family WHT"}) {
        const Outcome page = run(command);
        EXPECT_EQ(page.status, 0) << page.err;
        EXPECT_EQ(page.err, "");
        std::istringstream lines(page.out);
        for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80u) << line;
    }
    EXPECT_NE(run("bench --batches 1 --rounds 1 --lengths 8 --fftw-folder /nowhere")
                  .out.find("FFTW is not there"),
              std::string::npos);
}

TEST_F(Measure, PicturesAreDrawn) {
    if (shell("gnuplot --version").status != 0) GTEST_SKIP() << "no gnuplot";
    for (const std::string what :
         {"bench --batches 1 --rounds 1 --family Hartley --lengths 2-9 -o bench.svg",
          "accuracy --signals 1 --lengths 30-33 -o accuracy.svg",
          "accuracy --signals 1 --lengths 64-128 --family WHT -o wht.svg"}) {
        const Outcome outcome = run(what);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(outcome.err, "");
    }
    EXPECT_NE(contents("bench.svg").find("Hartley 64f"), std::string::npos);
    EXPECT_NE(contents("accuracy.svg").find("DFTFwd_RToCCS 32f"), std::string::npos);
    EXPECT_NE(contents("wht.svg").find("WHT 32f"), std::string::npos);
}

TEST_F(Measure, WhatCannotBeMeasuredIsRefused) {
    textFile("old.png", "old");
    for (const std::string command : {"bench", "accuracy"}) {
        const auto expectUsage = [&](const std::string& options, const std::string& words) {
            expectRefusal(run(command + " " + options), usageStatus, words);
        };
        expectUsage("--family FFT", "'FFT'");
        for (const std::string lengths : {"0-4", "9-8", "x", "4-", "-4", "4-5-6", "''"})
            expectUsage("--lengths=" + lengths, "--lengths");
        expectUsage("--lengths 65-127 --family Hartley", "no function");
        expectUsage("-o picture.pdf", ".png or .svg");
        expectUsage("--format raw", "raw");
        expectUsage("--lengths 65-127 -o old.png", "no function");
        EXPECT_EQ(contents("old.png"), "old");
    }
}

}   // namespace
}   // namespace kfm::test
