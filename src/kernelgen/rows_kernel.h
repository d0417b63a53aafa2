// The sources of the library of rows: the kernels of every family for several rows at a time, and the
// entries that choose among them by length.
#pragma once

#include <string>
#include <vector>

#include "kernelgen/generator.h"

namespace kfm::kernelgen {

// How a kernel takes rows.
enum class RowsForm {
    single,   // one after the other, by the function for one transform
    pairs,    // complex elements of two rows in one vector
    lanes,    // a row in every lane
};
// The one on record: the widest, unless rows are faster singly.
RowsForm rowsForm(std::string_view source, int length, const registry::Element& element,
                  const Target& target);
// In words: "4 rows in lanes".
std::string describeRows(const KernelFamily& family, int length, const registry::Element& element,
                         const Target& target);

// The C++ source of the row functions of one length and element type.
std::string rowsKernelSource(const KernelFamily& family, int length,
                             const registry::Element& element, const Target& target);

// The exported functions of all families, which choose among those by length.
std::string rowsEntries();
// `header` with their declarations made anew.
std::string withRowsDeclarations(std::string_view header);

}   // namespace kfm::kernelgen
