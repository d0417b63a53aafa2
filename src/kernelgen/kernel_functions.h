// The C functions of a kernel as text, and their parameters, which all exported functions share.
#pragma once

#include <string>

#include "kernelgen/target.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

// The parameters of a fixed-length function; with the length of a generic entry.
std::string parameters(const registry::Family& family, const registry::Element& element,
                       bool generic = false);
// What those of a fixed-length function are called, to hand them on.
std::string arguments(const registry::Family& family);

// The functions of one kernel, for a block of C linkage: the exported one, which tests alignment
// where the registry says so and the target gains by it, and its unaligned copy where it has one.
// `kernel` is the type that runKernel() takes.
std::string kernelFunctions(const registry::Family& family, int length,
                            const registry::Element& element, const Target& target,
                            const std::string& kernel);

}   // namespace kfm::kernelgen
