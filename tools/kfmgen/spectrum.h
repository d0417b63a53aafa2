// `kfmgen spectrum`: the tones of a sound over time as a page, its mean spectrum as a picture.
#pragma once

#include <ostream>

#include "input/sample_source.h"
#include "pictures/picture.h"

namespace kfm::tool {

struct SpectrumOptions {
    double sliceSeconds = 0;   // of the page; 0: as long as it takes to fit a screen
    PictureOptions picture;
    bool logarithmic = true;
};

void showSpectrum(const InputOptions& input, double sliceSeconds, std::ostream& out);
void drawSpectrum(const InputOptions& input, const SpectrumOptions& options);

}   // namespace kfm::tool
