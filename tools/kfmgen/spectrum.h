// `kfmgen spectrum`: the tones of a sound over time.
#pragma once

#include <ostream>

#include "sample_source.h"

namespace kfm::tool {

// With `sliceSeconds` 0 the slices are as long as it takes to fit a screen.
void showSpectrum(const InputOptions& input, double sliceSeconds, std::ostream& out);

}   // namespace kfm::tool
