// The analysis behind `kfmgen spectrum`: tones, levels and noise whose answers are known, over all
// rates, places and loudnesses.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "sounds.h"
#include "spectrum/analysis.h"
#include "spectrum/peaks.h"

namespace kfm::test {
namespace {

using tool::FrequencyGrid;
using tool::Peak;

const std::vector<double> rates = {8000, 44100, 48000, 96000};
constexpr double silent = -std::numeric_limits<double>::infinity();

struct Row {
    double start;
    std::uint64_t samples;
    double mean;
    double level;
    std::vector<Peak> peaks;
};

struct Analysed {
    FrequencyGrid grid;
    Row whole;
    std::vector<double> levels;   // of each bin
    std::vector<Row> rows;
    double sliceSeconds;
};

Row rowOf(const tool::Slice& slice, const FrequencyGrid& grid) {
    return {slice.start, slice.moments.count(), slice.moments.mean(), slice.moments.decibels(),
            strongestPeaks(slice.spectrum, grid, 10)};
}

Analysed analysed(double rate, std::span<const double> samples, double sliceSeconds = 0,
                  std::size_t block = 1000) {
    std::vector<Row> rows;
    tool::SpectrumAnalysis analysis(rate, sliceSeconds,
                                    [&](const tool::Slice& slice, const FrequencyGrid& grid) {
                                        rows.push_back(rowOf(slice, grid));
                                    });
    for (std::size_t i = 0; i < samples.size(); i += block)
        analysis.add(samples.subspan(i, std::min(block, samples.size() - i)));
    analysis.finish();
    std::vector<double> levels;
    for (const float power : analysis.whole().spectrum.powers())
        levels.push_back(analysis.whole().spectrum.decibels(power));
    return {analysis.grid(), rowOf(analysis.whole(), analysis.grid()), levels, rows,
            analysis.sliceSeconds()};
}

void expectTones(const std::vector<Peak>& peaks, const std::vector<Tone>& given, double hertz,
                 double decibels) {
    ASSERT_EQ(peaks.size(), given.size());
    for (std::size_t i = 0; i < given.size(); ++i) {
        EXPECT_NEAR(peaks[i].frequency, given[i].frequency, hertz);
        EXPECT_NEAR(peaks[i].decibels, given[i].decibels, decibels) << given[i].frequency << " Hz";
    }
}

TEST(SpectrumAnalysis, EveryToneIsFoundAtItsLevelAndNothingElse) {
    for (const double rate : rates)
        for (const double frequency :
             {20.0, 21.7, 50.0, 100.3, 440.0, 997.0, 0.1234 * rate, 0.25 * rate, 0.4567 * rate,
              rate / 2 - 50, rate / 2 - 20, rate / 2 - 5, rate / 2 - 1})
            for (const double decibels : {0.0, -6.0, -60.0}) {
                SCOPED_TRACE(testing::Message() << rate << " " << frequency << " " << decibels);
                const std::vector<Tone> given = {{frequency, decibels}};
                const Analysed found = analysed(rate, tones(rate, 1.5 * rate, given));
                // Closer than that to half the rate a frame does not tell the tone from its image.
                const bool inside = rate / 2 - frequency > 4 * found.grid.unit();
                const double step = found.grid.step();
                expectTones(found.whole.peaks, given, inside ? 0.05 * step : step,
                            inside ? 0.05 : 1);
                EXPECT_LE(found.grid.lowest(), 20);
                EXPECT_NEAR(found.whole.level, decibels, 0.2);
            }
}

TEST(SpectrumAnalysis, FainterToneIsFoundBesideALouderOne) {
    for (const double rate : rates) {
        const double apart =
            FrequencyGrid{rate, tool::frameLength(rate), tool::frameLength(rate)}.separation();
        for (const double distance : {apart, 1.37 * apart, 2 * apart, 10 * apart, 0.3 * rate})
            for (const double lower : {-40.0, -60.0})
                for (const double first : {40.0, 1003.0, 0.15 * rate}) {
                    if (lower < -40 && distance == apart) continue;
                    SCOPED_TRACE(testing::Message() << rate << " " << first << " + " << distance);
                    const std::vector<Tone> given = {{first, -3}, {first + distance, -3 + lower}};
                    const Analysed found = analysed(rate, tones(rate, 1.5 * rate, given));
                    expectTones(found.whole.peaks, given, found.grid.step(), 1);
                }
    }
}

TEST(SpectrumAnalysis, ConstantIsTheMeanAndNoTone) {
    for (const double constant : {0.0, 0.1, -1.0, 1e300, -1e-300, 1.7e308, 5e-324})
        for (const std::size_t count : {1, 2, 3, 100, 20001}) {
            SCOPED_TRACE(testing::Message() << constant << " x " << count);
            const Analysed found = analysed(48000, std::vector<double>(count, constant));
            EXPECT_EQ(found.whole.mean, constant);
            EXPECT_EQ(found.whole.level, silent);
            EXPECT_EQ(std::ranges::count(found.levels, silent), std::ssize(found.levels));
            EXPECT_TRUE(found.whole.peaks.empty());
            EXPECT_EQ(found.whole.samples, count);
        }
}

TEST(SpectrumAnalysis, ToneOnAConstantAtAnyLoudness) {
    for (const double decibels : {0.0, 5900.0, -5900.0}) {
        const std::vector<Tone> given = {{123.4, decibels}, {20, decibels - 40}};
        std::vector<double> samples = tones(48000, 96000, given);
        const double constant = 3 * amplitude(decibels);
        for (double& sample : samples) sample += constant;
        const Analysed found = analysed(48000, samples);
        expectTones(found.whole.peaks, given, found.grid.step() / 2, 0.1);
        EXPECT_NEAR(found.whole.mean / constant, 1, 1e-3);
        EXPECT_NEAR(found.whole.level, decibels, 0.01);
    }
}

// What is louder by any amount comes after or before: sums keep a common scale.
TEST(SpectrumAnalysis, LoudAndFaintInOneSound) {
    const std::vector<double> loud = tones(8000, 16000, {{1000, 200}});
    const std::vector<double> faint = tones(8000, 16000, {{3000, 0}});
    for (const bool loudFirst : {true, false}) {
        std::vector<double> samples = loudFirst ? loud : faint;
        append(samples, loudFirst ? faint : loud);
        const Analysed found = analysed(8000, samples, 1);
        ASSERT_EQ(found.rows.size(), 4u);
        const std::vector<Peak>& last = found.rows[loudFirst ? 3 : 0].peaks;
        expectTones(last, {{3000, 0}}, found.grid.step(), 0.1);
        expectTones(found.whole.peaks, {{1000, 200 - 3}}, found.grid.step(), 0.2);
    }
}

TEST(SpectrumAnalysis, WhiteNoiseIsFlatAtItsLevel) {
    for (const double rate : rates) {
        SCOPED_TRACE(rate);
        const Analysed found = analysed(rate, whiteNoise(10 * rate));
        const double variance = 1.0 / 3;
        EXPECT_NEAR(found.whole.level, 10 * std::log10(2 * variance), 0.05);
        // The power of the whole, half the rate wide, in one bandwidth of the window.
        const double expected = 2 * variance * 2.0044 * found.grid.unit() / (rate / 2);
        const std::size_t octave = found.grid.bins / 8;
        for (std::size_t first = octave / 8; first + octave <= found.grid.bins; first += octave) {
            double sum = 0;
            for (std::size_t k = first; k < first + octave; ++k)
                sum += std::pow(10, found.levels[k] / 10);
            EXPECT_NEAR(10 * std::log10(sum / octave / expected), 0, 0.3) << first;
        }
    }
}

// A burst counts the same wherever it is, but for the ends.
TEST(SpectrumAnalysis, SamplesWeighAlike) {
    const double rate = 48000;
    const std::size_t frame = tool::frameLength(rate);
    const std::vector<double> burst = tones(rate, 480, {{6000, 0}});
    std::vector<double> levels;
    for (std::size_t at = frame; at < 2 * frame; at += frame / 32 + 5) {
        std::vector<double> samples(4 * frame);
        std::ranges::copy(burst, samples.begin() + at);
        const Analysed found = analysed(rate, samples);
        ASSERT_FALSE(found.whole.peaks.empty());
        levels.push_back(found.whole.peaks.front().decibels);
    }
    const auto [least, greatest] = std::ranges::minmax(levels);
    EXPECT_LT(greatest - least, 0.6);
}

TEST(SpectrumAnalysis, SlicesHaveTheirOwnTonesAndLevels) {
    for (const double rate : {8000.0, 11025.0, 48000.0}) {
        SCOPED_TRACE(rate);
        std::vector<double> samples;
        std::vector<Tone> given;
        for (int i = 0; i < 6; ++i) {
            given.push_back({300.0 + 400 * i, -4.0 * i});
            append(samples, tones(rate, rate, {given.back()}));
        }
        append(samples, tones(rate, rate / 5, {{2700, -30}}));   // part of a slice
        given.push_back({2700, -30});
        const Analysed found = analysed(rate, samples, 1);
        ASSERT_EQ(found.rows.size(), given.size());
        for (std::size_t i = 0; i < given.size(); ++i) {
            const Row& row = found.rows[i];
            EXPECT_EQ(row.start, i);
            EXPECT_NEAR(row.level, given[i].decibels, 0.05);
            ASSERT_FALSE(row.peaks.empty());
            EXPECT_EQ(row.samples, i < 6 ? rate : std::floor(rate / 5));
            if (i == 6) break;   // under the window there is more of the slice before
            EXPECT_NEAR(row.peaks.front().frequency, given[i].frequency, found.grid.step());
        }
    }
}

TEST(SpectrumAnalysis, LastSamplesOfAllCount) {
    const double rate = 48000;
    const std::size_t frame = tool::frameLength(rate);
    for (const std::size_t rest : {1ul, frame / 8, frame / 4 - 1, frame / 4, frame / 2}) {
        SCOPED_TRACE(rest);
        std::vector<double> samples(2 * frame + rest);
        samples.back() = 1;
        const Analysed found = analysed(rate, samples);
        EXPECT_EQ(found.whole.samples, samples.size());
        EXPECT_NEAR(found.whole.mean, 1.0 / samples.size(), 1e-12);
        EXPECT_FALSE(std::isinf(found.rows.back().level));
        // The edge of the window is 84 dB down.
        EXPECT_GT(*std::ranges::max_element(found.levels), -250);
    }
}

TEST(SpectrumAnalysis, SlicesFitAScreen) {
    struct Case {
        double rate, seconds, slice;
        std::size_t rows;
    };
    for (const Case& each : {Case{48000, 0.001, 0.1, 1},
                             {48000, 1.42, 0.1, 15},
                             {48000, 2, 0.1, 20},
                             {48000, 2.01, 0.2, 11},
                             {8000, 4.1, 0.5, 9},
                             {8000, 9.99, 0.5, 20},
                             {8000, 10.01, 1, 11},
                             {8000, 39.9, 2, 20},
                             {8000, 100.1, 10, 11},
                             {8000, 1100, 100, 11},
                             {1, 5000, 500, 10}}) {
        SCOPED_TRACE(testing::Message() << each.seconds << " s");
        std::vector<double> samples(std::lround(each.rate * each.seconds));
        for (std::size_t n = 0; n < samples.size(); ++n) samples[n] = n % 2;
        const Analysed found = analysed(each.rate, samples);
        EXPECT_DOUBLE_EQ(found.sliceSeconds, each.slice);
        ASSERT_EQ(found.rows.size(), each.rows);
        std::uint64_t count = 0;
        for (const Row& row : found.rows) {
            EXPECT_NEAR(row.start, count / each.rate, 0.51 / each.rate);
            count += row.samples;
        }
        EXPECT_EQ(count, samples.size());
    }
}

TEST(SpectrumAnalysis, ToneOfAMomentCountsInTheWhole) {
    const double rate = 8000;
    for (const double at : {0.0, 1.0, 13.7, 29.5}) {
        SCOPED_TRACE(at);
        std::vector<double> samples(30 * rate);
        std::ranges::copy(tones(rate, rate / 2, {{1000, 0}}), samples.begin() + at * rate);
        const Analysed found = analysed(rate, samples);
        const double share = 10 * std::log10(0.5 / 30);
        EXPECT_NEAR(found.whole.level, share, 0.01);
        ASSERT_FALSE(found.whole.peaks.empty());
        // A frame reaches beyond the tone, which widens its peak; the first and last weigh more.
        EXPECT_NEAR(found.whole.peaks.front().decibels, share, 2.5);
    }
}

TEST(SpectrumAnalysis, BlocksDoNotMatter) {
    const std::vector<double> samples = whiteNoise(7003);
    const Analysed whole = analysed(8000, samples, 0.1, samples.size());
    for (const std::size_t block : {1, 511, 512, 2048}) {
        const Analysed parts = analysed(8000, samples, 0.1, block);
        EXPECT_EQ(parts.levels, whole.levels) << block;
        EXPECT_EQ(parts.rows.size(), whole.rows.size()) << block;
    }
}

// A sound shorter than a frame has a shorter window, and its tones their level.
TEST(SpectrumAnalysis, ShortSounds) {
    for (const std::size_t count : {2, 5, 7, 64, 1000, 8191, 8192, 8193}) {
        SCOPED_TRACE(count);
        const std::vector<Tone> given = {{12000, -10}};
        const Analysed found = analysed(48000, tones(48000, count, given));
        EXPECT_EQ(found.grid.window, std::min<std::size_t>(count, 8192));
        if (count < 64) continue;
        expectTones(found.whole.peaks, given, found.grid.unit() / 20, 0.1);
    }
}

}   // namespace
}   // namespace kfm::test
