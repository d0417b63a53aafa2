// The spectrum of a sound of any length over time and as a whole, in a fixed amount of memory.
#pragma once

#include "frequency_grid.h"
#include "slices.h"

namespace kfm::tool {

class SpectrumAnalysis {
public:
    // `visit` is given each slice of `sliceSeconds`, with 0 of as many as fit a screen, and the grid of
    // its spectrum.
    using Visit = std::function<void(const Slice&, const FrequencyGrid&)>;
    SpectrumAnalysis(double rate, double sliceSeconds, Visit visit);
    SpectrumAnalysis(const SpectrumAnalysis&) = delete;   // its parts call one another

    void add(std::span<const double> samples);   // finite, full scale is 1
    void finish();

    // Of all slices visited so far.
    const FrequencyGrid& grid() const { return grid_; }
    const Slice& whole() const { return whole_; }
    double sliceSeconds() const { return slices_.seconds(); }

private:
    void take(const Slice& slice);

    FrequencyGrid grid_;
    Visit visit_;
    Slice whole_;
    Slices slices_;
    FrameStream frames_;
};

}   // namespace kfm::tool
