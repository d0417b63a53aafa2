// A spectrogram in characters, for a terminal of 80 columns and 24 lines.
#pragma once

#include <ostream>

#include "spectrogram.h"

namespace kfm::tool {

inline constexpr std::size_t pageRows = 16, pageColumns = 70;

// Bands of equal ratio, as one hears them.
std::vector<double> pageBands(double rate, std::size_t frame);

// `edges` are those of the spectrogram's rows.
void printSpectrogram(const Spectrogram& spectrogram, std::span<const double> edges,
                      std::ostream& out);

}   // namespace kfm::tool
