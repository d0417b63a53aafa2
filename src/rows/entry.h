// The entries of the library: argument checks, and the functions of a family by length.
#pragma once

#include "kfmrows.h"
#include "rows/job.h"

namespace kfm::rows {

inline bool isFlag(int flag) {
    return flag == kfmScaleFwdByN || flag == kfmScaleInvByN || flag == kfmScaleBySqrtN ||
           flag == kfmScaleNone;
}

// The subtraction wraps, so that one comparison refuses lengths below and above the table.
template <class Element, std::size_t count>
KfmStatus call(Function<Element>* const (&functions)[count], int first, int length,
               const Job<Element>& job) {
    const unsigned index = static_cast<unsigned>(length) - static_cast<unsigned>(first);
    if (index > count - 1 || job.rows < 0) return kfmErrSize;
    if (job.src == nullptr || job.dst == nullptr) return kfmErrNullPtr;
    if (!isFlag(job.flag)) return kfmErrFlag;
    return job.rows == 0 ? kfmOk : functions[index](job);
}

}   // namespace kfm::rows
