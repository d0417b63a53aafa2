// What is on record of the kernels of rows, chosen by measurement: how a length takes rows, and the
// schedule of the kernel that takes several.
#pragma once

#include <string_view>

#include "kernelgen/schedule.h"
#include "kernelgen/target.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

// How a kernel takes rows.
enum class RowsForm {
    single,   // one after the other, by the function for one transform
    pairs,    // complex elements of two rows in one vector
    lanes,    // a row in every lane
};
// Of contiguous rows, of those that are too many for the nearest caches, and of all others.
struct RowsForms {
    RowsForm contiguous, far, spaced;
};
// As many rows at a time as vectors have room for.
RowsForms widestForms(const registry::Element& element, const Target& target);
// Those, unless rows are faster one after the other.
RowsForms rowsForms(std::string_view source, int length, const registry::Element& element,
                    const Target& target);
ScheduleChoice rowsSchedule(std::string_view source, int length, const registry::Element& element,
                            const Target& target);

}   // namespace kfm::kernelgen
