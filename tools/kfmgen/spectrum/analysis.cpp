#include "analysis.h"

#include <algorithm>

namespace kfm::tool {

SpectrumAnalysis::SpectrumAnalysis(double rate, double sliceSeconds, Visit visit)
    : grid_{rate, frameLength(rate), 0}, visit_(std::move(visit)),
      slices_(rate, sliceSeconds, grid_.bins, [this](const Slice& slice) { take(slice); }),
      frames_(grid_.bins, [this](const Frame& frame) { slices_.add(frame); }) {}

void SpectrumAnalysis::take(const Slice& slice) {
    whole_.moments.add(slice.moments);
    whole_.spectrum.add(slice.spectrum);
    visit_(slice, grid_);
}

void SpectrumAnalysis::add(std::span<const double> samples) {
    grid_.window = std::min(grid_.bins, grid_.window + samples.size());
    frames_.add(samples);
}

void SpectrumAnalysis::finish() {
    frames_.finish();
    slices_.finish();
}

}   // namespace kfm::tool
