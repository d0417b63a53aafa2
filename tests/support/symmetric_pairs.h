// A real sequence of odd length by its symmetric pairs a(j) = x(j) + x(N-j), b(j) = x(j) - x(N-j):
// the sums over cosines and sines that short prime lengths of the real transforms are made of.
// Sequences have the type Real; products and their sums have the type Wide.
#pragma once

#include <vector>

#include "support/oracle.h"

namespace kfm::tests {

template <class Wide>
struct TrigonometricSums {
    std::vector<Wide> cosines, sines;   // [k - 1] for k = 1 ... (N-1)/2
};

// first + sum over j of a(j) cos(2 pi j k / N), and sum over j of b(j) sin(2 pi j k / N).
template <class Wide, class Real>
TrigonometricSums<Wide> trigonometricSums(Real first, const std::vector<Real>& a,
                                          const std::vector<Real>& b) {
    const long half = static_cast<long>(a.size()), length = 2 * half + 1;
    TrigonometricSums<Wide> sums;
    for (long k = 1; k <= half; ++k) {
        Wide cosines = first, sines = -0.0;   // which takes the sign of what is added
        for (long j = 1; j <= half; ++j) {
            const UnitRoot w = unitRoot(j * k, length);
            cosines += Wide(a[j - 1]) * static_cast<Wide>(w.re);
            sines += Wide(b[j - 1]) * static_cast<Wide>(w.im);
        }
        sums.cosines.push_back(cosines);
        sums.sines.push_back(sines);
    }
    return sums;
}

template <class Real, class Wide>
struct PairTransform {
    Real total;   // of all samples
    TrigonometricSums<Wide> bins;

    explicit PairTransform(const std::vector<Real>& x) : total(x[0]) {
        std::vector<Real> a, b;
        for (std::size_t j = 1; 2 * j < x.size(); ++j) {
            a.push_back(x[j] + x[x.size() - j]);
            b.push_back(x[j] - x[x.size() - j]);
            total += a.back();
        }
        bins = trigonometricSums<Wide>(x[0], a, b);
    }
};

}   // namespace kfm::tests
