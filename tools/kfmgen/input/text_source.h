// Samples from text, one per line. Empty lines and lines that begin with # are passed over. The
// first line may name the columns; then those named `re` and `im`, or one named `value`, are read
// and others are not, but for `frame` with `index` or `bin`, which have to count. Columns without
// names are channels. So the tool reads its own output.
#pragma once

#include "input/input_file.h"
#include "input/sample_source.h"

namespace kfm::tool {

std::unique_ptr<SampleSource> textSource(std::unique_ptr<InputFile> file, const Channels& channels,
                                         const Demand& demand);

}   // namespace kfm::tool
