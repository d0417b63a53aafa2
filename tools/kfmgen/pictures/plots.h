// Pictures of sounds as scripts for gnuplot, with the data in them.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "spectrum/frequency_grid.h"
#include "spectrum/power_spectrum.h"
#include "spectrum/spectrogram.h"

namespace kfm::tool {

enum class PictureKind { png, svg };

struct DecibelRange {
    double least, most;
};

// What the picture says beside what it shows.
struct Caption {
    std::string title;
    std::string details;
    std::vector<std::string> channels;   // a name for each that is shown
};

inline constexpr std::size_t plotColumns = 1000, plotRows = 512;

// Panels below each other, a channel in each, of times and bands alike: `highest` is where the
// last of the equal bands ends.
std::string spectrogramScript(PictureKind kind, const Caption& caption,
                              std::span<const Spectrogram* const> channels, double highest,
                              const std::optional<DecibelRange>& range);

struct FrequencyAxis {
    bool logarithmic;
    double lowest, highest;
};

// A line for each channel.
std::string spectrumScript(PictureKind kind, const Caption& caption,
                           std::span<const PowerSpectrum> channels, const FrequencyGrid& grid,
                           const FrequencyAxis& axis, const std::optional<DecibelRange>& range);

}   // namespace kfm::tool
