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

// Slices of `seconds`, visited as they are complete. Or no more than `most`, visited at the end:
// they are as many times as long as one of the `steps` says, after the last of these was taken as
// often as it took.
struct SliceChoice {
    double seconds;
    std::size_t most = 0;
    std::vector<std::size_t> steps = {};   // ascending from 1, two or more
};

class Slices {
public:
    using Visit = std::function<void(const Slice&)>;
    Slices(double rate, SliceChoice choice, Visit visit);

    void add(const Frame& frame);
    void finish();

    double seconds() const { return seconds_; }   // of a slice; final after finish()

private:
    Slice& current();
    std::size_t room() const;
    std::uint64_t boundary(std::uint64_t number) const;
    void visitAll();
    void merge(std::size_t count);

    double rate_;
    SliceChoice choice_;
    double seconds_;
    Visit visit_;
    std::vector<Slice> slices_;
    std::uint64_t number_ = 0;     // of the slice that the next sample belongs to
    std::uint64_t position_ = 0;   // samples so far
};

}   // namespace kfm::tool
