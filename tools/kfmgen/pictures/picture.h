// What `kfmgen spectrum` and `kfmgen spectrogram` share: the frames that are asked for, the sound
// that is shown and the file that the picture becomes.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <string>

#include "input/sample_source.h"
#include "pictures/plots.h"

namespace kfm::tool {

struct PictureOptions {
    std::string output;   // empty: no picture
    std::optional<std::string> title;
    window::Shape window = window::hann;
    int length = 0;                         // of a frame; 0: as fits the rate
    std::optional<double> overlapPercent;   // of frames; none: as fits the picture
    std::optional<DecibelRange> range;
};

// Options that only make sense in a picture need its file.
void addPicture(CLI::App& command, PictureOptions& options, bool framesWithoutPicture);

// Which kind the name of the picture says. Throws UsageError.
PictureKind pictureKind(const std::string& output);

// The channels chosen, or each of a few. Throws InputError.
std::unique_ptr<SampleSource> openSound(InputOptions& input, const std::string& taker);

std::string channelWords(const SampleSource& source, const Channels& chosen);

// Frames for a picture with so many columns.
FrameShape frameShape(const PictureOptions& options, const SampleSource& source, std::size_t frame,
                      std::size_t columns);

std::string frameWords(const FrameShape& shape, double rate);

Caption captionOf(const PictureOptions& options, const SampleSource& source, const Channels& chosen,
                  const FrameShape& shape, std::size_t channels, double seconds);

// Calls `take` with every sample of each channel, block by block. Returns how many there are.
using TakeBlock = std::function<void(std::size_t channel, std::span<const double> samples)>;
std::uint64_t readChannels(SampleSource& source, std::size_t channels, const TakeBlock& take);

}   // namespace kfm::tool
