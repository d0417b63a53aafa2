// Term-by-term sums in binary128.
#include "support/oracle.h"

#include <quadmath.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace kfm::tests {
namespace {

std::vector<Quad> complexDft(const Signal& x, int length, int sign) {
    std::vector<UnitRoot> roots;
    for (int k = 0; k < length; ++k) roots.push_back(unitRoot(sign * k, length));
    std::vector<Quad> y(x.size(), 0);
    for (int n = 0; n < length; ++n) {
        const Quad re = x[2 * n], im = x[2 * n + 1];
        if (re == 0 && im == 0) continue;   // impulses cost one term per output
        for (int k = 0; k < length; ++k) {
            const UnitRoot& w = roots[n * k % length];
            y[2 * k] += re * w.re - im * w.im;
            y[2 * k + 1] += re * w.im + im * w.re;
        }
    }
    return y;
}

}   // namespace

UnitRoot unitRoot(long numerator, long denominator) {
    const long n = denominator;
    const long k = (numerator % n + n) % n;
    if (2 * k > n) {   // reflect at the real axis
        const UnitRoot w = unitRoot(n - k, n);
        return {w.re, -w.im};
    }
    if (4 * k > n) {   // reflect at the imaginary axis
        const UnitRoot w = unitRoot(n - 2 * k, 2 * n);
        return {-w.re, w.im};
    }
    if (8 * k > n) {   // reflect at the diagonal
        const UnitRoot w = unitRoot(n - 4 * k, 4 * n);
        return {w.im, w.re};
    }
    const Quad angle = 2 * acosq(-1) * k / n;
    return {cosq(angle), sinq(angle)};
}

std::vector<Quad> definition(const Transform& transform, const Signal& source) {
    if (transform.family->name.ends_with("_CToC"))
        return complexDft(source, transform.length, transform.family->inverse() ? +1 : -1);
    throw std::logic_error("no definition for " + std::string(transform.family->name));
}

Quad scaleFactor(const Transform& transform, int flag) {
    const Quad length = transform.length;
    const int byN = transform.family->inverse() ? kfmScaleInvByN : kfmScaleFwdByN;
    if (flag == kfmScaleBySqrtN) return 1 / sqrtq(length);
    return flag == byN ? 1 / length : Quad(1);
}

double errorInUnits(const Transform& transform, const Signal& actual,
                    const std::vector<Quad>& expected) {
    Quad error = 0, largest = 0;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (!std::isfinite(actual[i])) return HUGE_VAL;
        error = std::max(error, fabsq(actual[i] - expected[i]));
        const std::size_t pair = transform.element->complex ? i ^ 1 : i;
        largest = std::max(largest, pair == i ? fabsq(expected[i])
                                              : hypotq(expected[i], expected[pair]));
    }
    const int precision = transform.element->doublePrecision ? 53 : 24;
    return static_cast<double>(ldexpq(error / largest, precision));
}

}   // namespace kfm::tests
