// The transforms of the library as the module calls them: rows of arrays, whose elements are counted in
// bytes here.
#pragma once

#include <cstddef>

namespace kfm::python {

enum class Norm { backward, ortho, forward };

// So many rows. Strides are those of an element within its row, distances from row to row, both in
// units of the side's Shape.
struct Rows {
    const void* src;
    std::ptrdiff_t srcStride, srcDistance;
    void* dst;
    std::ptrdiff_t dstStride, dstDistance;
    int length;   // of the signal
    std::ptrdiff_t count;
    Norm norm;
};

enum class Outcome { done, badLength, noMemory };
using Call = Outcome (*)(const Rows& rows);

// What lies in the array of one side. The library counts a half spectrum in real numbers, whose pairs
// NumPy may see as complex ones.
struct Shape {
    bool complex;              // elements of the array
    bool countedInReals;       // by the library
    int (*size)(int length);   // elements of a row
};

struct Transform {
    const char* name;   // in messages
    const char* lengths;
    Shape source, destination;
    bool inverse;   // its length is not that of its source
    Call single, twice;
};

enum Index {
    dft,
    idft,
    rdftCcs,
    rdftPack,
    rdftPerm,
    irdftCcs,
    irdftPack,
    irdftPerm,
    rfft,
    irfft,
    hartley,
    wht,
    dct4,
    indexCount
};
extern const Transform transforms[indexCount];

// Whether there is the transform of this length: nothing has to be undone later.
bool hasLength(Index transform, bool doublePrecision, int length);

}   // namespace kfm::python
