// Frames of a stream of samples with their powers: each begins a quarter of a frame after the
// one before, so that under the window all samples weigh alike within a quarter of a decibel.
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

class FrameStream {
public:
    using Visit = std::function<void(const Frame&)>;

    // `length` is a length of the DCT-IV and a multiple of 8.
    FrameStream(std::size_t length, Visit visit);

    void add(std::span<const double> samples);
    // The last frame ends with the last sample. A stream shorter than a frame is one frame.
    void finish();

    static std::size_t hop(std::size_t length) { return length / 4; }

private:
    void visitLast(std::size_t after);

    std::size_t length_;
    FramePower power_;
    Visit visit_;
    std::vector<double> recent_;   // a frame and the hop that follows
    std::size_t done_ = 0;         // how many of `recent_` a frame has stood for
};

}   // namespace kfm::tool
