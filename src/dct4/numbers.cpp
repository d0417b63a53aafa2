// Bit tests for the divisors, the system's mathematics library for the rest.
#include "dct4/numbers.h"

#include <cmath>
#include <numbers>

namespace kfm::dct4 {

KfmStatus divisorsIntNonTriv(int* divisor, int n) {
    constexpr struct {
        int from, candidate;
    } table[] = {{512, 32}, {128, 16}, {32, 8}, {16, 4}, {4, 2}};
    for (const auto& [from, candidate] : table)
        if (n >= from && (n & (candidate - 1)) == 0) {
            *divisor = candidate;
            return kfmOk;
        }
    return kfmErrSize;
}

Kfm32f kfmgCosPi_32f(Kfm32f x) { return cosf(static_cast<Kfm32f>(x * std::numbers::pi)); }
Kfm32f kfmgSinPi_32f(Kfm32f x) { return sinf(static_cast<Kfm32f>(x * std::numbers::pi)); }
Kfm64f kfmgCosPi_64f(Kfm64f x) { return cos(x * std::numbers::pi); }
Kfm64f kfmgSinPi_64f(Kfm64f x) { return sin(x * std::numbers::pi); }

TurnPoint pointOnCircle(long long quarters, double rest) {
    const double c = kfmgCosPi_64f(rest), s = kfmgSinPi_64f(rest);
    switch (quarters & 3) {
    case 0: return {c, s};
    case 1: return {-s, c};
    case 2: return {-c, -s};
    default: return {s, -c};
    }
}

}   // namespace kfm::dct4
