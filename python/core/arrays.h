// A transform along one axis of arrays of any shape, as the library's calls on rows.
#pragma once

#include <vector>

#include "transforms.h"

namespace kfm::python {

// One side, its axis taken out: elements of the transform are `stride` bytes apart, `count` of them.
struct Side {
    char* data;
    std::ptrdiff_t stride;
    int count;
};

// An axis besides that of the transform, with the bytes from one index to the next.
struct OuterAxis {
    std::ptrdiff_t size, srcStep, dstStep;
};

struct Work {
    const Transform* kind;
    bool doublePrecision;
    Norm norm;
    int length;
    Side src, dst;                  // either the same place and spacing, or apart
    std::vector<OuterAxis> outer;   // none empty
};

// Arrays that the library can take as they lie are given to it, others pass block by block through a
// few KiB of memory, at least a row. Nothing of Python is touched. Not kfmOk where memory is exhausted.
KfmStatus compute(Work work);

}   // namespace kfm::python
