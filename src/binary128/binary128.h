// The number type of definitions and of the generator's constants, binary128, and its functions
// under their usual names. Where long double is no such type, the compiler has one of its own.
// Where a compiler passes that in another way than GCC's libraries expect it, clang for 32 bits does,
// it is the widest type that works there: 64 bits, 11 more than what is measured by it.
#pragma once

#include <cfloat>
#include <string>

#if LDBL_MANT_DIG == 113 || (defined(__clang__) && defined(__i386__))

#include <cmath>
#include <cstdio>

namespace kfm {

using Quad = long double;

namespace quad {
using std::abs, std::acos, std::cos, std::ldexp, std::rint, std::sin, std::sqrt;

// With 20 digits.
inline std::string decimal(Quad x) {
    char text[60];
    std::snprintf(text, sizeof text, "%.20Lg", x);
    return text;
}
}   // namespace quad

}   // namespace kfm

#else

#include <quadmath.h>

namespace kfm {

__extension__ typedef __float128 Quad;

namespace quad {
inline Quad abs(Quad x) { return fabsq(x); }
inline Quad acos(Quad x) { return acosq(x); }
inline Quad cos(Quad x) { return cosq(x); }
inline Quad ldexp(Quad x, int exponent) { return ldexpq(x, exponent); }
inline Quad rint(Quad x) { return rintq(x); }
inline Quad sin(Quad x) { return sinq(x); }
inline Quad sqrt(Quad x) { return sqrtq(x); }

inline std::string decimal(Quad x) {
    char text[60];
    quadmath_snprintf(text, sizeof text, "%.20Qg", x);
    return text;
}
}   // namespace quad

}   // namespace kfm

#endif
