// Numbers a plan is made of: split factors of lengths, sines and cosines of multiples of pi.
#pragma once

#include "kfmgen.h"

namespace kfm::dct4 {

// The split factor of a length: the largest power of two that divides `n` and is offered for its
// size, 2 from n = 4 up to 32 from n = 512. kfmErrSize, and nothing written, where there is none.
KfmStatus divisorsIntNonTriv(int* divisor, int n);

// Cosine and sine of pi x. The single-precision product is rounded before the function is called.
Kfm32f kfmgCosPi_32f(Kfm32f x);
Kfm32f kfmgSinPi_32f(Kfm32f x);
Kfm64f kfmgCosPi_64f(Kfm64f x);
Kfm64f kfmgSinPi_64f(Kfm64f x);

// The same by type.
inline Kfm32f cosPi(Kfm32f x) { return kfmgCosPi_32f(x); }
inline Kfm32f sinPi(Kfm32f x) { return kfmgSinPi_32f(x); }
inline Kfm64f cosPi(Kfm64f x) { return kfmgCosPi_64f(x); }
inline Kfm64f sinPi(Kfm64f x) { return kfmgSinPi_64f(x); }

// Cosine and sine of the angle pi (quarters/2 + rest). With `rest` within a quarter of zero they
// are as exact as the system's functions; reducing larger angles is left to the caller, who can.
struct TurnPoint {
    double cosine, sine;
};
TurnPoint pointOnCircle(long long quarters, double rest);

}   // namespace kfm::dct4
