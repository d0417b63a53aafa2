// The frame of the library as text: what follows from the registry alone, whatever the kernels
// compute. Names, lengths and signatures of all exported functions pass through here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "registry/registry.h"

namespace kfm::kernelgen {

// Linker version script that exports these names and nothing else.
std::string symbolMap(const std::vector<std::string>& names);

// C++ source of the generic entries and their tables of fixed-length functions.
std::string genericEntries();

// C++ source of registry::functions().
std::string functionsTable();

// C declarations of all families, in the form in which they stand in the header.
std::string declarations();

// Calls visit(family, element) for every family and element type.
template <class Visit>
void forEachVariant(Visit visit) {
    for (const registry::Family& family : registry::families())
        for (const registry::Element* element : family.elements) visit(family, *element);
}

// `header` with the declarations between its markers made anew. Throws when a family has no
// markers.
std::string withDeclarations(std::string_view header);

// `header` with `text` between a marker and the end of declarations. Throws when it has no marker.
std::string renewed(std::string header, const std::string& marker, const std::string& text);

}   // namespace kfm::kernelgen
