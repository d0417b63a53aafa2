// What a call on rows was given.
#pragma once

#include <cstddef>

#include "core/kernel_entry.h"

namespace kfm::rows {

// Element k of row r of the source is src[k * srcStride + r * srcDistance].
template <class Element>
struct Job {
    const Element* src;
    std::ptrdiff_t srcStride, srcDistance;
    Element* dst;
    std::ptrdiff_t dstStride, dstDistance;
    std::ptrdiff_t rows;
    int flag;
};

// All rows of a length that is known. The arguments have been checked, there is a row at least.
template <class Element>
using Function = KfmStatus(const Job<Element>&);

// The function for one row.
template <class Element>
using Single = KfmStatus(const Element*, Element*, int);

}   // namespace kfm::rows
