#include "analysis.h"

#include <algorithm>
#include <cmath>

namespace kfm::tool {

namespace {

// A quarter of a frame: under the window all samples then weigh alike within a quarter of a
// decibel.
std::size_t hop(std::size_t frame) { return frame / 4; }

// Where nobody chose: 1, 2 or 5 times a power of ten of seconds, not much shorter than a frame, so
// that they fit a screen.
SliceChoice sliceChoice(double rate, double seconds) {
    if (seconds > 0) return {seconds};
    const double shortest = std::pow(10, std::ceil(std::log10(hop(frameLength(rate)) / rate)));
    return {shortest, 20, {1, 2, 5, 10}};
}

}   // namespace

SpectrumAnalysis::SpectrumAnalysis(double rate, double sliceSeconds, Visit visit)
    : grid_{rate, frameLength(rate), 0}, visit_(std::move(visit)),
      slices_(rate, sliceChoice(rate, sliceSeconds), [this](const Slice& slice) { take(slice); }),
      frames_({grid_.bins, hop(grid_.bins), window::blackmanHarris},
              [this](const Frame& frame) { slices_.add(frame); }) {}

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
