// The DCT-IV of 2 m reals as a user writes it around a complex transform of length m: rotate pairs
// of inputs, transform, rotate into pairs of outputs. On x86 compiled with AVX2, so there is nothing in
// here that other code shares; the caller asks the processor first.
#pragma once

#include <cstddef>

namespace kfm::bench {

// Both take the roots exp(-i pi (8 k + 1) / (16 m)), k < m, as pairs of cosine and sine.
template <class Real>
void rotateInputs(const Real* source, const Real* roots, Real* spectrum, std::size_t m);
template <class Real>
void rotateOutputs(const Real* spectrum, const Real* roots, Real* destination, std::size_t m);

}   // namespace kfm::bench
