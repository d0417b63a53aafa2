// The mean power per frequency of many frames, of any loudness: sums carry an exponent of their
// own, which grows with the loudest frame.
#pragma once

#include <span>
#include <vector>

#include "frame_power.h"

namespace kfm::tool {

inline constexpr double silence = -150;   // dB; what is below is fainter than a sound file can be

class PowerSpectrum {
public:
    // The frame counts as much as its weight.
    void add(const FramePowers& frame, double weight);
    void add(const PowerSpectrum& other);

    // In a unit of the spectrum's own, to compare with one another and to give to decibels(): 0 dB
    // is a sine of amplitude 1, minus infinity no power at all.
    std::span<const float> powers() const { return sums_; }
    double decibels(double power) const;

private:
    template <class Real>
    void addScaled(std::span<const Real> powers, int exponent, double weight);

    std::vector<float> sums_;
    int exponent_ = 0;
    double weight_ = 0;
};

}   // namespace kfm::tool
