// info, list and transform: small transforms known by heart, every way of giving samples, every
// kind of wrong input.
#include "kfmgen.h"
#include "run_tool.h"

namespace kfm::test {
namespace {

using Transform = ToolTest;
using Listing = ToolTest;
using Refusal = ToolTest;

TEST_F(Transform, FramesOfTextInput) {
    const Outcome outcome = run("transform --length 2", "1\n2\n3 4\n");
    expectRefusal(outcome, "standard input, line 3: expected as many columns as before, 1, not 2");

    EXPECT_EQ(run("transform --length 2", "1\n2\n\n# comment\n3\n-4e0\n").out,
              "frame,index,re,im\n"
              "0,0,3,0\n0,1,-1,0\n"
              "1,0,-1,0\n1,1,7,0\n");
}

TEST_F(Transform, SeparatorsOfComplexSamples) {
    const std::string expected =
        "frame,index,re,im\n0,0,4,6\n0,1,-2,-2\n";
    for (const char* text : {"1,2\n3,4\n", "1;2\n3;4", " 1  2 \r\n3\t+4\r\n", "re,im\n1,2\n3,4\n",
                             "n,im,x,re\n9,2,9,1\n9,4,9,3\n"})
        EXPECT_EQ(run("transform --length 2", text).out, expected) << text;
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

TEST_F(Transform, FlagsAndDirections) {
    const std::string impulse = "1\n0\n0\n0\n";
    const auto firstValue = [&](const std::string& options) {
        const std::string out = run("transform --length 4 " + options, impulse).out;
        return out.substr(out.find("0,0,"), out.find("\n0,1,") - out.find("0,0,"));
    };
    for (const std::string direction : {"Fwd", "Inv"})
        for (const std::string precision : {"single", "double"}) {
            const std::string options =
                "--family DFT" + direction + "_CToC --precision " + precision + " --flag ";
            const bool forward = direction == "Fwd";
            EXPECT_EQ(firstValue(options + "none"), "0,0,1,0");
            EXPECT_EQ(firstValue(options + "by-sqrt-n"), "0,0,0.5,0");
            EXPECT_EQ(firstValue(options + "fwd-by-n"), forward ? "0,0,0.25,0" : "0,0,1,0");
            EXPECT_EQ(firstValue(options + "inv-by-n"), forward ? "0,0,1,0" : "0,0,0.25,0");
        }
}

TEST_F(Transform, InverseReadsForwardOutputBack) {
    const std::string samples = "0.1,7\n-2.25,3\n1e-3,0\n";
    ASSERT_EQ(run("transform --length 3 --precision double -o spectrum.csv", samples).out, "");
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
    EXPECT_EQ(run("transform --length 4 --layout pack --family DFTInv --flag inv-by-n", spectrum).out,
              restored);
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

TEST_F(Transform, SoundMonoIsRealStereoIsComplex) {
    const std::string mono = soundFile("mono.wav", 8000, 1, {0.5, 0.25});
    EXPECT_EQ(run("transform --length 2 " + mono).out,
              "frame,index,re,im\n0,0,0.75,0\n0,1,0.25,0\n");
    const std::string stereo = soundFile("stereo.wav", 8000, 2, {0.5, -0.25, 0.25, 0.125});
    EXPECT_EQ(run("transform --length 2 " + stereo).out,
              "frame,index,re,im\n0,0,0.75,-0.125\n0,1,0.25,-0.375\n");
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
    for (const char* name : {"kfmgDFTFwd_CToC_17_64fc", "kfmgDCT4Init_32f"})
        EXPECT_NE(run("list --names").out.find(name + std::string("\n")), std::string::npos);
}

TEST_F(Refusal, Options) {
    const struct {
        const char* arguments;
        const char* words;
    } cases[] = {
        {"", "no command"},
        {"translate", "translate"},
        {"transform", "--length is required"},
        {"transform --length 1", "DFTFwd_CToC has lengths 2 to 64"},
        {"transform --length 65", "DFTFwd_CToC has lengths 2 to 64"},
        {"transform --length 12 --family WHT", "WHT has lengths 2 to 8192, powers of two"},
        {"transform --length 16384 --family WHT", "WHT has lengths 2 to 8192, powers of two"},
        {"transform --length four", "four"},
        {"transform --length 99999999999", "99999999999"},
        {"transform --length 4 --family DFT", "no family 'DFT'"},
        {"transform --length 100 --family DCT4", "nearest lengths of DCT4: 65 and 128"},
        {"transform --length -3 --family DCT4", "nearest lengths of DCT4: 2"},
        {"transform --length 2147483647 --family DCT4", "nearest lengths of DCT4: 134217729"},
        {"transform --length 4 --family DCT4 --flag by-sqrt-n", "DCT4 is not scaled"},
        {"transform --length 4 --flag 8", "'8' is none of"},
        {"transform --length 4 --precision half", "'half' is none of"},
        {"transform --length 4 --tail wag", "'wag' is none of"},
        {"transform --length 4 --layout heap", "'heap' is none of ccs|pack|perm"},
        {"transform --length 4 --layout ccs --family Hartley", "not with Hartley"},
        {"transform --length 4 --layout ccs --family DFTFwd_CToC", "not with DFTFwd_CToC"},
        {"transform --length 4 --hop 0", "--hop"},
        {"transform --length 4 --hop -3", "--hop"},
        {"transform --length 4 --colour", "--colour"},
        {"spectrum", "file is required"},
        {"spectrum x.wav --slice 0", "--slice"},
    };
    for (const auto& [arguments, words] : cases) {
        SCOPED_TRACE(arguments);
        expectRefusal(run(arguments, "1\n"), words);
    }
}

TEST_F(Refusal, Text) {
    const struct {
        const char* text;
        const char* words;
    } cases[] = {
        {"", "no samples"},
        {"# nothing\n\n", "no samples"},
        {"1\ntwo\n", "line 2: 'two' is not a number"},
        {"1\n\n3x\n", "line 3: '3x' is not a number"},
        {"1,\n", "line 1: '' is not a number"},
        {"1\n+-2\n", "line 2: '+-2' is not a number"},
        {"0\nnan\n", "line 2: 'nan' is not a number"},
        {"inf\n", "line 1: 'inf' is not a number"},
        {"1e999\n", "line 1: '1e999' is out of range"},
        {"1,2,3\n", "line 1: 3 columns without names"},
        {"re,im\n1\n", "line 2: expected as many columns as before, 2, not 1"},
    };
    for (const auto& [text, words] : cases) {
        SCOPED_TRACE(text);
        expectRefusal(run("transform --length 4", text), words);
    }
    expectRefusal(run("transform --length 4 --tail drop", "1\n2\n3\n"),
                  "3 samples do not fill one frame of 4");
}

TEST_F(Refusal, Files) {
    const std::string transform = "transform --length 4 ";
    expectRefusal(run(transform + "absent"), "cannot be read");
    expectRefusal(run(transform + "."), "is a folder");
    expectRefusal(run(transform + textFile("zeros", std::string(100, '\0'))), "neither text nor");
    expectRefusal(run(transform + soundFile("three.wav", 8000, 3, {0, 0, 0})), "3 channels");
    expectRefusal(run(transform + soundFile("empty.wav", 8000, 1, {})), "no samples");
    expectRefusal(run(transform + "-o absent/out.csv", "1\n"), "cannot write");
    expectRefusal(run("spectrum " + textFile("text", "1\n")), "not a sound file");
}

TEST_F(Refusal, ComplexSamplesOfARealTransform) {
    expectRefusal(run("transform --length 2 --layout ccs -o out.csv", "1,0\n0,1\n"),
                  "DFTFwd_RToCCS takes real samples");
}

TEST_F(Refusal, ValueBeyondSinglePrecision) {
    const Outcome outcome = run("transform --length 2", "1e39\n0\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_NE(outcome.err.find("1e+39"), std::string::npos);
    EXPECT_EQ(run("transform --length 2 --precision double", "1e39\n0\n").status, 0);
}

// What cannot be written is no fault of the input.
TEST_F(Listing, FullDiskIsStatusOne) {
    EXPECT_EQ(std::system("'" KFM_TOOL "' list >/dev/full 2>/dev/null") >> 8, 1);
}

}   // namespace
}   // namespace kfm::test
