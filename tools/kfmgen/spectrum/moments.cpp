#include "moments.h"

#include <algorithm>
#include <cmath>

namespace kfm::tool {

// Sums of differences to the first sample: a constant then has no level, not that of roundings.
void Moments::add(std::span<const double> samples) {
    if (samples.empty()) return;
    const long double first = samples.front();
    long double sum = 0, squares = 0;
    for (const double sample : samples) {
        const long double difference = sample - first;
        sum += difference;
        squares += difference * difference;
    }
    Moments portion;
    portion.count_ = samples.size();
    portion.mean_ = first + sum / samples.size();
    portion.squares_ = std::max(0.0L, squares - sum * (sum / samples.size()));
    add(portion);
}

void Moments::add(const Moments& other) {
    if (other.count_ == 0) return;
    const long double total = static_cast<long double>(count_ + other.count_);
    const long double share = other.count_ / total;
    const long double difference = other.mean_ - mean_;
    squares_ += other.squares_ + difference * difference * share * count_;
    mean_ += difference * share;
    count_ += other.count_;
}

double Moments::decibels() const {
    return static_cast<double>(10 * std::log10(2 * squares_ / count_));
}

}   // namespace kfm::tool
