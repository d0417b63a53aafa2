// The frame of the library of rows as text: what follows from the registry alone.
#pragma once

#include <string>
#include <string_view>

namespace kfm::kernelgen {

// C++ source of the exported functions of all families, which choose among those by length.
std::string rowsEntries();

// `header` with their declarations made anew.
std::string withRowsDeclarations(std::string_view header);

}   // namespace kfm::kernelgen
