// Single lanes of vectors, and vectors built from them. Algorithms on real data think in scalars;
// where two of them do the same, pack() puts them into one vector at the cost of a shuffle at most.
#pragma once

#include <vector>

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

struct Lane {
    Ref vector;   // a negative reference negates the lane; zero: the value 0
    int index = 0;

    bool isZero() const { return vector.isZero(); }
    bool negative() const { return vector.negative(); }
    Lane magnitude() const { return {vector.magnitude(), index}; }
    Lane operator-() const { return {-vector, index}; }
    friend bool operator==(const Lane&, const Lane&) = default;
};

inline Lane low(Ref vector) { return {vector, 0}; }
inline Lane high(Ref vector) { return {vector, 1}; }

// (a, b); loads of single elements become one load of two, different signs cost a change of sign.
Ref pack(Graph& g, Lane a, Lane b);

// `a` in lane 0; what the other lanes hold does not matter.
Ref alone(Graph& g, Lane a);

// (a, 0).
Ref withZero(Graph& g, Lane a);

// (b, a) for a vector (a, b).
Ref swapped(Graph& g, Ref a);

// A balanced tree keeps the chains short.
Ref balancedSum(Graph& g, const std::vector<Ref>& terms);

}   // namespace kfm::kernelgen
