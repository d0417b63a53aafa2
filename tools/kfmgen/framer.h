// Successive frames of a stream of samples.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "sample_source.h"

namespace kfm::tool {

// What becomes of samples at the end that do not fill a frame.
enum class Tail { pad, drop };

struct Framing {
    std::size_t length;
    std::size_t hop;   // from the start of one frame to the start of the next
    Tail tail;
};

class Framer {
public:
    // A sample is `width` values. `source` must outlive the framer.
    Framer(SampleSource& source, const Framing& framing, std::size_t width);

    // The values of the next frame, valid until the next call; none after the first frame that
    // reaches the end of the stream. A short one is filled up with zeros or left out. Throws
    // InputError when nothing but a short one would be left out.
    std::span<const double> next();

private:
    bool advance();

    SampleSource& source_;
    Framing framing_;
    std::size_t width_;
    std::vector<double> frame_;
    std::size_t kept_ = 0;   // samples that the next frame shares with the last one
    bool began_ = false;
};

}   // namespace kfm::tool
