// What the generated codelets stand on: vector operations, and reading and writing rows.
#pragma once

#include <cstddef>

#include "dct4/codelets.h"
#include "simd/launder.h"
#include "simd/reals.h"

namespace kfm::dct4 {

using namespace simd;

// Numbered slots as vectors a fixed distance apart.
template <class Real>
struct RowReader {
    const Real* first;

    VectorOf<Real> load(int row) const { return loadAligned(first + row * lanes<Real>); }
};

template <class Real>
struct RowWriter {
    Real* first;
    std::ptrdiff_t distance;

    void store(int row, VectorOf<Real> v) const { storeAligned(first + row * distance, v); }
};

}   // namespace kfm::dct4
