// The kernels of every family for several rows at a time, as sources of the library of rows.
#pragma once

#include <string>

#include "kernelgen/generator.h"
#include "rows/kernels/rows_records.h"

namespace kfm::kernelgen {

// The head of the function of one length, which the entries of the library call.
std::string rowsFunction(const registry::Family& family, int length,
                         const registry::Element& element);

// In words, with the schedule: "4 in lanes; 24:0:1:sums:0".
std::string describeRows(const KernelFamily& kernels, int length, const registry::Element& element,
                         const Target& target);

// The C++ source of the row functions of one length and element type.
std::string rowsKernelSource(const KernelFamily& kernels, int length,
                             const registry::Element& element, const Target& target,
                             const RowsForms& forms, const ScheduleChoice& choice);

}   // namespace kfm::kernelgen
