#include "kernelgen/constants.h"

#include <cstdio>

namespace kfm::kernelgen {
namespace {

using Wide = Constant::Wide;

Wide quantised(Wide value, int bits) {
    return quad::ldexp(quad::rint(quad::ldexp(value, bits)), -bits);
}

Wide pi() {
    static const Wide value = quad::acos(Quad(-1));
    return value;
}

// cos (or sin) of `numerator/denominator` turns for an angle within the first octant.
Wide octantCosine(long numerator, long denominator) {
    return quad::cos(2 * pi() * numerator / denominator);
}
Wide octantSine(long numerator, long denominator) {
    return quad::sin(2 * pi() * numerator / denominator);
}

}   // namespace

Constant::Constant(Wide value) : value_(quantised(value, 98)) {}

Constant Constant::ratio(int numerator, int denominator) {
    return Constant(Wide(numerator) / denominator);
}

Constant Constant::cosTurn(long numerator, long denominator) {
    long eighths = ((8 * numerator) % (8 * denominator) + 8 * denominator) % (8 * denominator);
    if (eighths > 4 * denominator) eighths = 8 * denominator - eighths;
    const bool negative = eighths > 2 * denominator;
    if (negative) eighths = 4 * denominator - eighths;
    const Wide magnitude = eighths <= denominator
                               ? octantCosine(eighths, 8 * denominator)
                               : octantSine(2 * denominator - eighths, 8 * denominator);
    return Constant(negative ? -magnitude : magnitude);
}

Constant Constant::sinTurn(long numerator, long denominator) {
    return cosTurn(4 * numerator - denominator, 4 * denominator);
}

Constant Constant::inverseSqrt(int n) { return Constant(1 / quad::sqrt(Wide(n))); }

Constant Constant::settled(Wide sum) { return Constant(quantised(sum, 88)); }

Constant Constant::operator-() const { return Constant(-value_); }

std::string Constant::asFloat() const {
    char text[40];
    std::snprintf(text, sizeof text, "%af", static_cast<double>(static_cast<float>(value_)));
    return text;
}

std::string Constant::asDouble() const {
    char text[40];
    std::snprintf(text, sizeof text, "%a", static_cast<double>(value_));
    return text;
}

std::string Constant::asDecimal() const { return quad::decimal(value_); }

}   // namespace kfm::kernelgen
