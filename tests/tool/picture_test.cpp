// `kfmgen spectrogram` and the pictures of `kfmgen spectrum`: the numbers that gnuplot is given,
// the files that it makes of them, and the page that needs no gnuplot.
#include <algorithm>
#include <cstring>
#include <sstream>

#include "run_tool.h"
#include "sounds.h"

namespace kfm::test {
namespace {

// The levels of one panel, and where its pixels lie.
struct Panel {
    std::size_t columns = 0, rows = 0;
    double dx = 0, dy = 0, x = 0, y = 0;
    std::vector<float> levels;

    float level(std::size_t column, std::size_t row) const {
        return levels[row * columns + column];
    }
    std::size_t strongestRow(std::size_t column) const {
        std::size_t best = 0;
        for (std::size_t row = 1; row < rows; ++row)
            if (level(column, row) > level(column, best)) best = row;
        return best;
    }
};

std::vector<Panel> panelsIn(const std::string& script) {
    std::vector<Panel> panels;
    const std::string begin = "plot '-' binary ";
    for (std::size_t at = 0; (at = script.find(begin, at)) != std::string::npos;) {
        Panel panel;
        EXPECT_EQ(sscanf(script.c_str() + at + begin.size(),
                         "array=(%zu,%zu) format='%%float32' dx=%lf dy=%lf origin=(%lf,%lf)",
                         &panel.columns, &panel.rows, &panel.dx, &panel.dy, &panel.x, &panel.y),
                  6);
        at = script.find('\n', at) + 1;
        panel.levels.resize(panel.columns * panel.rows);
        std::memcpy(panel.levels.data(), script.data() + at, sizeof(float) * panel.levels.size());
        at += sizeof(float) * panel.levels.size();
        panels.push_back(panel);
    }
    return panels;
}

class Picture : public ToolTest {
protected:
    // What gnuplot would be given, by a program of that name.
    std::string script(const std::string& arguments) const {
        fake("cat > script; echo picture");
        const Outcome outcome = shell("PATH=\"$PWD:$PATH\" \"$kfmgen\" " + arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        return contents("script");
    }

    void fake(const std::string& commands) const {
        textFile("gnuplot", "#!/bin/sh\n" + commands + "\n");
        std::filesystem::permissions(path("gnuplot"), std::filesystem::perms{0755});
    }

    bool drawn() const { return shell("gnuplot --version").status == 0; }
};

std::vector<double> interleaved(const std::vector<std::vector<double>>& channels) {
    std::vector<double> samples;
    for (std::size_t n = 0; n < channels.front().size(); ++n)
        for (const std::vector<double>& channel : channels) samples.push_back(channel[n]);
    return samples;
}

TEST_F(Picture, SpectrogramHasEachToneWhereAndWhenItSounds) {
    const double rate = 16000;
    // Full scale, then 40 dB less an octave higher; the other channel is silent.
    std::vector<double> samples = tones(rate, 16000, {{2000, 0}});
    append(samples, tones(rate, 16000, {{4000, -40}}));
    const std::string file =
        soundFile("sound.wav", rate, 2, interleaved({samples, std::vector<double>(32000)}),
                  SF_FORMAT_WAV | SF_FORMAT_FLOAT);
    for (const std::string window : {"hann", "blackman-harris", "none"}) {
        SCOPED_TRACE(window);
        const std::vector<Panel> panels =
            panelsIn(script("spectrogram -o out.png --window " + window + " " + file));
        ASSERT_EQ(panels.size(), 2u);
        const Panel& panel = panels[0];
        EXPECT_NEAR(panel.dx * panel.columns, 2, panel.dx);
        EXPECT_NEAR(panel.dy * panel.rows, 8, 1e-6);   // kHz
        EXPECT_NEAR(panel.x, panel.dx / 2, 1e-9);
        EXPECT_NEAR(panel.y, panel.dy / 2, 1e-9);
        for (const double second : {0.1, 0.5, 0.9, 1.1, 1.5, 1.9}) {
            SCOPED_TRACE(second);
            const auto column = static_cast<std::size_t>(second / panel.dx);
            const std::size_t row = panel.strongestRow(column);
            EXPECT_NEAR(panel.y + row * panel.dy, second < 1 ? 2 : 4, panel.dy);
            // Between two bins a tone is seen a little fainter, most of all without a window.
            EXPECT_NEAR(panel.level(column, row), second < 1 ? 0 : -40, window == "none" ? 1 : 0.4);
            if (window != "none") {
                EXPECT_LT(panel.level(column, row + 40), second < 1 ? -80 : -100);
            }
        }
        for (const float level : panels[1].levels) ASSERT_EQ(level, -150);
    }
}

// However long the sound is, no more pixels than can be seen, at their times.
TEST_F(Picture, SpectrogramOfALongSoundIsAsWide) {
    std::vector<double> samples(20 * 8000);
    append(samples, tones(8000, 8000, {{1000, 0}}));
    samples.resize(101 * 8000);
    const std::string file = soundFile("sound.wav", 8000, 1, samples);
    for (const std::string from : {"sound.wav", "- < <(cat sound.wav)"}) {
        SCOPED_TRACE(from);
        const Panel panel = panelsIn(script("spectrogram --length 256 -o out.png " + from)).at(0);
        EXPECT_LE(panel.columns, 1000u);
        EXPECT_GT(panel.columns, from == "sound.wav" ? 900u : 500u);
        EXPECT_NEAR(panel.columns * panel.dx, 101, panel.dx);
        std::size_t loud = 0;
        for (std::size_t column = 0; column < panel.columns; ++column) {
            const double begin = column * panel.dx, end = begin + panel.dx;
            const float level = panel.level(column, panel.strongestRow(column));
            if (begin > 20.1 && end < 20.9) {
                EXPECT_NEAR(level, 0, 0.4);
                ++loud;
            }
            if (end < 19.9 || begin > 21.1) {
                EXPECT_EQ(level, -150);
            }
        }
        EXPECT_GE(loud, 3u);
    }
}

TEST_F(Picture, SpectrumIsTheMeanOfEachChannel) {
    const std::vector<double> left = tones(48000, 48000, {{1000, 0}}),
                              right = tones(48000, 48000, {{5000, -30}});
    const std::string file = soundFile("sound.wav", 48000, 2, interleaved({left, right}),
                                       SF_FORMAT_WAV | SF_FORMAT_FLOAT);
    const struct {
        std::string options;
        double unit;   // Hz
        std::vector<Tone> peaks;
    } cases[] = {
        {"", 1, {{1000, 0}, {5000, -30}}},
        {"--frequency linear --window hann --length 1024", 1000, {{1000, 0}, {5000, -30}}},
        {"--channel 2 --overlap 0", 1, {{5000, -30}}},
        {"--channel mix", 1, {{1000, -6.02}}},
    };
    for (const auto& [options, unit, peaks] : cases) {
        SCOPED_TRACE(options);
        std::istringstream lines(script("spectrum -o out.svg " + options + " " + file));
        std::vector<Tone> found;
        double frequency, level;
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("$channel")) found.push_back({0, -1000});
            else if (sscanf(line.c_str(), "%lf %lf", &frequency, &level) == 2 &&
                     level > found.back().decibels)
                found.back() = {frequency * unit, level};
        }
        ASSERT_EQ(found.size(), peaks.size());
        for (std::size_t i = 0; i < peaks.size(); ++i) {
            EXPECT_NEAR(found[i].frequency, peaks[i].frequency, 12);
            EXPECT_NEAR(found[i].decibels, peaks[i].decibels, 0.4);
        }
    }
}

// By gnuplot itself: whatever the title is, text and no command; and nothing but the picture.
TEST_F(Picture, FilesOfBothKinds) {
    if (!drawn()) GTEST_SKIP() << "gnuplot is not installed";
    soundFile("a _sound'.wav", 44100, 2, whiteNoise(20000));
    const std::string title = " --title \"it's \\`touch no\\` \\$(touch no) @no %d <&> \xC3\xA9\"";
    for (const std::string command : {"spectrogram ", "spectrum "})
        for (const std::string file : {"out.png", "out.svg"}) {
            SCOPED_TRACE(command + file);
            textFile(file, "old");
            const Outcome outcome = run(command + "\"a _sound'.wav\" -o " + file + title);
            EXPECT_EQ(outcome.status, 0) << outcome.err;
            EXPECT_EQ(outcome.out + outcome.err, "");
            const std::string picture = contents(file);
            if (file == "out.svg") {
                EXPECT_NE(picture.find("it's `touch no` $(touch no) @no %d &lt;&amp;> \xC3\xA9"),
                          std::string::npos);
                EXPECT_TRUE(picture.ends_with("</svg>\n\n")) << picture.substr(picture.size() - 9);
            } else {
                EXPECT_EQ(picture.substr(0, 8), "\x89PNG\r\n\x1A\n");
                EXPECT_EQ(picture.substr(16, 4), std::string("\0\0\x04\xB0", 4));   // 1200 wide
            }
            std::filesystem::remove(path(file));
        }
    EXPECT_EQ(names(), std::vector<std::string>{"a _sound'.wav"});
}

TEST_F(Picture, WhatCannotBeDrawnIsSaidAndLeavesTheOldPicture) {
    soundFile("sound.wav", 8000, 1, whiteNoise(3000));
    soundFile("nine.wav", 8000, 9, std::vector<double>(900));
    textFile("text", "1\n2\n");
    textFile("out.png", "old");
    std::filesystem::create_directory(path("empty"));
    const struct {
        std::string fake, arguments;
        int status;
        std::string words;
    } cases[] = {
        {"exit 0", "-o out.png sound.wav", outputStatus, "out.png: cannot be drawn: gnuplot drew"},
        {"echo x; echo 'no such terminal' >&2; exit 3", "-o out.png sound.wav", outputStatus,
         "out.png: cannot be drawn: gnuplot ended with status 3: no such terminal\n"},
        {"echo x; kill -9 $$", "-o out.png sound.wav", outputStatus, "status 137\n"},
        {"", "-o out.jpg sound.wav", usageStatus, "out.jpg: the name of a picture ends in"},
        {"", "-o out.png text", inputStatus, "text: is text, not a sound\n"},
        {"", "-o out.png nine.wav", inputStatus, "choose one by --channel\n"},
        {"", "-o out.png --length 1000 sound.wav", usageStatus, "such as 512 or 1024\n"},
        {"", "-o out.png --length 32 sound.wav", usageStatus, "--length: '32' is not from 64"},
        {"", "-o out.png --range 0:-90 sound.wav", usageStatus, "--range: '0:-90' is not two"},
        {"", "-o out.png --range 5 sound.wav", usageStatus, "--range: '5' is not two"},
        {"", "-o out.png --overlap 100 sound.wav", usageStatus, "--overlap: '100' is not from"},
        {"", "-o out.png --window kaiser sound.wav", usageStatus, "'kaiser' is none of"},
        {"", "--title x sound.wav", usageStatus, "--output"},
    };
    for (const auto& [commands, arguments, status, words] : cases)
        for (const std::string command : {"spectrogram ", "spectrum "}) {
            SCOPED_TRACE(command + arguments);
            fake(commands);
            expectRefusal(shell("PATH=\"$PWD:$PATH\" \"$kfmgen\" " + command + arguments), status,
                          words);
            EXPECT_EQ(contents("out.png"), "old");
        }
    expectRefusal(shell("PATH=empty; \"$kfmgen\" spectrogram -o out.png sound.wav"), outputStatus,
                  "out.png: cannot be drawn: gnuplot is not installed (Debian: gnuplot-nox)\n");
    expectRefusal(run("spectrum --window hann sound.wav"), usageStatus, "--output");
    expectRefusal(run("spectrum --slice 1 -o out.png sound.wav"), usageStatus, "--slice");
}

// Log rows from the highest down to three periods of the window; a screen of 24 lines.
TEST_F(Picture, PageFitsTheTerminal) {
    for (const int rate : {10, 8000, 48000, 2147483647})
        for (const std::size_t count : {1, 50, 3000, 200000}) {
            SCOPED_TRACE(testing::Message() << rate << " " << count);
            soundFile("sound.wav", rate, 1, tones(rate, count, {{0.1 * rate, 0}}));
            const Outcome page = run("spectrogram sound.wav");
            EXPECT_EQ(page.err, "");
            std::istringstream lines(page.out);
            std::size_t number = 0, shaded = 0, width = 0;
            for (std::string line; std::getline(lines, line); ++number) {
                EXPECT_LE(line.size(), 80u) << line;
                if (line.size() < 8 || line[7] != '|') continue;
                ++shaded;
                width = line.size();
            }
            EXPECT_LE(number, 23u);
            EXPECT_EQ(shaded, 16u) << page.out;
            EXPECT_EQ(width, 79u);
            for (const std::string no : {"inf", "nan"})
                EXPECT_EQ(page.out.find(no), std::string::npos) << page.out;
        }
    soundFile("sound.wav", 8000, 1, tones(8000, 16000, {{1050, 0}}));
    const std::string page = run("spectrogram --window blackman-harris sound.wav").out;
    EXPECT_NE(page.find("\n    1k |@@@@@@@@@"), std::string::npos) << page;
}

}   // namespace
}   // namespace kfm::test
