// `kfmgen transform`: one family, length and flag applied to successive frames of a signal.
#pragma once

#include <ostream>

#include "frame_transform.h"
#include "frames.h"

namespace kfm::tool {

// The samples of a sound file or a text file; of standard input, as text, for "-".
Samples readSamples(const std::string& path);

// CSV, a row per output value, with as many digits as give the value back: index, re and im of a
// complex signal, bin, re and im of a half spectrum, index and value of a real signal.
void transformFrames(const Samples& samples, const FrameTransform& transform,
                     const Framing& framing, std::ostream& out);

}   // namespace kfm::tool
