#include "slices.h"

#include <algorithm>
#include <cmath>

namespace kfm::tool {

Slices::Slices(double rate, SliceChoice choice, Visit visit)
    : rate_(rate), choice_(std::move(choice)), seconds_(choice_.seconds), visit_(std::move(visit)) {
}

// The most slices that steps before the last make few enough.
std::size_t Slices::room() const { return choice_.most * choice_.steps[choice_.steps.size() - 2]; }

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
    if (choice_.most == 0) visitAll();
    else if (slices_.size() == room()) merge(choice_.steps.back());
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
    for (const std::size_t step : choice_.steps)
        if (slices_.size() <= step * choice_.most) {
            merge(step);
            break;
        }
    visitAll();
}

}   // namespace kfm::tool
