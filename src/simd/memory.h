// Between vectors and memory, named alike for all vectors; "aligned" is a multiple of 16 bytes.
// Stores are overloads: storeAligned(p, v), storeUnaligned(p, v).
#pragma once

#include "simd/operation.h"

namespace kfm::simd {

template <class Vector>
Vector loadAligned(const float* p);
template <class Vector>
Vector loadAligned(const double* p);
template <class Vector>
Vector loadUnaligned(const float* p);
template <class Vector>
Vector loadUnaligned(const double* p);
// One number in all lanes.
template <class Vector>
Vector loadEverywhere(const float* p);
template <class Vector>
Vector loadEverywhere(const double* p);

// storeStreaming(p, v): without a detour through the caches, whole vectors in their alignment;
// cheap where whole cache lines are written. It ends with finishStreaming(), which makes the stores
// visible in order.

}   // namespace kfm::simd
