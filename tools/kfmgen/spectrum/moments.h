// Mean and level of samples that come in portions.
#pragma once

#include <cstdint>
#include <span>

namespace kfm::tool {

class Moments {
public:
    void add(std::span<const double> samples);
    void add(const Moments& other);

    std::uint64_t count() const { return count_; }
    double mean() const { return static_cast<double>(mean_); }
    // Without the mean; 0 dB is a sine of amplitude 1, minus infinity a constant.
    double decibels() const;

private:
    // long double, because squares of double may overflow it.
    std::uint64_t count_ = 0;
    long double mean_ = 0;
    long double squares_ = 0;   // of differences to the mean
};

}   // namespace kfm::tool
