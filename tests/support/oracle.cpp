// Term-by-term sums in binary128.
#include "support/oracle.h"

#include <algorithm>
#include <cmath>

namespace kfm::tests {
namespace {

// Interleaved real and imaginary parts in and out.
std::vector<Quad> complexDft(const Signal& x, int length, int sign) {
    std::vector<UnitRoot> roots;
    for (int k = 0; k < length; ++k) roots.push_back(unitRoot(sign * k, length));
    std::vector<Quad> y(x.size(), 0);
    for (int n = 0; n < length; ++n)
        for (int part : {0, 1}) {
            const Quad value = x[2 * n + part];
            if (value == 0) continue;   // impulses and real signals cost few terms
            for (int k = 0; k < length; ++k) {
                const UnitRoot& w = roots[n * k % length];
                y[2 * k + part] += value * w.re;
                y[2 * k + 1 - part] += part ? -value * w.im : value * w.im;
            }
        }
    return y;
}

// The whole complex spectrum or signal that `source` stands for.
Signal asComplex(const Transform& transform, const Signal& source) {
    if (transform.element->complex) return source;
    const auto length = static_cast<std::size_t>(transform.length);
    Signal whole(2 * length);
    const std::vector<Slot> spectrum = slots(transform.source(), transform.length);
    if (spectrum.empty())
        for (std::size_t n = 0; n < length; ++n) whole[2 * n] = source[n];
    for (std::size_t i = 0; i < spectrum.size(); ++i) {
        const Slot& slot = spectrum[i];
        if (slot.alwaysZero(transform.length)) continue;
        const auto bin = static_cast<std::size_t>(slot.bin), mirrored = (length - bin) % length;
        whole[2 * mirrored + slot.imaginary] = slot.imaginary ? -source[i] : source[i];
        whole[2 * bin + slot.imaginary] = source[i];
    }
    return whole;
}

// The sign rule. Each value is split into halves whose sums are exact in double precision, or as
// good as that for values of very different size: binary128 would take minutes at long lengths.
std::vector<Quad> walshHadamard(const Signal& x) {
    std::vector<double> signs(x.size(), 1);   // (-1)^popcount(i)
    for (std::size_t i = 1; i < x.size(); ++i) signs[i] = i % 2 ? -signs[i / 2] : signs[i / 2];
    std::vector<double> high(x.size()), low(x.size());
    for (std::size_t n = 0; n < x.size(); ++n) {
        if (x[n] == 0) continue;   // impulses cost few terms
        const double top = static_cast<float>(x[n]), rest = x[n] - top;
        for (std::size_t k = 0; k < x.size(); ++k) {
            high[k] += signs[k & n] * top;
            low[k] += signs[k & n] * rest;
        }
    }
    std::vector<Quad> y;
    for (std::size_t k = 0; k < x.size(); ++k) y.push_back(Quad(high[k]) + low[k]);
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
    const Quad angle = 2 * quad::acos(Quad(-1)) * k / n;
    return {quad::cos(angle), quad::sin(angle)};
}

std::vector<Quad> definition(const Transform& transform, const Signal& source) {
    if (transform.walshHadamard()) return walshHadamard(source);
    // The Hartley transform is the sum of the two parts, with the sine as it is.
    const int sign = transform.inverse() || transform.hartley() ? +1 : -1;
    std::vector<Quad> whole = complexDft(asComplex(transform, source), transform.length, sign);
    if (transform.element->complex) return whole;
    std::vector<Quad> result;
    for (const Slot& slot : slots(transform.destination(), transform.length))
        result.push_back(whole[2 * slot.bin + slot.imaginary]);
    if (transform.destination() == Content::realSignal)
        for (std::size_t n = 0; n < whole.size(); n += 2)
            result.push_back(transform.hartley() ? whole[n] + whole[n + 1] : whole[n]);
    return result;
}

bool dividesByN(const Transform& transform, int flag) {
    return (flag == kfmScaleFwdByN && !transform.inverse()) ||
           (flag == kfmScaleInvByN && (transform.inverse() || transform.selfInverse()));
}

Quad scaleFactor(const Transform& transform, int flag) {
    const Quad length = transform.length;
    if (flag == kfmScaleBySqrtN) return 1 / quad::sqrt(length);
    return dividesByN(transform, flag) ? 1 / length : Quad(1);
}

// The nearest value to the true factor; but the real DFT takes the root first, rounded, and then
// the quotient.
double roundedScaleFactor(const Transform& transform, int flag) {
    const Quad exact = scaleFactor(transform, flag);
    if (!transform.element->doublePrecision) return static_cast<double>(static_cast<float>(exact));
    const bool realDft = !transform.element->complex && !transform.selfInverse();
    if (realDft && flag == kfmScaleBySqrtN) return 1 / std::sqrt(double(transform.length));
    return static_cast<double>(exact);
}

namespace {

// Of a real output, a complex one or a bin.
Quad largestMagnitude(const Transform& transform, const std::vector<Quad>& values) {
    const std::vector<Slot> spectrum = slots(transform.destination(), transform.length);
    std::vector<Quad> squares(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::size_t whole = transform.element->complex ? i / 2
                                  : spectrum.empty()         ? i
                                                             : spectrum[i].bin;
        squares[whole] += values[i] * values[i];
    }
    return quad::sqrt(*std::ranges::max_element(squares));
}

}   // namespace

double errorInUnits(const Transform& transform, const Signal& actual,
                    const std::vector<Quad>& expected) {
    Quad error = 0;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (!std::isfinite(actual[i])) return HUGE_VAL;
        error = std::max(error, quad::abs(actual[i] - expected[i]));
    }
    const Quad largest = largestMagnitude(transform, expected);
    const int precision = transform.element->doublePrecision ? 53 : 24;
    if (largest == 0) return error == 0 ? 0 : HUGE_VAL;
    return static_cast<double>(quad::ldexp(error / largest, precision));
}

}   // namespace kfm::tests
