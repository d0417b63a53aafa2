#include "power_spectrum.h"

#include <cmath>
#include <numbers>

namespace kfm::tool {

template <class Real>
void PowerSpectrum::addScaled(std::span<const Real> powers, int exponent, double weight) {
    if (sums_.empty()) {
        sums_.resize(powers.size());
        exponent_ = exponent;
    }
    if (exponent > exponent_) {
        const double factor = std::ldexp(1.0, 2 * (exponent_ - exponent));
        for (float& sum : sums_) sum = static_cast<float>(sum * factor);
        exponent_ = exponent;
    }
    const double factor = weight * std::ldexp(1.0, 2 * (exponent - exponent_));
    for (std::size_t k = 0; k < powers.size(); ++k)
        sums_[k] += static_cast<float>(powers[k] * factor);
}

void PowerSpectrum::add(const FramePowers& frame, double weight) {
    addScaled(frame.bins, frame.exponent, weight);
    weight_ += weight;
}

void PowerSpectrum::add(const PowerSpectrum& other) {
    addScaled(std::span<const float>(other.sums_), other.exponent_, 1);
    weight_ += other.weight_;
}

double PowerSpectrum::decibels(double power) const {
    constexpr double perOctave = 20 * std::numbers::ln2 / std::numbers::ln10;
    return 10 * std::log10(power / weight_) + perOctave * exponent_;
}

}   // namespace kfm::tool
