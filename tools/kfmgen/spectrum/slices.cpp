#include "slices.h"

#include <algorithm>
#include <cmath>

namespace kfm::tool {
namespace {

constexpr int decade = 10;
constexpr std::size_t parts = 5 * Slices::most;   // the most that may become slices of 5 parts

double partSeconds(double rate, std::size_t frameLength) {
    return std::pow(decade, std::ceil(std::log10(FrameStream::hop(frameLength) / rate)));
}

}   // namespace

Slices::Slices(double rate, double seconds, std::size_t frameLength, Visit visit)
    : rate_(rate), seconds_(seconds > 0 ? seconds : partSeconds(rate, frameLength)),
      fitting_(seconds <= 0), visit_(std::move(visit)) {}

// Where slice `number` begins.
std::uint64_t Slices::boundary(std::uint64_t number) const {
    return static_cast<std::uint64_t>(std::llround(static_cast<double>(number) * seconds_ * rate_));
}

void Slices::merge(std::size_t count) {
    std::vector<Slice> merged;
    for (std::size_t i = 0; i < slices_.size(); ++i) {
        if (i % count == 0) {
            merged.push_back(std::move(slices_[i]));
        } else {
            merged.back().moments.add(slices_[i].moments);
            merged.back().spectrum.add(slices_[i].spectrum);
        }
    }
    slices_ = std::move(merged);
    seconds_ *= count;
    number_ /= count;
}

void Slices::visitAll() {
    for (const Slice& slice : slices_) visit_(slice);
    slices_.clear();
}

// The slice at `position_`, a new one where the last is complete.
Slice& Slices::current() {
    if (!slices_.empty() && position_ < boundary(number_ + 1)) return slices_.back();
    if (!fitting_) visitAll();
    if (slices_.size() == parts) merge(decade);
    while (position_ >= boundary(number_ + 1)) ++number_;
    slices_.push_back({number_ * seconds_, {}, {}});
    return slices_.back();
}

void Slices::add(const Frame& frame) {
    for (std::span<const double> rest = frame.samples; !rest.empty();) {
        Slice& slice = current();
        const std::size_t taken =
            std::min<std::uint64_t>(rest.size(), boundary(number_ + 1) - position_);
        slice.moments.add(rest.first(taken));
        slice.spectrum.add(frame.powers, static_cast<double>(taken));
        position_ += taken;
        rest = rest.subspan(taken);
    }
}

void Slices::finish() {
    if (fitting_)
        for (const std::size_t step : {1, 2, 5})
            if (slices_.size() <= step * most) {
                merge(step);
                break;
            }
    visitAll();
}

}   // namespace kfm::tool
