#include "kernelgen/algorithms.h"

#include <stdexcept>

#include "kernelgen/transpose.h"

namespace kfm::kernelgen {
namespace {

Constant cosine(long numerator, long denominator) {
    return Constant::cosTurn(numerator, denominator);
}
Constant sine(long numerator, long denominator) {
    return Constant::sinTurn(numerator, denominator);
}

// Files X[k] under k or, conjugated, under n - k.
void setBin(HalfSpectrum& spectrum, int n, int k, Complex value) {
    if (2 * k <= n) spectrum[k] = value;
    else spectrum[n - k] = {value.re, -value.im};
}

Complex bin(const HalfSpectrum& spectrum, int n, int k) {
    return 2 * k <= n ? spectrum[k] : Complex{spectrum[n - k].re, -spectrum[n - k].im};
}

std::vector<Ref> strided(std::span<const Ref> x, int start, int step, int count) {
    std::vector<Ref> result(count);
    for (int i = 0; i < count; ++i) result[i] = x[(start + i * step) % static_cast<int>(x.size())];
    return result;
}

HalfSpectrum direct2(Graph& g, std::span<const Ref> x) {
    return {{g.add(x[0], x[1]), {}}, {g.sub(x[0], x[1]), {}}};
}

HalfSpectrum direct4(Graph& g, std::span<const Ref> x) {
    const Ref even = g.add(x[0], x[2]), odd = g.add(x[1], x[3]);
    return {{g.add(even, odd), {}},
            {g.sub(x[0], x[2]), -g.sub(x[1], x[3])},
            {g.sub(even, odd), {}}};
}

Ref total(Graph& g, const std::vector<Ref>& terms, bool inPairs) {
    Ref sum;
    for (std::size_t i = 0; i < terms.size(); i += inPairs ? 2 : 1) {
        const bool two = inPairs && i + 1 < terms.size();
        sum = g.add(sum, two ? g.add(terms[i], terms[i + 1]) : terms[i]);
    }
    return sum;
}

// Odd n by the sums and differences of mirrored inputs: only cosines meet the sums, only sines
// the differences.
HalfSpectrum symmetricPairs(Graph& g, const Plan& plan, std::span<const Ref> x) {
    const int n = plan.n, half = (n - 1) / 2;
    std::vector<Ref> sum(half + 1), difference(half + 1);
    for (int j = 1; j <= half; ++j) {
        sum[j] = g.settle(g.add(x[j], x[n - j]), Border::module);
        difference[j] = g.settle(g.sub(x[j], x[n - j]), Border::module);
    }
    HalfSpectrum spectrum(half + 1);
    const bool summedThenNegated = g.arithmetic().exactZeros;   // tells for zeros only
    for (int k = 0; k <= half; ++k) {
        std::vector<Ref> cosines = {x[0]}, sines;
        for (int j = 1; j <= half; ++j) {
            cosines.push_back(g.mul(cosine(long(j) * k, n), sum[j]));
            const Ref term = g.mul(sine(long(j) * k, n), difference[j]);
            if (!term.isZero()) sines.push_back(summedThenNegated ? term : -term);
        }
        const Ref im = total(g, sines, plan.paired);
        spectrum[k] = {total(g, cosines, plan.paired), summedThenNegated ? -im : im};
    }
    return spectrum;
}

// cos u and cos 2u of the fifth of a turn u as half sum (-1/4) and half difference (sqrt(5)/4).
HalfSpectrum factoredFive(Graph& g, std::span<const Ref> x) {
    const Ref a1 = g.add(x[1], x[4]), b1 = g.sub(x[1], x[4]);
    const Ref a2 = g.add(x[2], x[3]), b2 = g.sub(x[2], x[3]);
    const Constant half = Constant::ratio(1, 2);
    const Ref sum = g.add(a1, a2);
    const Ref centre = g.add(x[0], g.mul(half * (cosine(1, 5) + cosine(2, 5)), sum));
    const Ref spread = g.mul(half * (cosine(1, 5) - cosine(2, 5)), g.sub(a1, a2));
    const Constant s1 = sine(1, 5), s2 = sine(2, 5);
    const Ref re0 = g.add(x[0], sum), re1 = g.add(centre, spread);
    const Ref near2 = g.mul(s2, b2), near1 = g.mul(s1, b1), im1 = -g.add(near1, near2);
    const Ref re2 = g.sub(centre, spread);
    const Ref far2 = g.mul(s1, b2), far1 = g.mul(s2, b1), im2 = -g.sub(far1, far2);
    return {{re0, {}}, {re1, im1}, {re2, im2}};
}

// Conjugate-pair split radix: the even half U and the quarters Z = x[4m+1], Z' = x[4m-1] give
//   X[k], X[k+n/2] = U[k] +- (w^k Z[k] + w^-k Z'[k]),
//   X[k+n/4], X[k+3n/4] = U[k+n/4] -+ i (w^k Z[k] - w^-k Z'[k]);  k = 0..n/8, the rest mirrors.
HalfSpectrum splitRadix(Graph& g, int n, std::span<const Ref> x) {
    const int quarter = n / 4;
    const HalfSpectrum u = realDft(g, Plan(n / 2), strided(x, 0, 2, n / 2));
    const HalfSpectrum z = realDft(g, Plan(quarter), strided(x, 1, 4, quarter));
    const HalfSpectrum zm = realDft(g, Plan(quarter), strided(x, n - 1, 4, quarter));
    HalfSpectrum spectrum(n / 2 + 1);
    for (int k = 0; k <= quarter / 2; ++k) {
        const Complex a = rotate(g, z[k], k, n, Sign::minus);
        const Complex b = rotate(g, zm[k], k, n, Sign::plus);
        const Complex s{g.add(a.re, b.re), g.add(a.im, b.im)};
        const Complex d{g.sub(a.re, b.re), g.sub(a.im, b.im)};
        const Complex uk = u[k], uq = bin(u, n / 2, k + quarter);
        setBin(spectrum, n, k, {g.add(uk.re, s.re), g.add(uk.im, s.im)});
        setBin(spectrum, n, k + n / 2, {g.sub(uk.re, s.re), g.sub(uk.im, s.im)});
        setBin(spectrum, n, k + quarter, {g.add(uq.re, d.im), g.sub(uq.im, d.re)});
        if (k > 0) setBin(spectrum, n, k + 3 * quarter, {g.sub(uq.re, d.im), g.add(uq.im, d.re)});
    }
    return spectrum;
}

// Bins `bins[r]` of the first step, one from each row r, through the second step; `place` says
// where output k goes. Real rows need half of the work.
template <class Place>
void acrossRows(Graph& g, const Plan& plan, const std::vector<Complex>& column, bool real,
                Place place) {
    if (real) {
        std::vector<Ref> values(column.size());
        for (std::size_t r = 0; r < column.size(); ++r) values[r] = column[r].re;
        const HalfSpectrum y = realDft(g, plan, values);
        for (int k = 0; 2 * k <= plan.n; ++k) place(k, y[k]);
    } else {
        const std::vector<Complex> y = complexDft(g, plan, column);
        for (int k = 0; k < plan.n; ++k) place(k, y[k]);
    }
}

// The first step of a factorised length: a transform of one row.
HalfSpectrum rowDft(Graph& g, const Plan& plan, std::span<const Ref> x) {
    HalfSpectrum row = realDft(g, plan, x);
    for (Complex& value : row)
        value = {g.settle(value.re, Border::module), g.settle(value.im, Border::module)};
    return row;
}

// Good-Thomas: n = second*i + first*j on input, k = k1 (mod first), k2 (mod second) on output.
HalfSpectrum primeFactor(Graph& g, const Plan& plan, std::span<const Ref> x) {
    const int a = plan.first().n, b = plan.second().n;
    std::vector<HalfSpectrum> rows(b);
    for (int j = 0; j < b; ++j) rows[j] = rowDft(g, plan.first(), strided(x, a * j, b, a));
    HalfSpectrum spectrum(plan.n / 2 + 1);
    for (int k1 = 0; 2 * k1 <= a; ++k1) {
        std::vector<Complex> column(b);
        for (int j = 0; j < b; ++j) column[j] = rows[j][k1];
        acrossRows(g, plan.second(), column, k1 == 0 || 2 * k1 == a, [&](int k2, Complex value) {
            setBin(spectrum, plan.n, chineseRemainder(k1, a, k2, b), value);
        });
    }
    return spectrum;
}

// The middle bin of rows of even length a is real and its twiddle factor a root of order 2b. For
// odd b, w_2b^(r(1+2k)) = (-1)^r w_b^(r(k-(b-1)/2)): a change of signs and a shift of outputs.
void middleColumn(Graph& g, const Plan& plan, const std::vector<HalfSpectrum>& rows,
                  HalfSpectrum& spectrum) {
    const int a = plan.first().n, b = plan.second().n;
    if (b % 2 == 0)
        throw std::invalid_argument("a twiddled step of real data takes at most one even factor");
    std::vector<Complex> column(b);
    for (int r = 0; r < b; ++r) column[r].re = r % 2 == 0 ? rows[r][a / 2].re : -rows[r][a / 2].re;
    acrossRows(g, plan.second(), column, true, [&](int k, Complex value) {
        setBin(spectrum, plan.n, a / 2 + a * ((k + (b - 1) / 2) % b), value);
    });
}

// Decimation in time: rows x[r + second*i], twiddle factors w_n^(r k1), columns across r;
// k = k1 + first*k2.
HalfSpectrum cooleyTukey(Graph& g, const Plan& plan, std::span<const Ref> x) {
    const int a = plan.first().n, b = plan.second().n;
    std::vector<HalfSpectrum> rows(b);
    for (int r = 0; r < b; ++r) rows[r] = rowDft(g, plan.first(), strided(x, r, b, a));
    HalfSpectrum spectrum(plan.n / 2 + 1);
    for (int k1 = 0; 2 * k1 < a; ++k1) {
        std::vector<Complex> column(b);
        for (int r = 0; r < b; ++r)
            column[r] = rotate(g, rows[r][k1], long(r) * k1, plan.n, Sign::minus);
        acrossRows(g, plan.second(), column, k1 == 0,
                   [&](int k2, Complex value) { setBin(spectrum, plan.n, k1 + a * k2, value); });
    }
    if (a % 2 == 0) middleColumn(g, plan, rows, spectrum);
    return spectrum;
}

// Rader: in the order of the powers of a primitive root the outputs but X[0] are a cyclic
// convolution with the roots of unity. Its cosine part has even bins only, its sine part odd bins
// only, so both come from one transform of the input: X[g^-j] = x0 + C[j] + i S[j].
HalfSpectrum raderStep(Graph& g, const Plan& plan, std::span<const Ref> x) {
    const RaderOrder order(plan);
    const int m = plan.n - 1, half = m / 2;
    std::vector<Ref> z(m);
    for (int i = 0; i < m; ++i) z[i] = x[order.input[i]];
    const HalfSpectrum spectrumOfZ = realDft(g, plan.first(), z);

    HalfSpectrum cosinePart(half + 1), sinePart(half + 1);
    for (int k = 0; k <= half; ++k) {
        const bool even = k % 2 == 0;
        ComplexConstant c = weightedBin(even ? order.cosines : order.sines, k);
        if (!even) c = {-c.re, -c.im};
        (even ? cosinePart : sinePart)[k] = scaleBy(g, spectrumOfZ[k], c);
    }
    cosinePart[0].re = g.add(x[0], cosinePart[0].re);
    const std::vector<Ref> c = realSynthesis(g, plan.first(), cosinePart);
    const std::vector<Ref> s = realSynthesis(g, plan.first(), sinePart);

    HalfSpectrum result(half + 1);
    result[0] = {g.add(x[0], spectrumOfZ[0].re), {}};
    for (int j = 0; j < half; ++j) setBin(result, plan.n, order.output[j], {c[j], s[j]});
    return result;
}

}   // namespace

Complex scaleLanes(Graph& g, Complex z, const LaneConstant& re, const LaneConstant& im) {
    const Ref b = g.mul(im, z.im), a = g.mul(re, z.re), difference = g.sub(a, b);
    const Ref d = g.mul(re, z.im), c = g.mul(im, z.re), sum = g.add(c, d);
    return {difference, sum};
}

Complex scaleBy(Graph& g, Complex z, ComplexConstant c) {
    return scaleLanes(g, z, LaneConstant(g.lanes(), c.re), LaneConstant(g.lanes(), c.im));
}

Complex rotate(Graph& g, Complex z, long numerator, long denominator, Sign sign) {
    const Constant c = cosine(numerator, denominator);
    const Constant s = sine(numerator, denominator);
    z = {g.settle(z.re, Border::rotation), g.settle(z.im, Border::rotation)};
    z = scaleBy(g, z, {c, sign == Sign::plus ? s : -s});
    return {g.settle(z.re, Border::rotation), g.settle(z.im, Border::rotation)};
}

HalfSpectrum realDft(Graph& g, const Plan& plan, std::span<const Ref> x) {
    switch (plan.kind) {
    case Plan::Kind::direct:
        if (plan.n == 1) return {{x[0], {}}};
        if (plan.n == 2) return direct2(g, x);
        if (plan.n == 4) return direct4(g, x);
        return symmetricPairs(g, plan, x);
    case Plan::Kind::factored5: return factoredFive(g, x);
    case Plan::Kind::powerOfTwo:
    case Plan::Kind::evenOdd: return splitRadix(g, plan.n, x);
    case Plan::Kind::pfa: return primeFactor(g, plan, x);
    case Plan::Kind::ct: return cooleyTukey(g, plan, x);
    case Plan::Kind::rader: return raderStep(g, plan, x);
    case Plan::Kind::paddedRader: break;
    }
    throw std::invalid_argument("the padded convolution exists in lanes only");
}

std::vector<Complex> complexDft(Graph& g, const Plan& plan, std::span<const Complex> x, Sign sign) {
    const int n = plan.n;
    std::vector<Ref> re(n), im(n);
    for (int i = 0; i < n; ++i) re[i] = x[i].re, im[i] = x[i].im;
    const HalfSpectrum p = realDft(g, plan, re), q = realDft(g, plan, im);
    std::vector<Complex> y(n);
    for (int k = 0; 2 * k <= n; ++k) {
        const int forward = sign == Sign::minus ? k : (n - k) % n;
        const int mirrored = (n - forward) % n;
        y[forward] = {g.sub(p[k].re, q[k].im), g.add(p[k].im, q[k].re)};
        if (mirrored != forward) y[mirrored] = {g.add(p[k].re, q[k].im), g.sub(q[k].re, p[k].im)};
    }
    return y;
}

std::vector<Ref> realSynthesis(Graph& g, const Plan& plan, std::span<const Complex> values) {
    Graph analysis(g.lanes(), {}, g.lanes());
    std::vector<Ref> inputs(plan.n);
    for (int i = 0; i < plan.n; ++i) inputs[i] = analysis.load(i);
    const HalfSpectrum spectrum = realDft(analysis, plan, inputs);
    std::vector<WeightedOutput> outputs;
    for (std::size_t k = 0; k < spectrum.size(); ++k) {
        outputs.push_back({spectrum[k].re, values[k].re});
        outputs.push_back({spectrum[k].im, values[k].im});
    }
    return transposed(analysis, inputs, outputs, g);
}

}   // namespace kfm::kernelgen
