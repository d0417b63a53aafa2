#include "frame_stream.h"

#include <algorithm>

namespace kfm::tool {

FrameStream::FrameStream(const FrameShape& shape, Visit visit)
    : length_(shape.length), hop_(shape.hop), power_(shape.length, shape.window),
      visit_(std::move(visit)) {
    recent_.reserve(length_ + hop_);
}

// The frame at the end of `recent_` stands for all samples that no frame stood for, but for
// `after` at the end.
void FrameStream::visitLast(std::size_t after) {
    const std::span<const double> recent(recent_);
    const std::size_t end = recent.size() - after;
    visit_({recent.subspan(done_, end - done_),
            power_(recent.last(std::min(length_, recent.size())))});
    done_ = end;
}

void FrameStream::add(std::span<const double> samples) {
    while (!samples.empty()) {
        const std::size_t full = recent_.size() < length_ ? length_ : length_ + hop_;
        const std::size_t taken = std::min(samples.size(), full - recent_.size());
        recent_.insert(recent_.end(), samples.begin(), samples.begin() + taken);
        samples = samples.subspan(taken);
        if (recent_.size() < full) return;
        visitLast((length_ - hop_) / 2);
        const std::size_t surplus = recent_.size() - length_;
        recent_.erase(recent_.begin(), recent_.begin() + surplus);
        done_ -= surplus;
    }
}

void FrameStream::finish() {
    if (done_ < recent_.size()) visitLast(0);
}

}   // namespace kfm::tool
