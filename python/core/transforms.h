// The transforms of the library as the module calls them: rows of arrays, whose elements are counted in
// bytes here.
#pragma once

#include <cstddef>
#include <span>

#include "kfmgen.h"

namespace kfm::python {

enum class Norm { backward, ortho, forward };

// So many rows. Strides are those of an element within its row, distances from row to row, both in
// units of the side's Shape.
struct Rows {
    const void* src = nullptr;
    std::ptrdiff_t srcStride = 0, srcDistance = 0;
    void* dst = nullptr;
    std::ptrdiff_t dstStride = 0, dstDistance = 0;
    int length = 0;   // of the signal
    std::ptrdiff_t count = 0;
    Norm norm = Norm::backward;
};

// kfmErrSize for a length that there is not, whatever the arrays; then kfmErrNullPtr also where memory is
// exhausted.
using Call = KfmStatus (*)(const Rows& rows);

// What lies in the array of one side. The library counts a half spectrum in real numbers, whose pairs
// NumPy may see as complex ones.
struct Shape {
    bool complex;              // elements of the array
    bool countedInReals;       // by the library
    int (*size)(int length);   // elements of a row
};

struct Transform {
    const char* constant;   // of the module, its place in the table
    const char* name;       // in messages
    const char* lengths;
    Shape source, destination;
    bool inverse;   // its length is not that of its source
    Call single, twice;

    Call call(bool doublePrecision) const { return doublePrecision ? twice : single; }
    bool hasLength(int length, bool doublePrecision) const {
        return call(doublePrecision)({.length = length}) != kfmErrSize;
    }
};

std::span<const Transform> transforms();

}   // namespace kfm::python
