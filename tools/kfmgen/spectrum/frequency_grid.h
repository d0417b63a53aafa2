// Where the bins of a power spectrum lie and what can be told from them.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>

namespace kfm::tool {

// Bin k is at (k + 1/2) * step(): that is where the DCT-IV samples the spectrum of a frame, twice
// as densely as a DFT of the same length.
struct FrequencyGrid {
    double rate;          // samples per second
    std::size_t bins;     // also the length of the transform
    std::size_t window;   // samples under the window, fewer than bins in a short sound only

    double step() const { return rate / (2 * static_cast<double>(bins)); }
    // A period of the window: what its shape in frequency is measured in.
    double unit() const { return rate / static_cast<double>(window); }
    double stepsPerUnit() const { return 2 * static_cast<double>(bins) / window; }
    // Of the first bin that is not below `frequency`.
    std::size_t firstBin(double frequency) const {
        return static_cast<std::size_t>(std::max(0.0, std::ceil(frequency / step() - 0.5)));
    }
    // Below it a tone runs into its own mirror image at the negative frequency.
    double lowest() const { return 3 * unit(); }
    double highest() const { return rate / 2; }
    // So far apart the fainter of two tones is still a peak of its own beside one 40 dB louder.
    double separation() const { return 5 * unit(); }
};

// Frames long enough for a tone of 20 Hz, and no longer, so that speech is still resolved in time.
// Rates beyond those of sound keep the longest frame and begin higher.
inline std::size_t frameLength(double rate) {
    return std::bit_ceil(static_cast<std::size_t>(std::clamp(std::ceil(rate / 6), 256.0, 32768.0)));
}

}   // namespace kfm::tool
