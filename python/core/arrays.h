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
    Index transform;
    bool doublePrecision;
    Norm norm;
    int length;
    Side src, dst;   // either the same place and spacing, or apart
    std::vector<OuterAxis> outer;

    const Transform& kind() const { return transforms[transform]; }
    std::ptrdiff_t rows() const {
        std::ptrdiff_t count = 1;
        for (const OuterAxis& axis : outer) count *= axis.size;
        return count;
    }
};

// Arrays that the library can take as they lie are given to it, others pass block by block through a
// few KiB of memory, at least a row. Nothing of Python is touched.
Outcome compute(Work work);

}   // namespace kfm::python
