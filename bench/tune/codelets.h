// The codelets of the DCT-IV as kernels that the tuner knows how to make and to call.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "selection.h"
#include "workshop.h"

namespace kfm::tune {

// Their functions, which an option selects like families of kernels.
std::vector<std::string> codeletFunctions();

std::vector<KernelSource> codelets(std::string_view function, const registry::Element& element,
                                   const bench::Selection& selection);

}   // namespace kfm::tune
