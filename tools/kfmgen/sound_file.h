// Sound files as complex signals: mono is the real part, stereo the real and imaginary part.
#pragma once

#include <optional>
#include <string>

#include "samples.h"

namespace kfm::tool {

struct Sound {
    int rate;   // samples per second
    int channels;
    Samples samples;   // full scale is 1
};

// Nothing when the file exists but is no sound file.
std::optional<Sound> readSound(const std::string& path);

}   // namespace kfm::tool
