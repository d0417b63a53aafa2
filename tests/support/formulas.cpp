// The formulas behind expectedOutput(), one function for each family and kind of length.
#include "support/formulas.h"

#include "support/symmetric_pairs.h"

namespace kfm::tests {
namespace {

constexpr double sqrtHalf = 0.7071067811865476;
constexpr double sinThird = 0.8660254037844386;   // of a turn

struct Value {
    double number;
    bool scaledBeforeRounding = false;
};

template <class Real>
double scaled(const Value& value, double scale) {
    if (value.scaledBeforeRounding) return static_cast<Real>(value.number * scale);
    return static_cast<Real>(static_cast<Real>(value.number) * static_cast<Real>(scale));
}

struct Bin {
    Value re, im = {0};
};

template <class Real>
using Reals = std::vector<Real>;
using Values = std::vector<Value>;
using Bins = std::vector<Bin>;

// Sign changes are subtractions from zero, so that zero keeps its sign.
template <class Real>
Real negated(Real value) {
    return 0 - value;
}

template <class Real>
Bins primeBins(const Reals<Real>& x) {
    const PairTransform<Real, double> pairs(x);
    Bins bins = {{{pairs.total}}};
    for (std::size_t k = 0; k < pairs.bins.cosines.size(); ++k)
        bins.push_back({{pairs.bins.cosines[k], true}, {negated(pairs.bins.sines[k]), true}});
    return bins;
}

template <class Real>
Bins bins4(const Reals<Real>& x) {
    const Real e = x[0] + x[2], o = x[1] + x[3];
    return {{{e + o}}, {{x[0] - x[2]}, {negated(x[1] - x[3])}}, {{e - o}}};
}

template <class Real>
Bins bins8(const Reals<Real>& x) {
    const Real e0 = x[0] + x[4], e1 = x[2] + x[6], o0 = x[1] + x[5], o1 = x[3] + x[7];
    const Real E = e0 + e1, O = o0 + o1;
    const Real p = (x[1] - x[5]) * sqrtHalf, q = (x[3] - x[7]) * sqrtHalf;
    const Real u = p + q, v = p - q, d = x[0] - x[4], f = x[2] - x[6];
    return {{{E + O}},
            {{d + v}, {negated<Real>(f + u)}},
            {{e0 - e1}, {negated(o0 - o1)}},
            {{d - v}, {negated<Real>(u - f)}},
            {{E - O}}};
}

// Twice a prime: one transform over the even samples, one centred on the middle sample. At 14 and
// 22 sums of products stay in double precision up to the output.
template <class Real>
Bins twicePrimeBins(const Reals<Real>& x) {
    const std::size_t n = x.size(), p = n / 2;
    Reals<Real> even, odd;
    for (std::size_t i = 0; i < p; ++i) {
        even.push_back(x[2 * i]);
        odd.push_back(x[(p + 2 * i) % n]);
    }
    const PairTransform<Real, double> E(even), O(odd);
    Bins bins(p + 1);
    bins[0].re = {E.total + O.total};
    bins[p].re = {E.total - O.total};
    for (std::size_t k = 1; 2 * k < p; ++k) {
        const auto pair = [&]<class Wide>(Wide) {
            const bool once = p > 5;
            const Wide e = E.bins.cosines[k - 1], o = O.bins.cosines[k - 1];
            const Wide f = E.bins.sines[k - 1], g = O.bins.sines[k - 1];
            // Odd bins subtract; the other bin of the pair is the mirrored one.
            const Bin sum = {{e + o, once}, {k % 2 ? f + g : negated<Wide>(f + g), once}};
            const Bin difference = {{e - o, once}, {k % 2 ? negated<Wide>(f - g) : f - g, once}};
            bins[k] = k % 2 ? difference : sum;
            bins[p - k] = k % 2 ? sum : difference;
        };
        p > 5 ? pair(double()) : pair(Real());
    }
    return bins;
}

// A three-point transform: the sum, and bin 1 as t - iu.
template <class Real, class Wide>
struct Three {
    Real sum;
    Wide t, u;

    Three(Real x0, Real x1, Real x2)
        : sum(x0 + (x1 + x2)), t(x0 - 0.5 * (x1 + x2)), u((x1 - x2) * sinThird) {}

    // By the angle of which `c` and `s` are cosine and sine.
    void rotate(double c, double s) {
        const Wide rotated = t * c - u * s;
        u = u * c + t * s;
        t = rotated;
    }
};

// Three residue classes, rounded before and after their rotation, and three points across them.
template <class Real>
Bins bins9(const Reals<Real>& x) {
    const Three<Real, Real> first(x[0], x[3], x[6]);
    Three<Real, Real> second(x[1], x[4], x[7]), third(x[2], x[5], x[8]);
    second.rotate(0.766044443118978, 0.6427876096865394);
    third.rotate(0.17364817766693036, 0.984807753012208);
    const Three<Real, double> sums(first.sum, second.sum, third.sum);
    const Three<Real, double> re(first.t, second.t, third.t), im(first.u, second.u, third.u);
    return {{{sums.sum}},
            {{re.sum}, {negated(im.sum)}},
            {{re.t + im.u, true}, {im.t - re.u, true}},
            {{sums.t, true}, {negated(sums.u), true}},
            {{re.t - im.u, true}, {negated(im.t + re.u), true}}};
}

template <class Real>
Bins forwardBins(const Reals<Real>& x) {
    switch (x.size()) {
    case 2: return {{{x[0] + x[1]}}, {{x[0] - x[1]}}};
    case 4: return bins4(x);
    case 8: return bins8(x);
    case 9: return bins9(x);
    case 6:
    case 10:
    case 14:
    case 22: return twicePrimeBins(x);
    }
    return primeBins(x);
}

template <class Real>
Values forward(const Reals<Real>& x) {
    Values ccs;
    for (const Bin& bin : forwardBins(x)) ccs.insert(ccs.end(), {bin.re, bin.im});
    return ccs;
}

// From a CCS array.
template <class Real>
Values primeInverse(const Reals<Real>& spectrum) {
    const std::size_t half = spectrum.size() / 2 - 1;
    Reals<Real> a, b;
    Real total = spectrum[0];
    for (std::size_t k = 1; k <= half; ++k) {
        a.push_back(2 * spectrum[2 * k]);
        b.push_back(2 * spectrum[2 * k + 1]);
        total += a.back();
    }
    const auto sums = trigonometricSums<double>(spectrum[0], a, b);
    Values x(2 * half + 1);
    x[0] = {total};
    for (std::size_t j = 1; j <= half; ++j) {
        const double c = sums.cosines[j - 1], d = sums.sines[j - 1];
        if (half == 1) {
            x[j] = {Real(c) - Real(d)};
            x[x.size() - j] = {Real(c) + Real(d)};
        } else {
            x[j] = {c - d, true};
            x[x.size() - j] = {c + d, true};
        }
    }
    return x;
}

template <class Real>
Values inverse8(const Reals<Real>& X) {
    const Real r1 = 2 * X[2], i1 = 2 * X[3], r2 = 2 * X[4], i2 = 2 * X[5], r3 = 2 * X[6],
               i3 = 2 * X[7];
    const Real a = X[0] + X[8], b = X[0] - X[8];
    const Real u0 = a + r2, u1 = b - i2, u2 = a - r2, u3 = b + i2;
    const Real p = r1 - r3, q = i1 + i3, v0 = r1 + r3, v2 = i3 - i1;
    const Real v1 = (p - q) * sqrtHalf, v3 = (p + q) * sqrtHalf;
    return {{u0 + v0}, {u1 + v1}, {u2 + v2}, {u3 - v3}, {u0 - v0}, {u1 - v1}, {u2 - v2}, {u3 + v3}};
}

template <class Real>
Values inverse(const Reals<Real>& X, int length) {
    if (length == 2) return {{X[0] + X[2]}, {X[0] - X[2]}};
    if (length == 8) return inverse8(X);
    if (length != 4) return primeInverse(X);
    const Real r = 2 * X[2], i = 2 * X[3], sum = X[0] + X[4], difference = X[0] - X[4];
    return {{sum + r}, {difference - i}, {sum - r}, {difference + i}};
}

template <class Real>
Values hartley8(const Reals<Real>& x) {
    const Real p = sqrtHalf * (x[1] - x[5]), q = sqrtHalf * (x[3] - x[7]);
    const Real e0 = x[0] + x[4], e1 = x[0] - x[4], f0 = x[2] + x[6], f1 = x[2] - x[6];
    const Real g = x[1] + x[5], h = x[3] + x[7];
    return {{e0 + f0 + g + h}, {(e1 + p - q) + (f1 + p + q)},
            {e0 - f0 + g - h}, {(e1 - p + q) - (f1 - p - q)},
            {e0 + f0 - g - h}, {(e1 - p + q) + (f1 - p - q)},
            {e0 - f0 - g + h}, {(e1 + p - q) - (f1 + p + q)}};
}

template <class Real>
Values hartley(const Reals<Real>& x) {
    const std::size_t n = x.size();
    if (n == 2) return {{x[0] + x[1]}, {x[0] - x[1]}};
    if (n == 8) return hartley8(x);
    if (n == 4) {
        const Real a = x[0] + x[2], b = x[0] - x[2], c = x[1] + x[3], d = x[1] - x[3];
        return {{a + c}, {b + d}, {a - c}, {b - d}};
    }
    const PairTransform<Real, double> pairs(x);
    Values H(n);
    H[0] = {pairs.total};
    for (std::size_t k = 1; 2 * k < n; ++k) {
        // A sum of several products starts from zero.
        const double sines = n == 3 ? pairs.bins.sines[0] : 0.0 + pairs.bins.sines[k - 1];
        const Real c = pairs.bins.cosines[k - 1], s = sines;
        H[k] = {c + s};
        H[n - k] = {c - s};
    }
    return H;
}

template <class Real>
Signal expectedOutput(const Transform& transform, const Signal& source, int flag) {
    const Reals<Real> x(source.begin(), source.end());
    const Values values = transform.hartley()   ? hartley(x)
                          : transform.inverse() ? inverse(x, transform.length)
                                                : forward(x);
    Signal output;
    for (const Value& value : values)
        output.push_back(scaled<Real>(value, roundedScaleFactor(transform, flag)));
    return output;
}

}   // namespace

Signal formulaOutput(const Transform& transform, const Signal& source, int flag) {
    return transform.element->doublePrecision ? expectedOutput<double>(transform, source, flag)
                                              : expectedOutput<float>(transform, source, flag);
}

}   // namespace kfm::tests
