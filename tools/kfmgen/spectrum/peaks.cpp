#include "peaks.h"

#include <algorithm>
#include <cmath>

#include "window.h"

namespace kfm::tool {
namespace {

using Powers = std::span<const float>;

// How far to go, by `direction` from bin k, until powers rise again.
std::size_t foot(Powers powers, std::size_t k, int direction) {
    const std::size_t end = direction > 0 ? powers.size() - 1 : 0;
    while (k != end && powers[k + direction] <= powers[k]) k += direction;
    return k;
}

// Whether powers fall to half of bin k before they rise above it; behind the ends they do.
bool falls(Powers powers, std::size_t k, int direction) {
    const std::size_t end = direction > 0 ? powers.size() - 1 : 0;
    for (std::size_t i = k; i != end;) {
        i += direction;
        if (powers[i] > powers[k]) return false;
        if (2 * powers[i] < powers[k]) return true;
    }
    return true;
}

bool standsOut(Powers powers, std::size_t k) {
    const bool highest = (k == 0 || powers[k - 1] < powers[k]) &&
                         (k + 1 == powers.size() || powers[k + 1] <= powers[k]);
    return highest && falls(powers, k, -1) && falls(powers, k, 1);
}

// The lobe is close to a parabola in decibels; beyond half the rate it is mirrored.
Peak interpolated(const PowerSpectrum& spectrum, const FrequencyGrid& grid, std::size_t k) {
    const Powers powers = spectrum.powers();
    const double before = spectrum.decibels(powers[k - 1]);
    const double middle = spectrum.decibels(powers[k]);
    const double after = spectrum.decibels(powers[std::min(k + 1, powers.size() - 1)]);
    const double bend = before - 2 * middle + after;
    const double offset = bend < 0 ? (before - after) / (2 * bend) : 0;
    return {(k + 0.5 + offset) * grid.step(), middle - (before - after) * offset / 4};
}

// A tone at half the rate, but for a unit or so, is one lobe with its mirror image. The phase
// between them turns from frame to frame, so their powers add up, and the tone's distance is what
// the lobe is wider than that of the window.
Peak folded(const PowerSpectrum& spectrum, const FrequencyGrid& grid, std::size_t k) {
    const Powers powers = spectrum.powers();
    const double unit = grid.stepsPerUnit();
    double power = 0, squares = 0;
    for (std::size_t i = foot(powers, k, -1); i < powers.size(); ++i) {
        const double distance = (powers.size() - i - 0.5) / unit;
        power += powers[i];
        squares += powers[i] * distance * distance;
    }
    const double distance = std::sqrt(std::max(0.0, squares / power - window::spread));
    return {grid.highest() - distance * grid.unit(),
            spectrum.decibels(power / (unit * window::noiseBandwidth))};
}

}   // namespace

std::vector<Peak> strongestPeaks(const PowerSpectrum& spectrum, const FrequencyGrid& grid,
                                 std::size_t most) {
    constexpr double foldedUnits = 1.5;
    constexpr double margin = 7;   // dB, for the side lobes of several tones together
    const Powers powers = spectrum.powers();
    const std::size_t first = std::min(grid.firstBin(grid.lowest()), powers.size());
    const std::size_t firstFolded = grid.firstBin(grid.highest() - foldedUnits * grid.unit());
    if (first == powers.size()) return {};
    const double floor = *std::ranges::max_element(powers.subspan(first)) *
                         std::pow(10, (window::sidelobes + margin) / 10);
    std::vector<Peak> peaks;
    for (std::size_t k = first; k < powers.size(); ++k)
        if (powers[k] > floor && standsOut(powers, k))
            peaks.push_back(k < firstFolded ? interpolated(spectrum, grid, k)
                                            : folded(spectrum, grid, k));
    std::ranges::sort(peaks, std::greater<>(), &Peak::decibels);
    peaks.resize(std::min(peaks.size(), most));
    return peaks;
}

}   // namespace kfm::tool
