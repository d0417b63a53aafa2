// Complex samples from text, one per line: the real part, or real and imaginary part with a comma,
// semicolon or white space between. Empty lines and lines that begin with # are passed over. The
// first line may name the columns; then those named `re` and `im`, or one named `value`, are read
// and others ignored, so that the tool reads its own output.
#pragma once

#include <istream>
#include <string>

#include "samples.h"

namespace kfm::tool {

// `name` stands for the text in error messages.
Samples readText(std::istream& text, const std::string& name);

}   // namespace kfm::tool
