// `kfmgen transform`: one family, length and flag applied to successive frames of a signal.
#pragma once

#include "frame_transform.h"
#include "framer.h"
#include "sample_source.h"

namespace kfm::tool {

struct TransformOptions {
    InputOptions input;
    std::string output = "-";
    Choice choice;
    int hop = 0;   // 0: the whole frame
    Tail tail = Tail::pad;
};

// CSV, a row per output value, with as many digits as give the value back: index, re and im of a
// complex signal, bin, re and im of a half spectrum, index and value of a real signal. A result
// that its precision does not hold is an InputError.
void runTransform(const TransformOptions& options);

}   // namespace kfm::tool
