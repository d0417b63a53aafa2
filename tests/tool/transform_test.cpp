// info, list and transform: small transforms known by heart, frames, every form of samples.
#include <algorithm>
#include <sstream>

#include "kfmgen.h"
#include "run_tool.h"

namespace kfm::test {
namespace {

using Transform = ToolTest;
using Listing = ToolTest;

TEST_F(Transform, FramesOfTextInput) {
    EXPECT_EQ(run("transform --length 2", "1\n2\n\n# comment\n3\n-4e0\n").out,
              "frame,index,re,im\n"
              "0,0,3,0\n0,1,-1,0\n"
              "1,0,-1,0\n1,1,7,0\n");
}

TEST_F(Transform, SeparatorsOfComplexSamples) {
    const std::string expected = "frame,index,re,im\n0,0,4,6\n0,1,-2,-2\n";
    for (const char* text :
         {"re,im\n1,2\n3,4\n", "re;im\n1;2\n3;4", "\xEF\xBB\xBFre im\n 1  2 \r\n3\t+4\r\n",
          "n,im,x,re\n9,2,9,1\nx,4,9,3\n", "frame,re,im\n7,1,2\n7,3,4\n"})
        EXPECT_EQ(run("transform --length 2", text).out, expected) << text;
    for (const char* text : {"1,2\n3,4\n",
                             "\xEF\xBB\xBF"
                             "1;2\n3;4",
                             " 1  2 \r\n3\t+4\r\n"})
        EXPECT_EQ(run("transform --length 2 --complex", text).out, expected) << text;
}

TEST_F(Transform, ColumnsWithoutNamesAreChannels) {
    const std::string text = "1,10,-8\n2,20,6\n";
    const auto sums = [&](const std::string& options, const std::string& input) {
        return run("transform --family Hartley --length 2 " + options, input).out;
    };
    EXPECT_EQ(sums("--channel 1", text), "frame,index,value\n0,0,3\n0,1,-1\n");
    EXPECT_EQ(sums("--channel 3", text), "frame,index,value\n0,0,-2\n0,1,-14\n");
    EXPECT_EQ(sums("--channel mix", "1,10,-8\n2,20,8\n"), "frame,index,value\n0,0,11\n0,1,-9\n");
    EXPECT_EQ(sums("--channel 2", "re,im\n5,1\n5,2\n"), "frame,index,value\n0,0,3\n0,1,-1\n");
}

TEST_F(Transform, SamplesAtTheEndsOfTheRange) {
    const std::string transform = "transform --length 2 --family Hartley --precision ";
    EXPECT_EQ(run(transform + "double", "1e-400\n4e-324\n").out,
              "frame,index,value\n0,0,5e-324\n0,1,-5e-324\n");
    EXPECT_EQ(run(transform + "single", "3.4028235e38\n0\n").out,
              "frame,index,value\n0,0,3.4028235e+38\n0,1,3.4028235e+38\n");
    expectRefusal(run(transform + "single", "3.4028236e38\n0\n"), inputStatus,
                  "kfmgen: standard input:1:1: too large for single precision; see --precision\n");
    EXPECT_EQ(run(transform + "double", "1e39\n0\n").status, 0);
}

TEST_F(Transform, HopAndTail) {
    const std::string input = "1\n2\n3\n4\n5\n";
    EXPECT_EQ(run("transform --length 4 --hop 3", input).out,
              "frame,index,re,im\n"
              "0,0,10,0\n0,1,-2,2\n0,2,-2,0\n0,3,-2,-2\n"
              "1,0,9,0\n1,1,4,-5\n1,2,-1,0\n1,3,4,5\n");
    EXPECT_EQ(run("transform --length 2 --hop 4", input).out,
              "frame,index,re,im\n0,0,3,0\n0,1,-1,0\n1,0,5,0\n1,1,5,0\n");
    EXPECT_EQ(run("transform --length 2 --tail drop", input).out,
              "frame,index,re,im\n0,0,3,0\n0,1,-1,0\n1,0,7,0\n1,1,-1,0\n");
}

// The frames of n samples are those that begin before the end of the samples and after which the
// frame before had not reached it.
TEST_F(Transform, FramesEndWithTheSamples) {
    for (const std::size_t length : {2, 4})
        for (const std::size_t hop : {1, 3, 4, 5, 9})
            for (std::size_t samples = 3; samples <= 9; ++samples)
                for (const bool pad : {true, false}) {
                    std::size_t expected = 0;
                    for (std::size_t start = 0; start < samples; start += hop) {
                        if (start + length > samples && !pad) break;
                        ++expected;
                        if (start + length >= samples) break;
                    }
                    if (expected == 0) continue;   // refused
                    const std::string options = "transform --family Hartley --length " +
                                                std::to_string(length) + " --hop " +
                                                std::to_string(hop) + (pad ? "" : " --tail drop");
                    std::string input;
                    for (std::size_t i = 0; i < samples; ++i) input += "1\n";
                    const std::string out = run(options, input).out;
                    EXPECT_EQ(std::ranges::count(out, '\n'), expected * length + 1)
                        << options << ", " << samples << " samples";
                }
}

// The first value of the transform of an impulse of four samples is the factor of the flag.
TEST_F(Transform, FlagsOfEveryFamily) {
    const struct {
        std::string family;
        const char* impulse;
        const char* fwdByN;
        const char* invByN;
    } cases[] = {
        {"DFTFwd_CToC", "1\n0\n0\n0\n", "0.25", "1"},
        {"DFTInv_CToC", "1\n0\n0\n0\n", "1", "0.25"},
        {"DFTFwd_RToPack", "1\n0\n0\n0\n", "0.25", "1"},
        {"DFTInv_PackToR", "1\n0\n0\n", "1", "0.25"},
        {"Hartley", "1\n0\n0\n0\n", "0.25", "0.25"},
        {"WHT", "1\n0\n0\n0\n", "0.25", "0.25"},
    };
    for (const auto& [family, impulse, fwdByN, invByN] : cases)
        for (const std::string precision : {"single", "double"}) {
            const std::string arguments = "transform --length 4 --family " + family +
                                          " --precision " + precision + " --flag ";
            const auto first = [&, input = impulse](const std::string& flag) {
                const std::string out = run(arguments + flag, input).out;
                const std::size_t begin = out.find("\n0,0,") + 5;
                return out.substr(begin, out.find_first_of(",\n", begin) - begin);
            };
            SCOPED_TRACE(family + " " + precision);
            EXPECT_EQ(first("none"), "1");
            EXPECT_EQ(first("by-sqrt-n"), "0.5");
            EXPECT_EQ(first("fwd-by-n"), fwdByN);
            EXPECT_EQ(first("inv-by-n"), invByN);
        }
}

TEST_F(Transform, InverseReadsForwardOutputBack) {
    const std::string samples = "0.1,7\n-2.25,3\n1e-3,0\n";
    ASSERT_EQ(run("transform --length 3 --complex --precision double -o spectrum.csv", samples).out,
              "");
    const Outcome back = run("transform --length 3 --precision double --family DFTInv_CToC "
                             "--flag inv-by-n spectrum.csv");
    double re[3], im[3];
    ASSERT_EQ(sscanf(back.out.c_str(), "frame,index,re,im 0,0,%lf,%lf 0,1,%lf,%lf 0,2,%lf,%lf",
                     &re[0], &im[0], &re[1], &im[1], &re[2], &im[2]),
              6);
    const double expectedRe[] = {0.1, -2.25, 1e-3}, expectedIm[] = {7, 3, 0};
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(re[i], expectedRe[i], 1e-15);
        EXPECT_NEAR(im[i], expectedIm[i], 1e-15);
    }
}

TEST_F(Transform, RealDftIsLabelledByBin) {
    for (const char* options : {"--layout ccs", "--family DFTFwd --layout pack",
                                "--family DFTFwd_RToPerm", "--layout perm --precision double"})
        EXPECT_EQ(run(std::string("transform --length 4 ") + options, "1\n2\n3\n4\n5\n").out,
                  "frame,bin,re,im\n"
                  "0,0,10,0\n0,1,-2,2\n0,2,-2,0\n"
                  "1,0,5,0\n1,1,5,0\n1,2,5,0\n")
            << options;
}

TEST_F(Transform, LayoutsGiveTheSameBinsAndTakeThemBack) {
    const std::string samples = "3\n1\n-4\n1\n5\n-9\n2\n6\n";
    for (int length = 2; length <= 9; ++length) {
        const std::string options = "transform --length " + std::to_string(length) + " --layout ";
        const std::string spectrum = run(options + "ccs", samples).out;
        const std::string signal = run(options + "ccs --family DFTInv", spectrum).out;
        EXPECT_TRUE(signal.starts_with("frame,index,value\n0,0,")) << signal;
        for (const std::string layout : {"pack", "perm"}) {
            EXPECT_EQ(run(options + layout, samples).out, spectrum) << layout << length;
            EXPECT_EQ(run(options + layout + " --family DFTInv", spectrum).out, signal)
                << layout << length;
        }
    }
    const std::string restored = "frame,index,value\n0,0,3\n0,1,1\n0,2,-4\n0,3,1\n"
                                 "1,0,5\n1,1,-9\n1,2,2\n1,3,6\n";
    const std::string spectrum = run("transform --length 4 --layout perm", samples).out;
    const std::string back = "transform --length 4 --layout pack --family DFTInv --flag inv-by-n";
    EXPECT_EQ(run(back, spectrum).out, restored);
}

TEST_F(Transform, HartleyReadsItsOwnOutput) {
    const std::string options = "transform --family Hartley --length 2 --flag ";
    const std::string there = run(options + "none", "1\n2\n").out;
    EXPECT_EQ(there, "frame,index,value\n0,0,3\n0,1,-1\n");
    EXPECT_EQ(run(options + "fwd-by-n", there).out, "frame,index,value\n0,0,1\n0,1,2\n");
}

TEST_F(Transform, PlannedLengths) {
    const std::string dct = "transform --family DCT4 ";
    EXPECT_EQ(run(dct + "--length 2", "1\n0\n0\n-1\n").out,
              "frame,index,value\n0,0,0.9238795\n0,1,0.38268343\n"
              "1,0,-0.38268343\n1,1,0.9238795\n");
    // Its own inverse, up to half the length.
    const std::string twice = dct + "--precision double --length 64 ";
    ASSERT_EQ(run(twice + "-o dct.csv", "3\n-5\n").status, 0);
    const Outcome back = run(twice + "dct.csv");
    double first, second;
    ASSERT_EQ(sscanf(back.out.c_str(), "frame,index,value 0,0,%lf 0,1,%lf", &first, &second), 2);
    EXPECT_NEAR(first, 3 * 32, 1e-12);
    EXPECT_NEAR(second, -5 * 32, 1e-12);
}

TEST_F(Transform, DigitsOfEachPrecisionReadBack) {
    const std::string third = "0.3333333333333333\n0\n";
    EXPECT_NE(run("transform --length 2", third).out.find("\n0,0,0.33333334,0\n"),
              std::string::npos);
    EXPECT_NE(run("transform --length 2 --precision double", third)
                  .out.find("\n0,0,0.3333333333333333,0\n"),
              std::string::npos);
}

// A file may be called as a command is.
TEST_F(Transform, FileNamedLikeACommand) {
    EXPECT_EQ(run("transform --length 2 " + textFile("list", "1\n2\n")).out,
              "frame,index,re,im\n0,0,3,0\n0,1,-1,0\n");
}

// Four samples by heart; and a length that is computed in blocks, there and back.
TEST_F(Transform, WalshHadamardTakesLengthsNotOrders) {
    EXPECT_EQ(run("transform --family WHT --length 4", "1\n2\n4\n8\n").out,
              "frame,index,value\n0,0,15\n0,1,-5\n0,2,-9\n0,3,3\n");
    const std::string there = run("transform --family WHT --length 256", "3\n-7\n").out;
    const std::string back = run("transform --family WHT --length 256 --flag fwd-by-n", there).out;
    EXPECT_TRUE(back.starts_with("frame,index,value\n0,0,3\n0,1,-7\n0,2,0\n0,3,0\n")) << back;
}

TEST_F(Listing, NamesTheLibraryAndItsFamilies) {
    EXPECT_NE(run("info").out.find(kfmgenGetLibVersion()->libraryName), std::string::npos);
    EXPECT_NE(run("list").out.find("DFTInv_CToC     2..64     32fc, 64fc\n"), std::string::npos);
    EXPECT_NE(run("list").out.find(
                  "WHT             2..8192   32f, 64f; powers of two, orders 1..13\n"),
              std::string::npos);
    EXPECT_NE(run("list").out.find("DCT4            2..134217729"), std::string::npos);
    for (const std::string help : {"--help", "transform --help", "spectrum --help"}) {
        const std::string page = run(help).out;
        EXPECT_NE(page.find("\n  4  the output cannot be written\n"), std::string::npos) << page;
        std::istringstream lines(page);
        for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80u) << line;
    }
    const KfmLibraryVersion& version = *kfmgenGetLibVersion();
    EXPECT_EQ(run("--version").out, "kfmgen " + std::to_string(version.versionMajor) + "." +
                                        std::to_string(version.versionMinor) + "\n");
    for (const char* name : {"kfmgDFTFwd_CToC_17_64fc", "kfmgDCT4Init_32f"})
        EXPECT_NE(run("list --names").out.find(name + std::string("\n")), std::string::npos);
}

}   // namespace
}   // namespace kfm::test
