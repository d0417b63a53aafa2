#include "input/frame_labels.h"

namespace kfm::tool {
namespace {

std::string row(std::int64_t frame, std::int64_t index) {
    return "row " + std::to_string(index) + " of frame " + std::to_string(frame);
}

}   // namespace

std::string FrameLabels::next(std::int64_t frame, std::int64_t index) {
    if (!began_) frame_ = frame;   // any may be the first
    began_ = true;
    if (frame != frame_ || index != index_) return row(frame, index) + " comes where " + wanted();
    if (++index_ == length_) {
        index_ = 0;
        ++frame_;
    }
    return {};
}

std::string FrameLabels::end() const {
    return index_ == 0 ? std::string() : "the file ends where " + wanted();
}

std::string FrameLabels::wanted() const {
    return row(frame_, index_) + " has to be, with " + std::to_string(length_) +
           " rows in each frame";
}

}   // namespace kfm::tool
