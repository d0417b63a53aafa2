// The page of `kfmgen spectrum`: what it says about a sound, row by row, in 80 columns.
#include <algorithm>
#include <map>
#include <sstream>

#include "run_tool.h"
#include "sounds.h"

namespace kfm::test {
namespace {

struct PageRow {
    double start;
    double level;
    std::vector<double> tones;
    std::string shades;
};

struct Page {
    std::vector<std::string> lines;
    std::vector<PageRow> rows;
    std::vector<Tone> peaks;

    std::string line(const std::string& beginning) const {
        for (const std::string& line : lines)
            if (line.starts_with(beginning)) return line;
        return "";
    }
    bool says(const std::string& beginning, const std::string& words) const {
        return line(beginning).find(words) != std::string::npos;
    }
};

constexpr double silent = -1e9;

double levelIn(const std::string& words) {
    return words.find("silent") != std::string::npos ? silent : std::stod(words);
}

Page parsed(const std::string& text) {
    Page page;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        page.lines.push_back(line);
        const std::size_t bar = line.find('|');
        if (line.ends_with('|')) {
            PageRow row{std::stod(line.substr(0, 8)),
                        levelIn(line.substr(8, 10)),
                        {},
                        line.substr(bar + 1, line.size() - bar - 2)};
            std::istringstream tones(line.substr(18, bar - 18));
            for (double tone; tones >> tone;) row.tones.push_back(tone);
            page.rows.push_back(row);
        } else if (line.find(" Hz ") == 8) {
            page.peaks.push_back({std::stod(line), levelIn(line.substr(11))});
        }
    }
    return page;
}

class Spectrum : public ToolTest {
protected:
    // A sound of doubles, so that any sample can be written.
    Page page(int rate, int channels, const std::vector<double>& samples,
              const std::string& options = "") const {
        const std::string file =
            soundFile("sound.wav", rate, channels, samples, SF_FORMAT_WAV | SF_FORMAT_DOUBLE);
        const Outcome outcome = run("spectrum " + options + " " + file);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        for (const std::string no : {"inf", "nan", "-0.0 "})
            EXPECT_EQ(outcome.out.find(no), std::string::npos) << outcome.out;
        Page page = parsed(outcome.out);
        for (const std::string& line : page.lines) EXPECT_LE(line.size(), 80u) << line;
        EXPECT_FALSE(page.rows.empty());
        return page;
    }
};

TEST_F(Spectrum, SaysWhatItShows) {
    const Page shown = page(48000, 1, tones(48000, 72000, {{1000, -6}, {2000, -46}}));
    EXPECT_EQ(shown.lines.front(), "sound.wav");
    EXPECT_TRUE(shown.says("  sound ", "1.50 s, 72000 samples at 48000 Hz; one channel"));
    EXPECT_TRUE(shown.says("  window", "Blackman-Harris, 8192 samples, 0.171 s; DCT-IV"));
    EXPECT_TRUE(shown.says("  range ", "17.6 to 24000 Hz in steps of 2.93 Hz; resolution 29.3"));
    EXPECT_TRUE(shown.says("  levels", "sine of full scale"));
    EXPECT_TRUE(shown.says("  rows  ", "of 0.1 s; a shade is 6 dB"));
    EXPECT_TRUE(shown.says("   whole", "   -6.0 dB"));
    ASSERT_EQ(shown.peaks.size(), 2u);
    EXPECT_NEAR(shown.peaks[0].frequency, 1000, 0.11);
    EXPECT_NEAR(shown.peaks[0].decibels, -6, 0.11);
    EXPECT_NEAR(shown.peaks[1].frequency, 2000, 0.11);
    EXPECT_NEAR(shown.peaks[1].decibels, -46, 0.11);
    EXPECT_EQ(shown.rows.size(), 15u);
    for (const PageRow& row : shown.rows) EXPECT_EQ(row.tones, (std::vector{1000.0, 2000.0}));
}

// One character per third of an octave, a shade per 6 dB; the axis names columns.
TEST_F(Spectrum, ShadesStandWhereTheTonesAre) {
    for (const int rate : {8000, 48000, 192000})
        for (const double frequency : {100.0, 1000.0, 3900.0}) {
            SCOPED_TRACE(testing::Message() << frequency << " Hz at " << rate);
            std::vector<double> samples = tones(rate, rate, {{frequency * 1.03, 0}});
            append(samples, std::vector<double>(rate));
            append(samples, tones(rate, rate, {{frequency * 1.03, -31}}));
            const Page shown = page(rate, 1, samples, "--slice 1");
            ASSERT_EQ(shown.rows.size(), 3u);
            const std::size_t column = shown.rows[0].shades.find('@');
            ASSERT_NE(column, std::string::npos);
            const std::string& faint = shown.rows[2].shades;
            EXPECT_EQ(faint[column], '=') << "'" << faint << "'";
            EXPECT_EQ(faint.find_first_of("+*#%@"), std::string::npos) << "'" << faint << "'";
            const std::string axis = shown.line(" time, s");
            if (frequency < 2000) {
                EXPECT_EQ(axis.find(frequency < 200 ? "|100" : "|1k"), column + 41) << axis;
            }
        }
}

TEST_F(Spectrum, SlicesAreRows) {
    std::vector<double> samples;
    for (int i = 0; i < 3; ++i) append(samples, tones(8000, 4000, {{500.0 + 1000 * i, -10.0 * i}}));
    append(samples, std::vector<double>(5000));
    const Page shown = page(8000, 1, samples, "--slice 0.5");
    ASSERT_EQ(shown.rows.size(), 5u);
    for (int i = 0; i < 5; ++i) {
        const PageRow& row = shown.rows[i];
        EXPECT_EQ(row.start, 0.5 * i);
        EXPECT_NEAR(row.level, i < 3 ? -10 * i : silent, 0.05);
        if (i < 3) {
            ASSERT_FALSE(row.tones.empty());
            EXPECT_NEAR(row.tones.front(), 500 + 1000 * i, 1);
        }
    }
    EXPECT_EQ(shown.rows[4].tones.size(), 0u);
    EXPECT_EQ(shown.rows[4].shades, std::string(shown.rows[0].shades.size(), ' '));
}

TEST_F(Spectrum, WithoutTones) {
    for (const std::size_t count : {1, 2, 100, 8192, 30000})
        for (const double constant : {0.0, 0.5, -1e300, 1.7e308}) {
            SCOPED_TRACE(testing::Message() << constant << " x " << count);
            const Page shown = page(44100, 1, std::vector<double>(count, constant));
            for (const PageRow& row : shown.rows) {
                EXPECT_EQ(row.level, silent);
                EXPECT_TRUE(row.tones.empty());
                EXPECT_EQ(row.shades.find_first_not_of(' '), std::string::npos);
            }
            EXPECT_TRUE(shown.says("   whole", "silent  no peaks"));
            std::ostringstream mean;
            mean.precision(5);
            mean << "the mean, " << constant << ",";
            EXPECT_TRUE(shown.says("  levels", mean.str())) << shown.line("  levels");
        }
}

TEST_F(Spectrum, ExtremesStayOnThePage) {
    for (const int rate : {1, 10, 96000, 192000, 2147483647})
        for (const double level : {-6000.0, -152.0, 0.0, 6000.0})
            for (const std::size_t count : {2, 7, 300, 70000}) {
                SCOPED_TRACE(testing::Message() << rate << " " << level << " " << count);
                const Page shown = page(rate, 1, tones(rate, count, {{0.15 * rate, level}}));
                EXPECT_EQ(shown.says("  range", "1073.7M Hz"), rate > 1000000 && count >= 7);
                if (count < 300) continue;
                ASSERT_EQ(shown.peaks.empty(), level < 0);
                for (const PageRow& row : shown.rows)
                    EXPECT_EQ(row.shades.find('@') == std::string::npos, level < 0);
                if (level >= 0) {
                    EXPECT_NEAR(shown.peaks.front().decibels, level, 0.11);
                }
            }
}

TEST_F(Spectrum, ChannelsAreMixedOrChosen) {
    std::vector<double> interleaved;
    const std::vector<double> left = tones(8000, 8000, {{1000, -6}, {2000, -20}});
    const std::vector<double> right = tones(8000, 8000, {{1000, -6}, {2000, -20}, {3000, -40}});
    for (std::size_t n = 0; n < left.size(); ++n) {
        interleaved.push_back(left[n]);
        interleaved.push_back(-right[n]);
    }
    struct Case {
        std::string option, words;
        std::vector<double> tones;
    };
    for (const Case& each : {Case{"", "mean of 2 channels", {3000}},
                             {"--channel mix", "mean of 2 channels", {3000}},
                             {"--channel 1", "channel 1 of 2", {1000, 2000}},
                             {"--channel 2", "channel 2 of 2", {1000, 2000, 3000}}}) {
        const Page shown = page(8000, 2, interleaved, each.option);
        EXPECT_TRUE(shown.says("  sound ", each.words)) << shown.line("  sound ");
        for (const PageRow& row : shown.rows) EXPECT_EQ(row.tones, each.tones);
    }
}

TEST_F(Spectrum, Refusals) {
    for (const std::string bad : {"nan", "inf", "0", "-1", "0x1", "1e", "3601", "''"})
        expectRefusal(run("spectrum --slice " + bad + " none.wav"), usageStatus, "--slice");
    expectRefusal(run("spectrum " + textFile("text.csv", "1\n2\n")), inputStatus, "is text");
    soundFile("empty.wav", 8000, 1, {});
    expectRefusal(run("spectrum empty.wav"), inputStatus, "empty.wav");
}

TEST_F(Spectrum, MemoryDoesNotGrowWithTheSound) {
    const std::map<std::string, std::size_t> rows = {{"", 13}, {" --slice 0.1", 12505}};
    for (const auto& [options, count] : rows) {
        const Outcome outcome = shell("(printf 'loud%.0s' {1..1000}; head -c 10000000 /dev/zero) |"
                                      " \"$kfmgen\" spectrum --raw u8 --raw-rate 8000" +
                                      options);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(parsed(outcome.out).rows.size(), count);
        if (KFM_SANITIZED) continue;   // a sanitizer takes memory of its own
        EXPECT_LT(outcome.peakKiB, 20000) << options;
    }
}

}   // namespace
}   // namespace kfm::test
