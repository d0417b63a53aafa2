// The generated codelets of the DCT-IV as the generator's command line sees them.
#pragma once

#include <vector>

#include "kernelgen/generator.h"

namespace kfm::dct4 {

// One codelet function and its range of sizes, as in codelets.def.
struct CodeletRange {
    std::string_view function;
    int first, last;
};

const std::vector<CodeletRange>& codeletRanges();
std::vector<kernelgen::KernelFamily> codeletFamilies();

}   // namespace kfm::dct4
