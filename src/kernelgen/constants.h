// Constants of the generator: real numbers held to about 30 digits until they are printed.
//
// Every constant is kept as a multiple of 2^-98, so that two constants that are equal in exact
// arithmetic compare equal although they were reached by different sums, and so that a sum that
// vanishes is zero. Rounding to the element type happens once, in the emitter.
#pragma once

#include <string>

#include "binary128/binary128.h"

namespace kfm::kernelgen {

class Constant {
public:
    using Wide = Quad;

    constexpr Constant() = default;
    constexpr Constant(int value) : value_(value) {}
    explicit Constant(Wide value);
    static Constant ratio(int numerator, int denominator);

    // cos and sin of `numerator/denominator` of a full turn, reduced to the first octant on
    // integers: angles that share a cosine share its bits.
    static Constant cosTurn(long numerator, long denominator);
    static Constant sinTurn(long numerator, long denominator);
    static Constant inverseSqrt(int n);
    // A sum of many constants, rounded ten bits coarser so that its own noise is gone.
    static Constant settled(Wide sum);

    Wide value() const { return value_; }
    bool isZero() const { return value_ == 0; }

    Constant operator-() const;
    friend Constant operator+(Constant a, Constant b) { return Constant(a.value_ + b.value_); }
    friend Constant operator-(Constant a, Constant b) { return Constant(a.value_ - b.value_); }
    friend Constant operator*(Constant a, Constant b) { return Constant(a.value_ * b.value_); }
    friend bool operator==(Constant a, Constant b) { return a.value_ == b.value_; }
    friend bool operator<(Constant a, Constant b) { return a.value_ < b.value_; }

    // Correctly rounded hexadecimal literals, and a decimal for people.
    std::string asFloat() const;
    std::string asDouble() const;
    std::string asDecimal() const;

private:
    Wide value_ = 0;
};

}   // namespace kfm::kernelgen
