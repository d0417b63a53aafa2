#include "page.h"

#include <algorithm>
#include <cmath>

#include "bands.h"
#include "page_text.h"
#include "window.h"

namespace kfm::tool {
namespace {

constexpr std::size_t tonesPerRow = 3;
constexpr std::size_t tonesOverall = 8;
constexpr double columnsPerOctave = 3;

std::size_t columnCount(const FrequencyGrid& grid) {
    const double octaves = std::log2(grid.highest() / grid.lowest());
    return static_cast<std::size_t>(std::max(0.0, std::ceil(octaves * columnsPerOctave - 1e-9)));
}

// The strongest bin of each column.
std::vector<float> columnLevels(const PowerSpectrum& spectrum, const FrequencyGrid& grid) {
    const Bands columns(grid, proportionalBands(grid.lowest(), std::exp2(1 / columnsPerOctave),
                                                columnCount(grid)));
    std::vector<float> levels;
    for (std::size_t column = 0; column < columns.count(); ++column)
        levels.push_back(spectrum.decibels(columns.strongest(spectrum.powers(), column)));
    return levels;
}

std::vector<Peak> audible(std::vector<Peak> peaks) {
    std::erase_if(peaks, [](const Peak& peak) { return peak.decibels < silence; });
    return peaks;
}

// Powers of ten above the columns they fall into.
std::string axis(const FrequencyGrid& grid) {
    std::string text(columnCount(grid), ' ');
    for (double tick = 1; tick < grid.highest(); tick *= 10) {
        if (tick < grid.lowest()) continue;
        const std::string label = roundHertz(tick);
        const std::size_t column =
            static_cast<std::size_t>(std::log2(tick / grid.lowest()) * columnsPerOctave);
        if (column + label.size() + 1 <= text.size())
            text.replace(column, label.size() + 1, "|" + label);
    }
    return text;
}

void printSubject(const SpectrumPage::Subject& subject, const Slice& whole,
                  const FrequencyGrid& grid, double sliceSeconds, std::ostream& out) {
    const double seconds = whole.moments.count() / grid.rate;
    const int digits = decimals(grid.step()) + 1;
    out << cut(subject.name) << '\n'
        << format("  sound    %.*f s, %s at %.0f Hz; %s\n", decimals(seconds) + 2, seconds,
                  samples(whole.moments.count()).c_str(), grid.rate, subject.channel.c_str())
        << format("  window   %s, %s, %.3g s; DCT-IV of length %zu\n", window::blackmanHarris.name,
                  samples(grid.window).c_str(), grid.window / grid.rate, grid.bins);
    if (columnCount(grid) > 0)
        out << format("  range    %s to %s Hz in steps of %s Hz; resolution %s Hz\n",
                      hertz(grid.lowest(), digits).c_str(),
                      hertz(grid.highest(), digits - 1).c_str(), difference(grid.step()).c_str(),
                      difference(grid.separation()).c_str());
    else out << "  range    none: too short for any tone\n";
    out << format("  levels   0 dB is a sine of full scale; the mean, %.5g, does not count\n",
                  whole.moments.mean() + 0.0)
        << format("  rows     of %g s; a shade is %g dB, from the loudest down: ", sliceSeconds,
                  dbPerShade)
        << shadesFromLoudest() << "\n\n";
}

void printTones(const Slice& whole, const FrequencyGrid& grid, std::ostream& out) {
    constexpr double barRange = 80;   // dB
    constexpr double barColumns = 52;
    const std::vector<Peak> tones = audible(strongestPeaks(whole.spectrum, grid, tonesOverall));
    out << "\n   whole" << level(whole.moments.decibels())
        << (tones.empty() ? "  no peaks\n" : "  strongest peaks:\n");
    for (const Peak& tone : tones) {
        const double share = 1 + (tone.decibels - tones.front().decibels) / barRange;
        out << format("%8s Hz%s  ", hertz(tone.frequency, decimals(grid.step()) + 1).c_str(),
                      level(tone.decibels).c_str())
            << std::string(std::lround(std::max(0.0, share) * barColumns), '#') << '\n';
    }
}

}   // namespace

void SpectrumPage::addRow(const Slice& slice, const FrequencyGrid& grid) {
    Row row{slice.start,
            static_cast<float>(slice.moments.decibels()),
            {},
            columnLevels(slice.spectrum, grid)};
    for (const Peak& peak : audible(strongestPeaks(slice.spectrum, grid, tonesPerRow)))
        row.tones.push_back(static_cast<float>(peak.frequency));
    rows_.push_back(std::move(row));
}

void SpectrumPage::printRows(const FrequencyGrid& grid, double sliceSeconds,
                             std::ostream& out) const {
    double loudest = silence;
    for (const Row& row : rows_)
        for (const float column : row.columns) loudest = std::max<double>(loudest, column);
    out << format("%8s%10s%21s  ", "time, s", "level", "strongest, Hz") << axis(grid) << '\n';
    for (const Row& row : rows_) {
        std::string tones;
        for (const float tone : row.tones)
            tones += format("%7s", hertz(tone, decimals(grid.step())).c_str());
        std::string shades;
        for (const float column : row.columns) shades += shade(column, loudest);
        out << format("%8.*f%s%-21s |%s|\n", decimals(sliceSeconds), row.start,
                      level(row.level).c_str(), tones.c_str(), shades.c_str());
    }
}

void SpectrumPage::print(const Subject& subject, const Slice& whole, const FrequencyGrid& grid,
                         double sliceSeconds, std::ostream& out) const {
    printSubject(subject, whole, grid, sliceSeconds, out);
    printRows(grid, sliceSeconds, out);
    printTones(whole, grid, out);
}

}   // namespace kfm::tool
