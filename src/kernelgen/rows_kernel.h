// The sources of the library of rows: the kernels of every family for several rows at a time, and the
// entries that choose among them by length.
#pragma once

#include <string>

#include "kernelgen/generator.h"
#include "kernelgen/rows_records.h"

namespace kfm::kernelgen {

// In words, with the schedule: "4 in lanes; 24:0:1:sums:0".
std::string describeRows(const KernelFamily& family, int length, const registry::Element& element,
                         const Target& target);

// The C++ source of the row functions of one length and element type.
std::string rowsKernelSource(const KernelFamily& family, int length,
                             const registry::Element& element, const Target& target,
                             const RowsForms& forms, const ScheduleChoice& choice);

// The exported functions of all families, which choose among those by length.
std::string rowsEntries();
// `header` with their declarations made anew.
std::string withRowsDeclarations(std::string_view header);

}   // namespace kfm::kernelgen
