// The number type of the definitions, binary128, and its functions under their usual names. Where a
// compiler passes binary128 in another way than GCC's libraries expect it, clang for 32 bits does,
// it is the widest type that works there: 64 bits, 11 more than what is measured by it.
#pragma once

#if defined(__clang__) && defined(__i386__)

#include <cmath>

namespace kfm::definition {

using Quad = long double;

namespace quad {
using std::abs, std::acos, std::cos, std::ldexp, std::sin, std::sqrt;
}

}   // namespace kfm::definition

#else

#include <quadmath.h>

namespace kfm::definition {

__extension__ typedef __float128 Quad;

namespace quad {
inline Quad abs(Quad x) { return fabsq(x); }
inline Quad acos(Quad x) { return acosq(x); }
inline Quad cos(Quad x) { return cosq(x); }
inline Quad ldexp(Quad x, int exponent) { return ldexpq(x, exponent); }
inline Quad sin(Quad x) { return sinq(x); }
inline Quad sqrt(Quad x) { return sqrtq(x); }
}   // namespace quad

}   // namespace kfm::definition

#endif
