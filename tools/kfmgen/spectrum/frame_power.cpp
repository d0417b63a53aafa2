#include "frame_power.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace kfm::tool {
namespace {

// That of the largest sample, within what leaves its reciprocal finite.
int commonExponent(std::span<const double> samples) {
    double largest = 0;
    for (const double sample : samples) largest = std::max(largest, std::abs(sample));
    int exponent;
    std::frexp(largest, &exponent);
    return std::max(exponent, -1000);
}

}   // namespace

FramePower::FramePower(std::size_t bins, const window::Shape& shape)
    : shape_(shape), plan_(static_cast<int>(bins)), ahead_(bins), reversed_(bins) {
    if (!plan_) throw std::logic_error("no DCT-IV of this length");
}

void FramePower::setWindow(std::size_t length) {
    window_ = window::weights(shape_, length);
    const double gain = std::accumulate(window_.begin(), window_.end(), 0.0) / 2;
    for (double& weight : window_) weight /= gain;
}

// Differences to the first sample, so that the mean of a constant is exact.
void FramePower::windowed(std::span<const double> samples, double scale) {
    const double first = samples.front() * scale;
    double sum = 0;
    for (std::size_t n = 0; n < samples.size(); ++n) {
        ahead_[n] = samples[n] * scale - first;
        sum += window_[n] * ahead_[n];
    }
    const double mean = sum / 2;
    for (std::size_t n = 0; n < samples.size(); ++n) {
        ahead_[n] = (ahead_[n] - mean) * window_[n];
        reversed_[reversed_.size() - 1 - n] = ahead_[n];
    }
}

FramePowers FramePower::operator()(std::span<const double> samples) {
    if (samples.size() != window_.size()) setWindow(samples.size());
    std::fill(ahead_.begin() + samples.size(), ahead_.end(), 0);
    std::fill(reversed_.begin(), reversed_.end() - samples.size(), 0);
    const int exponent = commonExponent(samples);
    windowed(samples, std::ldexp(1.0, -exponent));
    plan_.transform(ahead_.data(), ahead_.data());
    plan_.transform(reversed_.data(), reversed_.data());
    for (std::size_t k = 0; k < ahead_.size(); ++k)
        ahead_[k] = ahead_[k] * ahead_[k] + reversed_[k] * reversed_[k];
    return {ahead_, exponent};
}

}   // namespace kfm::tool
