// Direct modules of odd length across the lanes, for what is left over when rows or columns do not
// come in fours: one column in four lanes costs a third of one column in one lane.
//
// Everything rests on sums and differences of mirrored inputs, T = (a, a', b, b') of two positions
// i, j of one column or of one position of two columns. Cosines meet a, sines meet b.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "dft/complex/lanes.h"

namespace kfm::dft::complex {

// Positions of a column of odd length p in groups of four: 1 2 -1 -2 | 3 4 -3 -4 | ... with 0 in a
// group of its own or, where one pair is left, i -i 0.
std::vector<int> mirroredOrder(int p);

// The lower half of z, zero above.
Complex lowerHalf(Graph& g, Complex z);

// The transform of one column whose positions stand in the lanes of `groups` in mirrored order.
// The elements are output numbers: first output 0, then k, l, -k, -l.
std::vector<LaneVector> directColumn(Graph& g, int p, std::span<const Complex> groups, Sign sign);

// (C, C', S, S') of the outputs k = 1..(p-1)/2 of two columns: x0 in the lower half of `first`,
// t[i-1] the sums and differences of position i. Adds the sums to `first`: output 0.
std::vector<Complex> directParts(Graph& g, int p, std::span<const Complex> t, Complex& first);

// The sums and differences of two columns in mirrored order, and their x0.
std::vector<Complex> mirroredSums(Graph& g, int p, std::span<const Complex> a,
                                  std::span<const Complex> b, Complex& first);

// The outputs C -+ iS of both signs from vectors (C, C', S, S'), by two vectors at a time.
struct SignedOutputs {
    Complex plus, minus;   // C + i*sign*S and C - i*sign*S
    int first, second;     // from which vectors; second = -1 for a lone one
};
std::vector<SignedOutputs> combineParts(Graph& g, std::span<const Complex> parts, Sign sign);

// Two columns of length p as one transform of length 2p by prime factors. C + i*sign*S of part i
// is output outputs[i] of the columns, C - i*sign*S output p - outputs[i]; output 0 of both stands
// in the lower half of `first`.
std::vector<LaneVector> joinColumns(Graph& g, int p, std::span<const Complex> parts,
                                    std::span<const int> outputs, Complex first, Sign sign);

// Appends the sums and differences of z and its mirror image, (a, a', b, b') of the lower half and,
// where there is one, of the upper half.
void splitMirrored(Graph& g, Complex z, Complex mirror, bool upperHalf,
                   std::vector<Complex>& result);

// The same output numbers of two columns of length p: the 2-point step of a transform of length 2p
// by prime factors.
std::array<LaneVector, 2> twoPoint(Graph& g, int p, Complex even, Complex odd,
                                   const Elements& outputs);
// Where position i of a column of length p stands in the transform of length 2p.
int elementOfColumn(int p, int i, int column);

// Positions of a column of length 2p, p odd, as two columns of length p side by side in mirrored
// order: (1, 1', 2, 2') (-1, -1', -2, -2') ... (0, 0').
std::vector<int> mirroredPairOrder(int p);

// The transform of length 2p from the sums and differences t of two columns and their x0.
std::vector<LaneVector> directTwoColumns(Graph& g, int p, std::span<const Complex> t, Complex first,
                                         Sign sign);

// The transform of length 2p of one column in that order.
std::vector<LaneVector> directColumnOfPairs(Graph& g, int p, std::span<const Complex> groups,
                                            Sign sign);

}   // namespace kfm::dft::complex
