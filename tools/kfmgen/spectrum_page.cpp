#include "spectrum_page.h"

#include <algorithm>
#include <cmath>
#include <iomanip>

namespace kfm::tool {
namespace {

constexpr std::size_t peaksPerSlice = 3;
constexpr std::size_t peaksOverall = 5;
constexpr double floorDb = -90;   // what silence is printed as

double decibels(double power) { return std::max(floorDb, 10 * std::log10(power)); }

// A full bar of `columns` characters at 0 dB, none at -range.
std::string bar(double db, double range, int columns) {
    const double share = std::clamp(1 + db / range, 0.0, 1.0);
    return std::string(std::lround(share * columns), '#');
}

// One character per band, the denser the closer it comes to the loudest band of the recording.
constexpr std::string_view ramp = " .:-=+*#%@";
constexpr int dbPerShade = 5;

std::string shades(const std::vector<double>& bands, double loudest) {
    std::string text;
    for (const double band : bands) {
        const int steps = static_cast<int>((decibels(loudest) - decibels(band)) / dbPerShade);
        text += ramp[std::max<int>(0, static_cast<int>(ramp.size()) - 1 - steps)];
    }
    return text;
}

std::string peakList(const std::vector<double>& bands, double bandWidth) {
    std::string text;
    for (const std::size_t k : peaks(bands, peaksPerSlice)) {
        const std::string frequency = std::to_string(std::lround(k * bandWidth));
        text += std::string(frequency.size() < 7 ? 7 - frequency.size() : 1, ' ') + frequency;
    }
    text.resize(std::max<std::size_t>(text.size(), 7 * peaksPerSlice), ' ');
    return text;
}

void printSlices(const BandPower& power, double loudest, std::ostream& out) {
    const std::string top = std::to_string(std::lround(power.rate / 2)) + " Hz";
    const int columns = power.average.size();
    out << "    time    level                strongest bands (Hz)  0 Hz"
        << std::setw(columns - 4) << std::right << top << '\n';
    for (const Slice& slice : power.slices) {
        const double db = decibels(slice.level);
        out << std::setw(7) << std::setprecision(2) << slice.start << " s" << std::setw(6)
            << std::setprecision(0) << db << " dB " << std::left << std::setw(12)
            << bar(db, 60, 12) << std::right << peakList(slice.bands, power.bandWidth) << "  |"
            << shades(slice.bands, loudest) << "|\n";
    }
    out << std::setw(55) << '|' << ramp << "|  " << dbPerShade << " dB per shade\n";
}

}   // namespace

void printPage(const BandPower& power, std::ostream& out) {
    double loudest = 0;
    for (const Slice& slice : power.slices)
        loudest = std::max(loudest, *std::ranges::max_element(slice.bands));
    out << std::fixed;
    printSlices(power, loudest, out);

    out << "\nstrongest bands of the whole recording\n";
    const std::vector<std::size_t> strongest = peaks(power.average, peaksOverall);
    for (const std::size_t k : strongest) {
        const double db = decibels(power.average[k]);
        out << std::setw(7) << std::lround(k * power.bandWidth) << " Hz" << std::setw(6)
            << std::setprecision(0) << db << " dB "
            << bar(db - decibels(power.average[strongest.front()]), 40, 50) << '\n';
    }
    if (strongest.empty()) out << "    none: silence\n";
}

}   // namespace kfm::tool
