// Moves of complex values between memory and lanes, and between lanes.
#pragma once

#include <array>
#include <vector>

#include "kernelgen/algorithms.h"

namespace kfm::dft::complex {

using kernelgen::Complex;
using kernelgen::Graph;
using kernelgen::LaneConstant;
using kernelgen::LanePattern;
using kernelgen::Sign;

// Element numbers of the four lanes; -1 for lanes that are not used: the last one (then zero), the
// upper half (then a copy of the lower), or all but the first (then the second is zero as well).
using Elements = std::array<int, 4>;

// Four complex values and the elements they belong to.
struct LaneVector {
    Complex value;
    Elements elements;
};

Complex load4(Graph& g, const Elements& elements);
// One element in lane 0, zero elsewhere.
Complex loadLane0(Graph& g, int element);
void store4(Graph& g, const LaneVector& vector);
// One output pair from the given half (0, 1) of a real and an imaginary vector.
void storeHalf(Graph& g, int first, int second, Complex value, int half);

Complex add(Graph& g, Complex a, Complex b);
Complex sub(Graph& g, Complex a, Complex b);
Complex select(Graph& g, Complex a, Complex b, const LanePattern& pattern);
inline Complex select(Graph& g, Complex a, const LanePattern& pattern) {
    return select(g, a, a, pattern);
}
Complex flip(Graph& g, Complex a, const LanePattern& lanes);
// a + i*b, or a - i*b for Sign::minus.
Complex addTimesI(Graph& g, Complex a, Complex b, Sign sign);
inline Sign opposite(Sign sign) { return sign == Sign::plus ? Sign::minus : Sign::plus; }

inline const LanePattern lowHalves = {0, 1, 4, 5};
inline const LanePattern highHalves = {2, 3, 6, 7};
inline const LanePattern evenLanes = {0, 2, 4, 6};
inline const LanePattern oddLanes = {1, 3, 5, 7};
inline const LanePattern neighbours = {1, 0, 3, 2};

// Up to four vectors as the rows of a matrix; result r holds lane r of each.
std::array<Complex, 4> transpose4(Graph& g, const std::vector<Complex>& rows);

// Lane l times exp(sign 2 pi i exponents[l] / n).
Complex twiddle(Graph& g, Complex z, const std::array<long, 4>& exponents, long n, Sign sign);

}   // namespace kfm::dft::complex
