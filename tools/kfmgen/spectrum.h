// `kfmgen spectrum`: the strongest frequencies of a sound, slice by slice.
#pragma once

#include <ostream>
#include <string>

namespace kfm::tool {

// With `sliceSeconds` 0 the slices are as long as it takes to fit a screen.
void showSpectrum(const std::string& path, double sliceSeconds, std::ostream& out);

}   // namespace kfm::tool
