// The addresses of the exported functions, one row each, as programs linked with the library see
// them. The table is generated from the registry.
#pragma once

#include <span>

#include "registry/registry.h"

namespace kfm::registry {

struct Function {
    const char* name;
    const char* family;    // registry name of the family
    const char* element;   // suffix of the element type
    int length;            // or order; 0 for the generic entry
    void (*address)();     // cast to the family's signature to call
};

std::span<const Function> functions();

}   // namespace kfm::registry
