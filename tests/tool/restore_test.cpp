// `kfmgen transform` there and back: every family, window and hop gives the samples back, as many
// as there were; and the formats that frames and signals are written in.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <sstream>

#include "run_tool.h"
#include "sounds.h"

namespace kfm::test {
namespace {

using Format = ToolTest;

std::vector<std::vector<double>> rows(const std::string& csv) {
    std::vector<std::vector<double>> rows;
    std::istringstream lines(csv);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || !(std::isdigit(line[0]) || line[0] == '-')) continue;
        std::ranges::replace(line, ',', ' ');
        std::istringstream fields(line);
        rows.emplace_back();
        for (double value; fields >> value;) rows.back().push_back(value);
    }
    return rows;
}

template <class Real>
std::vector<double> numbers(const std::string& bytes) {
    std::vector<Real> values(bytes.size() / sizeof(Real));
    std::memcpy(values.data(), bytes.data(), values.size() * sizeof(Real));
    return {values.begin(), values.end()};
}

class Restore : public ToolTest {
protected:
    static constexpr std::size_t count = 1003;   // fills no frame

    Restore() {
        std::ostringstream text;
        text.precision(17);
        for (std::size_t n = 0; n < count; ++n) text << samples_[n] << '\n';
        textFile("real", text.str());
        text.str("");
        text << "re,im\n";
        for (std::size_t n = 0; n < count; ++n)
            text << samples_[n] << ',' << samples_[count - 1 - n] << '\n';
        textFile("complex", text.str());
    }

    void expectSamples(const std::vector<std::vector<double>>& back, std::size_t first,
                       double tolerance) const {
        ASSERT_EQ(back.size(), count);
        double worst = 0;
        for (std::size_t n = 0; n < count; ++n) {
            worst = std::max(worst, std::abs(back[n][first] - samples_[n]));
            if (back[n].size() > first + 1)
                worst = std::max(worst, std::abs(back[n][first + 1] - samples_[count - 1 - n]));
        }
        EXPECT_LE(worst, tolerance);
    }

    std::vector<double> samples_ = whiteNoise(count);
};

TEST_F(Restore, EveryFamilyUnderEveryWindow) {
    const struct {
        std::string family, input;
        int length;
        std::string flag;
    } families[] = {
        {"DFTFwd_CToC", "complex", 60, "none"},
        {"DFTFwd_CToC", "complex", 17, "fwd-by-n"},
        {"DFTFwd_RToCCS", "real", 16, "inv-by-n"},
        {"DFTFwd_RToPack", "real", 17, "by-sqrt-n"},
        {"DFTFwd_RToPerm", "real", 64, "none"},
        {"DFTFwd --layout perm", "real", 64, "fwd-by-n"},
        {"Hartley", "real", 50, "fwd-by-n"},
        {"Hartley", "real", 12, "none"},
        {"WHT", "real", 128, "inv-by-n"},
        {"WHT", "real", 2048, "by-sqrt-n"},
        {"DCT4", "real", 64, "none"},
        {"DCT4", "real", 4096, "none"},
    };
    for (const auto& [family, input, length, flag] : families)
        for (const std::string window : {"", "hann", "sqrt-hann", "blackman-harris"})
            for (const int part : {1, 3}) {
                const int hop = std::max(1, length / part);
                const bool twice = window != "hann";   // precision
                const std::string options = "transform --family " + family + " --flag " + flag +
                                            " --length " + std::to_string(length) + " --hop " +
                                            std::to_string(hop) +
                                            (window.empty() ? "" : " --window " + window) +
                                            (twice ? " --precision double" : "");
                SCOPED_TRACE(options);
                const Outcome there = run(options + " --restorable -o frames " + input);
                ASSERT_EQ(there.status, 0) << there.err;
                const Outcome back = run(options + " --inverse frames");
                EXPECT_EQ(back.err, "");
                // Without overlap the ends of a frame weigh little, and their roundings much.
                double least = 1;
                if (!window.empty() && part == 1) {
                    const double angle = std::acos(-1) / (2 * length);
                    least = window == "sqrt-hann" ? std::sin(angle)
                            : window == "hann"    ? std::pow(std::sin(angle), 2)
                                                  : 6e-5;
                }
                expectSamples(rows(back.out), 1, (twice ? 1e-14 : 4e-6) / least);
            }
}

TEST_F(Restore, SamplesAreNotedOrCounted) {
    const std::string options = "--family Hartley --length 16 ";
    const std::string frames = run("transform --restorable --rate 8000 " + options + "real").out;
    EXPECT_TRUE(frames.starts_with("# rate 8000\nframe,index,value\n0,0,")) << frames;
    EXPECT_TRUE(frames.ends_with("\n# samples 1003\n"));
    const std::string without = run("transform " + options + "real").out;
    EXPECT_EQ("# rate 8000\n" + without + "# samples 1003\n", frames);
    EXPECT_EQ(rows(run("transform --inverse " + options, without).out).size(), 1008u);
    for (const int wanted : {1, 40, 1003, 1008})
        EXPECT_EQ(rows(run("transform --inverse " + options + "--samples " + std::to_string(wanted),
                           without)
                           .out)
                      .size(),
                  wanted);
}

TEST_F(Restore, RecordingIntoASoundThroughRawFrames) {
    for (const std::string kind : {"wav", "aiff", "au", "caf"}) {
        SCOPED_TRACE(kind);
        soundFile("sound.wav", 44100, 1, samples_, SF_FORMAT_WAV | SF_FORMAT_DOUBLE);
        const std::string options = "--length 32 --hop 8 --window hann --precision double ";
        const Outcome outcome =
            shell("\"$kfmgen\" transform --format raw " + options + "sound.wav | \"$kfmgen\" " +
                  "transform --inverse --raw f64le --raw-channels 2 --complex --raw-rate 44100 " +
                  "--real --samples 1003 -o back." + kind + " " + options);
        EXPECT_EQ(outcome.err, "");
        SF_INFO info = {};
        SNDFILE* file = sf_open(path("back." + kind).c_str(), SFM_READ, &info);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(info.samplerate, 44100);
        EXPECT_EQ(info.channels, 1);
        EXPECT_EQ(info.format & SF_FORMAT_SUBMASK, SF_FORMAT_DOUBLE);
        ASSERT_EQ(info.frames, static_cast<sf_count_t>(count));
        std::vector<double> back(count);
        sf_read_double(file, back.data(), count);
        sf_close(file);
        for (std::size_t n = 0; n < count; ++n) ASSERT_NEAR(back[n], samples_[n], 1e-14);
    }
    EXPECT_EQ(run("transform --restorable --length 64 -o frames sound.wav").status, 0);
    EXPECT_EQ(run("transform --inverse --length 64 --real -o noted.wav frames").err, "");
    const std::string pairs = run("transform --family WHT --length 2 noted.wav").out;
    expectSamples(rows(
                      run("transform --inverse --family WHT --length 2 --samples 1003", pairs).out),
                  1, 1e-6);
}

TEST_F(Restore, WhatCannotBeRestoredIsRefused) {
    run("transform --length 4 -o frames real");
    const struct {
        std::string arguments;
        int status;
        std::string words;
    } cases[] = {
        {"--inverse --length 4 --samples 1005 frames", inputStatus, "of 1004 samples, not of 1005"},
        {"--inverse --length 4 --samples 1005 frames -o x.au", usageStatus, "needs a rate"},
        {"--inverse --length 4 --rate 8000 --samples 1005 frames -o out.wav", inputStatus, "1004"},
        {"--inverse --length 3 --raw f32le --complex --raw-channels 2 four", inputStatus,
         "four: ends within a frame of 3\n"},
        {"--inverse --length 4 --hop 5 frames", usageStatus, "between frames"},
        {"--inverse --length 4 --family DFTInv_CToC frames", usageStatus, "not DFTInv_CToC"},
        {"--inverse --length 4 --family Hartley --real real", usageStatus, "Hartley are real"},
        {"--inverse --length 4 --format json frames", usageStatus, "csv or raw"},
        {"--inverse --length 4 --times frames", usageStatus, "--times"},
        {"--samples 4 --length 4 frames", usageStatus, "--inverse"},
        {"--restorable --length 4 --hop 5 real", usageStatus, "--restorable"},
        {"--restorable --length 4 --tail drop real", usageStatus, "--tail drop"},
        {"--restorable --length 4 --format raw real", usageStatus, "only csv"},
        {"--window hann --length 4 --family DFTInv_CToC frames", usageStatus, "--window"},
        {"--times --length 4 real", usageStatus, "real: its rate is not known; see --rate"},
        {"--times --format raw --rate 1 --length 4 real", usageStatus, "--format raw"},
        {"--frequencies --rate 1 --family WHT --length 4 real", usageStatus, "WHT have none"},
    };
    textFile("four", std::string(8 * 4, '\0'));
    for (const auto& [arguments, status, words] : cases) {
        SCOPED_TRACE(arguments);
        expectRefusal(run("transform " + arguments), status, words);
    }
    EXPECT_EQ(names(), (std::vector<std::string>{"complex", "four", "frames", "real"}));
    expectRefusal(shell("ulimit -f 1; \"$kfmgen\" transform --inverse --length 4 --rate 8000 "
                        "-o out.wav frames"),
                  outputStatus, "out.wav: cannot be written: the file would be larger than");
    EXPECT_EQ(names().size(), 4u);
}

TEST_F(Format, FramesAsJsonAndAsBareValues) {
    const std::string input = "1\n2\n3\n4\n0.1\n";
    EXPECT_EQ(run("transform --length 4 --layout ccs --format json", input).out,
              "{\"frame\":0,\"re\":[10,-2,-2],\"im\":[0,2,0]}\n"
              "{\"frame\":1,\"re\":[0.1,0.1,0.1],\"im\":[0,0,0]}\n");
    EXPECT_EQ(run("transform --length 2 --family Hartley --format json --times --frequencies "
                  "--rate 10",
                  input)
                  .out,
              "{\"frame\":0,\"time\":0,\"frequency\":[0,5],\"value\":[3,-1]}\n"
              "{\"frame\":1,\"time\":0.2,\"frequency\":[0,5],\"value\":[7,-1]}\n"
              "{\"frame\":2,\"time\":0.4,\"frequency\":[0,5],\"value\":[0.1,0.1]}\n");
    const std::string raw = "transform --length 4 --layout pack --format raw --precision ";
    EXPECT_EQ(numbers<float>(run(raw + "single", input).out),
              (std::vector<double>{10, 0, -2, 2, -2, 0, 0.1f, 0, 0.1f, 0, 0.1f, 0}));
    EXPECT_EQ(numbers<double>(run(raw + "double", input).out),
              (std::vector<double>{10, 0, -2, 2, -2, 0, 0.1, 0, 0.1, 0, 0.1, 0}));
}

TEST_F(Format, TimesAndFrequencies) {
    const std::string file = soundFile("sound.wav", 8000, 1, {0.5, 0.5, 0.5, 0.5, 0.5});
    const std::string options = "transform --times --frequencies --length 4 sound.wav --family ";
    const struct {
        std::string family, header;
        std::vector<double> frequencies;
    } cases[] = {
        {"DFTFwd_CToC", "frame,time,index,frequency,re,im\n", {0, 2000, 4000, -2000}},
        {"DFTFwd_RToPack", "frame,time,bin,frequency,re,im\n", {0, 2000, 4000}},
        {"Hartley", "frame,time,index,frequency,value\n", {0, 2000, 4000, -2000}},
        {"DCT4", "frame,time,index,frequency,value\n", {500, 1500, 2500, 3500}},
    };
    for (const auto& [family, header, frequencies] : cases) {
        SCOPED_TRACE(family);
        const std::string out = run(options + family).out;
        EXPECT_TRUE(out.starts_with(header)) << out;
        const auto found = rows(out);
        ASSERT_EQ(found.size(), 2 * frequencies.size());
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_EQ(found[i][1], i < frequencies.size() ? 0 : 4 / 8000.0);
            EXPECT_EQ(found[i][3], frequencies[i % frequencies.size()]);
        }
    }
    // Under windows that overlap frames begin before the sound.
    const auto found = rows(run("transform --times --family Hartley --length 4 --hop 2 "
                                "--window sqrt-hann sound.wav")
                                .out);
    ASSERT_EQ(found.size(), 4 * 4u);
    for (std::size_t i = 0; i < found.size(); ++i) {
        const std::size_t frame = i / 4;
        EXPECT_EQ(found[i][1], (2.0 * frame - 2) / 8000);
    }
    EXPECT_NEAR(found[0][3],
                0.5 * (std::sin(0.625 * std::acos(-1)) + std::sin(0.875 * std::acos(-1))), 1e-7);
}

}   // namespace
}   // namespace kfm::test
