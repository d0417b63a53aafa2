// The tones in a power spectrum.
#pragma once

#include <vector>

#include "frequency_grid.h"
#include "power_spectrum.h"

namespace kfm::tool {

struct Peak {
    double frequency;   // Hz
    double decibels;    // 0 is a sine of amplitude 1
};

// The strongest first: what is higher than both its sides by 3 dB before anything higher comes,
// and not so far below the strongest that it may be a side lobe of the window.
std::vector<Peak> strongestPeaks(const PowerSpectrum& spectrum, const FrequencyGrid& grid,
                                 std::size_t most);

}   // namespace kfm::tool
