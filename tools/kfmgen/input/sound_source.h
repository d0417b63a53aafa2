// Samples of a sound.
#pragma once

#include "input/input_file.h"
#include "input/sample_source.h"

namespace kfm::tool {

// None when the file holds no sound, which does not move it; a raw sound is always one.
std::unique_ptr<SampleSource> soundSource(std::unique_ptr<InputFile>& file,
                                          const InputOptions& options, const Demand& demand);

}   // namespace kfm::tool
