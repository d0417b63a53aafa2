// How the single-precision kernels fill the four lanes of a vector. Real and imaginary parts stand
// in vectors of their own; a mapping says which four complex values share a pair of them.
#pragma once

#include <string>

namespace kfm::dft::complex {

enum class LaneMapping {
    element,       // one complex element in the lower half of a vector: the smallest lengths
    rows,          // four rows of the first step; transposed, four columns of the second
    joinedRows,    // the same for the twiddled step inside a prime-factor step
    rowPairs,      // four rows; two columns at a time step across the lanes
    symmetric,     // 2 x direct p: sums and differences of mirrored inputs of both columns
    raderPair,     // Rader p = 4q + 1: sums and differences of two residues modulo 4
    raderPadded,   // Rader p by a longer convolution: even and odd samples of sums and differences
    raderMirror,   // Rader p = 2q + 1, q direct: sums and differences of mirrored inputs twice
    raderHalf,     // Rader p = 2q + 1: sums and differences, half of the lanes
    raderTwo,      // 2 x Rader p: sums and differences of both columns
    raderRows      // Rader p: rows of the convolution's transform, there and back
};

std::string text(LaneMapping mapping);

}   // namespace kfm::dft::complex
