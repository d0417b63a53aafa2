// Where the values of a packed spectrum stand. A real sequence of n samples has the spectrum
//   X(0), Re X(1), Im X(1), Re X(2), Im X(2), ... , and X(n/2) last where n is even:
// n real values, numbered in this order. Each layout tells the array element of value `i`.
#pragma once

#include "kfmgen.h"

namespace kfm {

template <int n>
struct PackLayout {
    static constexpr int slots = n;   // array elements
    static constexpr int at(int i) { return i; }
};

// Like Pack, but X(n/2) follows X(0).
template <int n>
struct PermLayout {
    static constexpr int slots = n;
    static constexpr int at(int i) {
        if (n % 2 != 0 || i == 0) return i;
        return i == n - 1 ? 1 : i + 1;
    }
};

// Complex pairs throughout: X(0) and X(n/2) have imaginary parts, which are zero.
template <int n>
struct CcsLayout {
    static constexpr int slots = 2 * (n / 2 + 1);
    static constexpr int zeros[] = {1, n % 2 == 0 ? n + 1 : 1};
    static constexpr int at(int i) { return i == 0 ? 0 : i + 1; }

    template <class Real>
    static void storeZeros(Real* spectrum) {
        spectrum[zeros[0]] = 0;
        if (n % 2 == 0) spectrum[zeros[1]] = 0;
    }
};

}   // namespace kfm
