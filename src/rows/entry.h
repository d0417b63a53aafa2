// The entries of the library: argument checks, and the functions of a family by length.
#pragma once

#include "core/generic_entry.h"
#include "kfmrows.h"
#include "rows/job.h"

namespace kfm::rows {

// What is checked after the size, in this order.
template <class Element>
KfmStatus checkPointersAndFlag(const Job<Element>& job) {
    if (job.src.data == nullptr || job.dst.data == nullptr) return kfmErrNullPtr;
    return isFlag(job.flag) ? kfmOk : kfmErrFlag;
}

template <class Element, std::size_t count>
KfmStatus call(Function<Element>* const (&functions)[count], int first, int length,
               const Job<Element>& job) {
    const unsigned index = placeOf(length, first);
    if (index > count - 1 || job.rows < 0) return kfmErrSize;
    const KfmStatus status = checkPointersAndFlag(job);
    if (status == kfmOk && job.rows > 0) functions[index](job);
    return status;
}

}   // namespace kfm::rows
