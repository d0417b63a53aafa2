#include "transform/overlap_add.h"

#include <algorithm>

namespace kfm::tool {

OverlapAdd::OverlapAdd(std::vector<double> window, std::size_t width)
    : window_(std::move(window)), width_(width), sums_(window_.size() * width),
      weights_(window_.size()) {}

void OverlapAdd::add(std::span<const double> frame) {
    for (std::size_t n = 0; n < window_.size(); ++n) {
        weights_[n] += window_[n] * window_[n];
        for (std::size_t part = 0; part < width_; ++part)
            sums_[n * width_ + part] += window_[n] * frame[n * width_ + part];
    }
}

std::span<const double> OverlapAdd::take(std::size_t count) {
    taken_.assign(sums_.begin(), sums_.begin() + count * width_);
    for (std::size_t i = 0; i < taken_.size(); ++i) taken_[i] /= weights_[i / width_];
    const auto shift = [](std::vector<double>& values, std::size_t by) {
        std::fill(std::copy(values.begin() + by, values.end(), values.begin()), values.end(), 0);
    };
    shift(sums_, count * width_);
    shift(weights_, count);
    return taken_;
}

}   // namespace kfm::tool
