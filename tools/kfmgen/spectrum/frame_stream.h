// Frames of a stream of samples with their powers.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "frame_power.h"

namespace kfm::tool {

// Every sample belongs to one frame: that whose middle is nearest, or the last.
struct Frame {
    std::span<const double> samples;   // those it stands for
    FramePowers powers;
};

// `length` is a length of the DCT-IV and even, `hop` no longer.
struct FrameShape {
    std::size_t length;
    std::size_t hop;   // from the start of one frame to the start of the next
    window::Shape window;
};

class FrameStream {
public:
    using Visit = std::function<void(const Frame&)>;

    FrameStream(const FrameShape& shape, Visit visit);

    void add(std::span<const double> samples);
    // The last frame ends with the last sample. A stream shorter than a frame is one frame.
    void finish();

private:
    void visitLast(std::size_t after);

    std::size_t length_, hop_;
    FramePower power_;
    Visit visit_;
    std::vector<double> recent_;   // a frame and the hop that follows
    std::size_t done_ = 0;         // how many of `recent_` a frame has stood for
};

}   // namespace kfm::tool
