// Frames gathered to slices of time, of a given length or of the shortest that makes few of them,
// without knowing beforehand how long the stream is.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "frame_stream.h"
#include "moments.h"
#include "power_spectrum.h"

namespace kfm::tool {

struct Slice {
    double start = 0;   // seconds
    Moments moments;    // of its samples
    PowerSpectrum spectrum;
};

class Slices {
public:
    using Visit = std::function<void(const Slice&)>;
    static constexpr std::size_t most = 20;   // of those that fit

    // Slices of `seconds`, visited as they are complete. With 0 they fit: 1, 2 or 5 times a power
    // of ten of seconds, not much shorter than a frame; visited at the end.
    Slices(double rate, double seconds, std::size_t frameLength, Visit visit);

    void add(const Frame& frame);
    void finish();

    double seconds() const { return seconds_; }   // of a slice; final after finish()

private:
    Slice& current();
    std::uint64_t boundary(std::uint64_t number) const;
    void visitAll();
    void merge(std::size_t count);

    double rate_;
    double seconds_;
    bool fitting_;
    Visit visit_;
    std::vector<Slice> slices_;
    std::uint64_t number_ = 0;     // of the slice that the next sample belongs to
    std::uint64_t position_ = 0;   // samples so far
};

}   // namespace kfm::tool
