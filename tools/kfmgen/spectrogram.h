// `kfmgen spectrogram`: the levels of a sound over time and frequency, as picture or as page.
#pragma once

#include <ostream>

#include "input/sample_source.h"
#include "pictures/picture.h"

namespace kfm::tool {

void showSpectrogram(const InputOptions& input, const PictureOptions& picture, std::ostream& page);

}   // namespace kfm::tool
