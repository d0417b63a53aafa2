// Term-by-term sums in binary128.
#include "definition/definition.h"

#include <algorithm>
#include <cmath>

#include "definition/packed_spectrum.h"

namespace kfm::definition {
namespace {

// Interleaved real and imaginary parts in and out.
std::vector<Quad> complexDft(std::span<const double> x, int length, int sign) {
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
std::vector<double> asComplex(Content content, int samples, std::span<const double> source) {
    if (content == Content::complexSignal) return {source.begin(), source.end()};
    const auto length = static_cast<std::size_t>(samples);
    std::vector<double> whole(2 * length);
    const std::vector<Slot> spectrum = slots(content, samples);
    if (spectrum.empty())
        for (std::size_t n = 0; n < length; ++n) whole[2 * n] = source[n];
    for (std::size_t i = 0; i < spectrum.size(); ++i) {
        const Slot& slot = spectrum[i];
        if (slot.alwaysZero(samples)) continue;
        const auto bin = static_cast<std::size_t>(slot.bin), mirrored = (length - bin) % length;
        whole[2 * mirrored + slot.imaginary] = slot.imaginary ? -source[i] : source[i];
        whole[2 * bin + slot.imaginary] = source[i];
    }
    return whole;
}

// The sign rule. Each value is split into halves whose sums are exact in double precision, or as
// good as that for values of very different size: binary128 would take minutes at long lengths.
std::vector<Quad> walshHadamard(std::span<const double> x) {
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

std::vector<Quad> Transform::operator()(std::span<const double> source) const {
    if (family.name == "WHT") return walshHadamard(source);
    // The Hartley transform is the sum of the two parts, with the sine as it is.
    const bool hartley = family.name == "Hartley";
    const Contents contents = contentsOf(family.name);
    const int sign = family.inverse() || hartley ? +1 : -1;
    std::vector<Quad> whole = complexDft(asComplex(contents.source, length, source), length, sign);
    if (element.complex) return whole;
    std::vector<Quad> result;
    for (const Slot& slot : slots(contents.destination, length))
        result.push_back(whole[2 * slot.bin + slot.imaginary]);
    if (contents.destination == Content::realSignal)
        for (std::size_t n = 0; n < whole.size(); n += 2)
            result.push_back(hartley ? whole[n] + whole[n + 1] : whole[n]);
    return result;
}

Quad Transform::largest(std::span<const Quad> outputs) const {
    const std::vector<Slot> spectrum = slots(contentsOf(family.name).destination, length);
    std::vector<Quad> squares(outputs.size());
    for (std::size_t i = 0; i < outputs.size(); ++i) {
        const std::size_t whole = element.complex ? i / 2 : spectrum.empty() ? i : spectrum[i].bin;
        squares[whole] += outputs[i] * outputs[i];
    }
    return quad::sqrt(*std::ranges::max_element(squares));
}

std::vector<Quad> dct4(std::span<const double> source) {
    const std::size_t n = source.size();
    std::vector<Quad> cosines, result(n);
    for (std::size_t i = 0; i < 8 * n; ++i)
        cosines.push_back(unitRoot(static_cast<long>(i), static_cast<long>(8 * n)).re);
    for (std::size_t i = 0; i < n; ++i) {
        if (source[i] == 0) continue;   // of unit impulses nearly all
        for (std::size_t k = 0; k < n; ++k)
            result[k] += source[i] * cosines[(2 * i + 1) * (2 * k + 1) % (8 * n)];
    }
    return result;
}

double errorInUnits(std::span<const double> actual, std::span<const Quad> expected, Quad largest,
                    bool doublePrecision) {
    Quad error = 0;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (!std::isfinite(actual[i])) return HUGE_VAL;
        error = std::max(error, quad::abs(actual[i] - expected[i]));
    }
    if (largest == 0) return error == 0 ? 0 : HUGE_VAL;
    return static_cast<double>(quad::ldexp(error / largest, doublePrecision ? 53 : 24));
}

}   // namespace kfm::definition
