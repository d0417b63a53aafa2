// Successive frames of a signal.
#pragma once

#include <functional>
#include <span>

#include "samples.h"

namespace kfm::tool {

// What becomes of samples at the end that do not fill a frame.
enum class Tail { pad, drop };

struct Framing {
    std::size_t length;
    std::size_t hop;   // from the start of one frame to the start of the next
    Tail tail;
};

// Visits frames up to the first that reaches the end of the signal. A short one is filled up with
// zeros or left out. Returns how many there were.
std::size_t forEachFrame(std::span<const Sample> signal, const Framing& framing,
                         const std::function<void(std::span<const Sample>)>& visit);

}   // namespace kfm::tool
