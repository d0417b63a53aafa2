// `kfmgen transform`: one family, length and flag applied to successive frames of a signal, and
// the way back.
#pragma once

#include <optional>

#include "input/sample_source.h"
#include "output/result_writer.h"
#include "spectrum/window.h"
#include "transform/frame_transform.h"
#include "transform/framer.h"

namespace kfm::tool {

struct TransformOptions {
    InputOptions input;
    std::string output = "-";
    Format format = Format::csv;
    Choice choice;
    int hop = 0;   // 0: the whole frame
    Tail tail = Tail::pad;
    std::optional<window::Shape> window;
    int rate = 0;   // 0: that of the input
    bool times = false, frequencies = false;
    bool restorable = false;   // with notes for the way back
    int samples = 0;           // of the way back; 0: as noted, or all that the frames hold
    bool realPart = false;
};

// The first sample lies so far behind the beginning of the first frame: under windows that overlap
// there are frames before and behind the signal, so that every sample is under as many.
std::size_t leadOf(const TransformOptions& options, std::size_t length, std::size_t hop);

// Says which rate there is, 0 if none.
int rateOf(const TransformOptions& options, const SampleSource& source);

// What the transform takes, for the source.
Demand demandOf(const FrameTransform& transform);

// A result that its precision does not hold is an InputError.
void checkRange(std::span<const double> result, const FrameTransform& transform,
                const std::string& name, std::uint64_t frame);

// See ResultWriter for what is written.
void runTransform(const TransformOptions& options);

// The options are those that the frames were made with; see SignalWriter for what is written.
void runInverse(const TransformOptions& options);

}   // namespace kfm::tool
