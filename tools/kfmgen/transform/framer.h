// Successive frames of a stream of samples.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "input/sample_source.h"

namespace kfm::tool {

// What becomes of samples at the end that do not fill a frame.
enum class Tail {
    pad,
    drop,
    cover,   // pad, and go on until no frame holds a sample
};

struct Framing {
    std::size_t length;
    std::size_t hop;   // from the start of one frame to the start of the next
    Tail tail;
    std::size_t lead = 0;   // zeros before the first sample, fewer than a frame
};

class Framer {
public:
    // A sample is `width` values. `source` must outlive the framer.
    Framer(SampleSource& source, const Framing& framing, std::size_t width);

    // The values of the next frame, valid until the next call; none after the first frame that
    // reaches the end of the stream, or with Tail::cover after the last that holds a sample. A short
    // one is filled up with zeros or left out. Throws InputError when nothing but a short one would be
    // left out.
    std::span<const double> next();

    std::uint64_t samples() const { return samples_; }   // in the frames so far, without padding

private:
    bool advance();

    SampleSource& source_;
    Framing framing_;
    std::size_t width_;
    std::vector<double> frame_;
    std::size_t kept_ = 0;   // samples that the next frame shares with the last one
    std::size_t held_ = 0;   // how many at the beginning of `frame_` are no padding
    std::uint64_t samples_ = 0;
    bool began_ = false;
};

}   // namespace kfm::tool
