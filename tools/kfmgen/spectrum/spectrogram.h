// The power of a sound over time and frequency, in an amount of memory that depends on how finely
// it is to be seen, not on how long the sound is.
#pragma once

#include "bands.h"
#include "slices.h"

namespace kfm::tool {

// What a frame's length, its step and the window are where nobody chose them. `samples` is the
// length of the sound, 0 if nobody knows: then the picture may be up to half empty.
inline std::size_t pictureFrameLength(double rate) {
    return std::bit_floor(static_cast<std::size_t>(std::clamp(rate / 20, 64.0, 32768.0)));
}

std::size_t pictureHop(std::uint64_t samples, std::size_t frame, std::size_t columns);

class Spectrogram {
public:
    // A row for each band between the edges, and at most `columns`, each the mean power of as
    // many frames.
    Spectrogram(double rate, const FrameShape& shape, std::span<const double> edges,
                std::size_t columns);
    Spectrogram(const Spectrogram&) = delete;   // its parts call one another

    void add(std::span<const double> samples);   // finite, full scale is 1
    void finish();

    // From here on after finish().
    std::size_t rows() const { return bands_.count(); }
    std::size_t columns() const { return levels_.size() / rows(); }
    double columnSeconds() const { return slices_.seconds(); }
    // dB to a sine of full scale, not less than `silence`.
    float level(std::size_t row, std::size_t column) const {
        return levels_[column * rows() + row];
    }
    float loudest() const { return *std::ranges::max_element(levels_); }

private:
    void add(const Frame& frame);
    void add(const Slice& slice);

    Bands bands_;
    std::vector<double> powers_;   // of one frame in each band
    std::vector<float> levels_;
    Slices slices_;
    FrameStream frames_;
};

}   // namespace kfm::tool
