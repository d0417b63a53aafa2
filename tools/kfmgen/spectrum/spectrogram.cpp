#include "spectrogram.h"

#include <algorithm>
#include <cmath>

namespace kfm::tool {

// At most a quarter of a frame, so that no sample weighs little, and as many steps as columns, or
// a power of two times as many: slices that are merged by twos then fill the picture.
std::size_t pictureHop(std::uint64_t samples, std::size_t frame, std::size_t columns) {
    const double most = std::floor(static_cast<double>(frame) / 4);
    double hop = samples > 0 ? static_cast<double>(samples) / static_cast<double>(columns) : most;
    while (hop > most) hop /= 2;
    return static_cast<std::size_t>(std::max(std::ceil(hop), std::ceil(most / 4)));
}

Spectrogram::Spectrogram(double rate, const FrameShape& shape, std::span<const double> edges,
                         std::size_t columns)
    : bands_({rate, shape.length, shape.length}, edges), powers_(bands_.count()),
      slices_(rate, {static_cast<double>(shape.hop) / rate, columns, {1, 2}},
              [this](const Slice& slice) { add(slice); }),
      frames_(shape, [this](const Frame& frame) { add(frame); }) {}

void Spectrogram::add(std::span<const double> samples) { frames_.add(samples); }

void Spectrogram::add(const Frame& frame) {
    for (std::size_t row = 0; row < rows(); ++row)
        powers_[row] = bands_.strongest(frame.powers.bins, row);
    slices_.add({frame.samples, {powers_, frame.powers.exponent}});
}

void Spectrogram::add(const Slice& slice) {
    for (const float power : slice.spectrum.powers())
        levels_.push_back(static_cast<float>(std::max(silence, slice.spectrum.decibels(power))));
}

void Spectrogram::finish() {
    frames_.finish();
    slices_.finish();
}

}   // namespace kfm::tool
