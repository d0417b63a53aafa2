// The power spectrum of one frame of real samples, by the DCT-IV of the library.
//
// The DCT-IV of a frame is its spectrum's cosine part, that of the reversed frame its sine part but
// for the sign; the sum of their squares is the power, whatever the phase.
#pragma once

#include <span>
#include <vector>

#include "dct4_plan.h"
#include "window.h"

namespace kfm::tool {

// Powers in units of 4^exponent, so that no square overflows: 1 is a sine of amplitude
// 2^exponent.
struct FramePowers {
    std::span<const double> bins;
    int exponent;
};

class FramePower {
public:
    // `bins` is a length of the DCT-IV.
    explicit FramePower(std::size_t bins, const window::Shape& shape = window::blackmanHarris);

    // Of at least one and at most `bins` finite samples, under a window of as many, without their
    // mean. Valid until the next call.
    FramePowers operator()(std::span<const double> samples);

private:
    void setWindow(std::size_t length);
    void windowed(std::span<const double> samples, double scale);

    window::Shape shape_;
    Dct4Plan<Kfm64f> plan_;
    std::vector<double> window_;   // a sine of amplitude 1 has power 1 under it
    std::vector<double> ahead_;
    std::vector<double> reversed_;
};

}   // namespace kfm::tool
