// Sounds: which are known, which channels are taken, and that one which is not all there is told.
#include <algorithm>
#include <iomanip>
#include <limits>
#include <map>
#include <sstream>

#include "run_tool.h"

namespace kfm::test {
namespace {

class Sound : public ToolTest {
protected:
    // Small multiples of 1/128, which every encoding with linear steps holds, in two channels.
    static std::vector<double> stereo(int count) {
        std::vector<double> samples;
        for (int i = 0; i < count; ++i) {
            samples.push_back((i * 37 % 199 - 99) / 128.0);
            samples.push_back((i * 53 % 211 - 105) / 128.0);
        }
        return samples;
    }

    static std::string digits(double value) {
        std::ostringstream text;
        text << std::setprecision(17) << value;
        return text.str();
    }

    // A row per pair of samples: a mean of `left` and `right` with these weights.
    std::string text(const std::vector<double>& stereo, double left, double right) const {
        std::string lines;
        for (std::size_t i = 0; i < stereo.size(); i += 2)
            lines += digits(left * stereo[i] + right * stereo[i + 1]) + "\n";
        return lines;
    }

    static inline const std::string transform = "transform --family Hartley --length 2 ";
};

// Far beyond the blocks in which a sound is read.
TEST_F(Sound, ChannelsOfStereo) {
    const std::vector<double> samples = stereo(100001);
    const std::string file = soundFile("stereo.wav", 8000, 2, samples);
    const struct {
        const char* option;
        double left, right;
    } cases[] = {{"--channel 1 ", 1, 0}, {"--channel 2 ", 0, 1}, {"--channel mix ", 0.5, 0.5}};
    for (const auto& [option, left, right] : cases) {
        textFile("text", text(samples, left, right));
        EXPECT_TRUE(run(transform + option + file).out == run(transform + "text").out) << option;
    }
    std::string pairs = "re,im\n";
    for (std::size_t i = 0; i < samples.size(); i += 2)
        pairs += digits(samples[i]) + "," + digits(samples[i + 1]) + "\n";
    textFile("text", pairs);
    EXPECT_TRUE(run("transform --length 3 --complex " + file).out ==
                run("transform --length 3 text").out);
}

TEST_F(Sound, ChannelsHaveToBeChosen) {
    const std::string stereo = soundFile("2.wav", 8000, 2, {0, 0, 0, 0});
    const std::string mono = soundFile("1.wav", 8000, 1, {0, 0});
    const std::string three = soundFile("3.wav", 8000, 3, {0, 0, 0});
    const struct {
        std::string arguments, line;
    } cases[] = {
        {stereo, "2.wav: 2 channels: choose one by --channel 1 to 2, their mean by --channel mix, "
                 "or two as a complex signal by --complex\n"},
        {three, "3.wav: 3 channels: choose one by --channel 1 to 3"},
        {"--complex " + mono, "1.wav: 1 channel, but --complex takes two\n"},
        {"--complex " + three, "3.wav: 3 channels, but --complex takes two\n"},
        {"--channel 3 " + stereo, "2.wav: 2 channels, none of them is number 3\n"},
        {soundFile("empty.wav", 8000, 1, {}), "empty.wav: no samples\n"},
    };
    for (const auto& [arguments, line] : cases)
        expectRefusal(run("transform --length 2 -o out " + arguments), inputStatus,
                      "kfmgen: " + line);
    for (const std::string option : {"", "--channel 1 ", "--channel mix "})
        EXPECT_EQ(run("transform --length 2 " + option + mono).status, 0) << option;
}

// Cut off anywhere, also in the header.
TEST_F(Sound, TruncatedFilesAreTold) {
    const std::vector<double> samples = stereo(60000);
    const struct {
        std::string name;
        int format;
    } kinds[] = {
        {"wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16},   {"wav24", SF_FORMAT_WAVEX | SF_FORMAT_PCM_24},
        {"float", SF_FORMAT_WAV | SF_FORMAT_DOUBLE}, {"rf64", SF_FORMAT_RF64 | SF_FORMAT_PCM_16},
        {"ulaw", SF_FORMAT_WAV | SF_FORMAT_ULAW},    {"aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16},
        {"au", SF_FORMAT_AU | SF_FORMAT_PCM_16},     {"caf", SF_FORMAT_CAF | SF_FORMAT_PCM_16},
        {"flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16},
    };
    for (const auto& [name, format] : kinds) {
        soundFile("whole", 8000, 2, samples, format);
        const std::string command = transform + "--channel 1 ";
        const Outcome whole = run(command + "whole");
        EXPECT_EQ(std::ranges::count(whole.out, '\n'), 60001) << name << whole.err;
        for (const int permille : {2, 100, 500, 999}) {
            SCOPED_TRACE(name + " " + std::to_string(permille));
            const auto size = std::filesystem::file_size(path("whole")) * permille / 1000;
            for (const std::string from : {"", "cat part | "}) {
                const Outcome outcome =
                    shell("head -c " + std::to_string(size) + " whole > part; " + from +
                          "\"$kfmgen\" " + command + "-o out " + (from.empty() ? "part" : "-"));
                expectRefusal(outcome, inputStatus, "kfmgen: ");
                if (permille < 100) continue;
                EXPECT_NE(outcome.err.find(" samples of 60000\n"), std::string::npos)
                    << outcome.err;
            }
        }
    }
}

TEST_F(Sound, LastSampleIsCounted) {
    soundFile("whole.wav", 8000, 1, std::vector<double>(1000, 0.5));
    const Outcome outcome = shell("head -c 1042 whole.wav > part.wav; \"$kfmgen\" transform "
                                  "--length 2 -o out part.wav");
    expectRefusal(outcome, inputStatus, "kfmgen: part.wav: ends after 499 samples of 1000\n");
    // The length in the header alone is what is believed.
    shell("{ head -c40 whole.wav; printf '\\xd2\\x07\\0\\0'; tail -c+45 whole.wav; } > more.wav");
    expectRefusal(run("transform --length 2 -o out more.wav"), inputStatus,
                  "kfmgen: more.wav: ends after 1000 samples of 1001\n");
}

// A decoder of blocks gives silence for those that are missing.
TEST_F(Sound, MissingBlocksAreNoSilence) {
    soundFile("whole.wav", 8000, 1, std::vector<double>(40000, 0.5),
              SF_FORMAT_WAV | SF_FORMAT_GSM610);
    EXPECT_EQ(run("transform --length 2 whole.wav").status, 0);
    shell("head -c 5000 whole.wav > part.wav");
    expectRefusal(run("transform --length 2 -o out part.wav"), inputStatus,
                  "kfmgen: part.wav: ends after 5000 bytes, before the last of ");
}

TEST_F(Sound, WithoutAHeaderByOptionOnly) {
    const std::vector<double> samples = stereo(5000);
    textFile("text", text(samples, 0, 1));
    const std::string expected = run(transform + "text").out;
    const auto expectSame = [&](const std::string& name, int encoding) {
        soundFile("data.raw", 8000, 2, samples, SF_FORMAT_RAW | encoding);
        const std::string options = "--raw " + name + " --raw-channels 2 --channel 2 ";
        EXPECT_TRUE(run(transform + options + "data.raw").out == expected) << name;
        EXPECT_TRUE(run(transform + options + "- <data.raw").out == expected) << name;
        const Outcome piped = shell("cat data.raw | \"$kfmgen\" " + (transform + options));
        EXPECT_TRUE(piped.out == expected) << name;
    };
    expectSame("s8", SF_FORMAT_PCM_S8);
    expectSame("u8", SF_FORMAT_PCM_U8);
    const std::map<std::string, int> widths = {{"s16", SF_FORMAT_PCM_16},
                                               {"s24", SF_FORMAT_PCM_24},
                                               {"s32", SF_FORMAT_PCM_32},
                                               {"f32", SF_FORMAT_FLOAT},
                                               {"f64", SF_FORMAT_DOUBLE}};
    for (const auto& [width, encoding] : widths) {
        expectSame(width + "le", encoding | SF_ENDIAN_LITTLE);
        expectSame(width + "be", encoding | SF_ENDIAN_BIG);
    }
    soundFile("laws", 8000, 1, {0.5, -0.25}, SF_FORMAT_RAW | SF_FORMAT_ULAW);
    EXPECT_EQ(std::ranges::count(run(transform + "--raw ulaw laws").out, '\n'), 3);
    EXPECT_EQ(std::ranges::count(run(transform + "--raw alaw laws").out, '\n'), 3);
}

// The name of a file tells nothing.
TEST_F(Sound, KindIsToldByTheContent) {
    std::string noise;
    for (int i = 0; i < 5000; ++i) noise += static_cast<char>(i * i * 7 % 251 + (i % 5 == 0));
    for (const std::string ending : {"au", "snd", "vox", "gsm", "mp3", "wav", "raw", "sd2"}) {
        SCOPED_TRACE(ending);
        EXPECT_EQ(run("transform --length 2 " + textFile("text." + ending, "1\n2\n")).out,
                  "frame,index,re,im\n0,0,3,0\n0,1,-1,0\n");
        expectRefusal(run("transform --length 2 " + textFile("noise." + ending, noise)),
                      inputStatus, "noise." + ending + ": neither a text nor a sound");
    }
    soundFile("sound.txt", 8000, 1, {0.5, 0.25});
    EXPECT_EQ(run("transform --length 2 sound.txt").out,
              "frame,index,re,im\n0,0,0.75,0\n0,1,0.25,0\n");
}

TEST_F(Sound, DamageIsToldInOurWords) {
    const auto damaged = [&](const std::string& name, int format, std::size_t from) {
        soundFile(name, 44100, 1, std::vector<double>(50000, 0.25), format);
        std::string bytes = contents(name);
        for (std::size_t i = from; i < bytes.size(); i += 7) bytes[i] ^= 0x5A;
        return textFile(name, bytes);
    };
    // What decoders get over is no error, but not a word of theirs is seen.
    for (const std::string& name : {damaged("mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, 600),
                                    damaged("flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 90),
                                    damaged("wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 4),
                                    damaged("ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS, 100)}) {
        const Outcome outcome = run("transform --length 4 -o out " + name);
        SCOPED_TRACE(name + outcome.err);
        if (outcome.status == 0) EXPECT_EQ(outcome.err, "");
        else expectRefusal(outcome, inputStatus, "kfmgen: " + name + ": ");
    }
    std::vector<double> samples(1000, 0.5);
    samples[500] = std::numeric_limits<double>::quiet_NaN();
    soundFile("nan.wav", 8000, 1, samples, SF_FORMAT_WAV | SF_FORMAT_DOUBLE);
    expectRefusal(run("transform --length 2 -o out nan.wav"), inputStatus,
                  "kfmgen: nan.wav: sample 500: not a finite number\n");
}

}   // namespace
}   // namespace kfm::test
