// Powers of two on real data in two lanes.
#include "kernelgen/algorithms.h"
#include "kernelgen/lane_pairs.h"

namespace kfm::kernelgen {
namespace {

using Spectrum = std::vector<ComplexLanes>;

Ref packRe(Graph& g, const ComplexLanes& a, const ComplexLanes& b) { return pack(g, a.re, b.re); }
Ref packIm(Graph& g, const ComplexLanes& a, const ComplexLanes& b) { return pack(g, a.im, b.im); }

// X[k], X[m-k] = E[k] +- w^k O[k] for two k at a time, n = 2m.
void radixTwoBins(Graph& g, const TwoSpectra& rows, int n, int k, int l, Spectrum& spectrum) {
    const Complex e{packRe(g, rows.first[k], rows.first[l]),
                    packIm(g, rows.first[k], rows.first[l])};
    const Ref re = g.settle(packRe(g, rows.second[k], rows.second[l]), Border::rotation);
    const Ref im = g.settle(packIm(g, rows.second[k], rows.second[l]), Border::rotation);
    const LaneConstant c{Constant::cosTurn(k, n), Constant::cosTurn(l, n)};
    const LaneConstant s{Constant::sinTurn(k, n), Constant::sinTurn(l, n)};
    const Ref sIm = g.mul(s, im), cRe = g.mul(c, re);
    const Ref oRe = g.settle(g.add(cRe, sIm), Border::rotation);
    const Ref sRe = g.mul(s, re), cIm = g.mul(c, im);
    const Complex o{oRe, g.settle(g.sub(cIm, sRe), Border::rotation)};
    const Complex sum{g.add(e.re, o.re), g.add(e.im, o.im)};
    const Complex difference{g.sub(e.re, o.re), g.sub(e.im, o.im)};
    for (const int lane : {0, 1}) {
        const int bin = lane == 0 ? k : l;
        spectrum[bin] = {{sum.re, lane}, {sum.im, lane}};
        spectrum[n / 2 - bin] = {{difference.re, lane}, -Lane{difference.im, lane}};
    }
}

void radixTwoBin(Graph& g, const TwoSpectra& rows, int n, int k, Spectrum& spectrum) {
    BinVector e = binVector(g, rows.first[k]);
    const BinVector o = rotated(g, binVector(g, rows.second[k]), k, n);
    if (e.conjugated != o.conjugated) e = conjugated(g, e);
    const Ref sum = g.add(e.value, o.value), difference = g.sub(e.value, o.value);
    const auto signedIm = [&](Ref bin) { return e.conjugated ? -high(bin) : high(bin); };
    spectrum[k] = {low(sum), signedIm(sum)};
    spectrum[n / 2 - k] = {low(difference), -signedIm(difference)};
}

// Conjugate-pair split radix, n = 4q: the even samples give U, the samples 4m + 1 and their mirror
// images the lanes of another transform, Z and the conjugate of Z'. With a = w^k Z, b = w^-k Z',
//   X[k], X[k+2q] = U[k] +- (a + b),   X[k+q], X[k+3q] = U[k+q] -+ i (a - b).
class SplitRadix {
public:
    SplitRadix(Graph& g, std::span<const Lane> x)
        : g_(g), n_(static_cast<int>(x.size())), q_(n_ / 4), spectrum_(n_ / 2 + 1) {
        u_ = realDftInLanes(g, Plan(n_ / 2), pickedLanes(x, 0, 2, n_ / 2));
        std::vector<Ref> mirrored(q_);
        for (int m = 0; m < q_; ++m) mirrored[m] = pack(g, x[4 * m + 1], x[n_ - 4 * m - 1]);
        z_ = realDft(g, Plan(q_), mirrored);
    }

    Spectrum run() {
        ends();
        for (int k = 1; 2 * k < q_; ++k) bins(k);
        eighth(q_ / 2);
        return std::move(spectrum_);
    }

private:
    ComplexLanes u(int k) const {
        return 2 * k <= n_ / 2 ? u_[k] : ComplexLanes{u_[n_ / 2 - k].re, -u_[n_ / 2 - k].im};
    }

    void place(int k, ComplexLanes bin) { setBin(spectrum_, n_, k, bin); }

    void ends() {
        const Ref z = z_[0].re, exchanged = swapped(g_, z), even = alone(g_, u_[0].re);
        const Ref sum = g_.add(z, exchanged);
        place(0, {low(g_.add(even, sum)), {}});
        place(2 * q_, {low(g_.sub(even, sum)), {}});
        place(q_, {u_[q_].re, -low(g_.sub(z, exchanged))});
    }

    void bins(int k) {
        const Complex z = rotate(g_, z_[k], k, n_, Sign::minus);   // (a, conj b)
        const Ref a = pack(g_, low(z.re), low(z.im)), b = pack(g_, high(z.re), high(z.im));
        const Ref plus = g_.add(a, b), minus = g_.sub(a, b);
        const ComplexLanes near = u(k), far = u(k + q_);
        const Ref re = pack(g_, near.re, far.re), im = pack(g_, far.im, near.im);
        const Ref re1 = g_.add(re, plus), re2 = g_.sub(re, plus);
        const Ref im1 = g_.add(im, minus), im2 = g_.sub(im, minus);
        place(k, {low(re1), high(im1)});
        place(k + q_, {high(re1), low(im2)});
        place(k + 2 * q_, {low(re2), high(im2)});
        place(k + 3 * q_, {high(re2), low(im1)});
    }

    // k = n/8: Z and Z' are real, and the four bins are two and their mirror images.
    void eighth(int k) {
        const Ref z = g_.settle(g_.mul(Constant::cosTurn(1, 8), z_[k].re), Border::rotation);
        const BinVector even = binVector(g_, u_[k]);
        // (Z + Z', Z' - Z), or conjugated (Z + Z', Z - Z')
        const Ref flipped = g_.flip(even.conjugated ? z : swapped(g_, z), {0, 1});
        const Ref odd = g_.add(even.conjugated ? swapped(g_, z) : z, flipped);
        const Ref sum = g_.add(even.value, odd), difference = g_.sub(even.value, odd);
        const auto im = [&](Ref bin) { return even.conjugated ? -high(bin) : high(bin); };
        place(k, {low(sum), im(sum)});
        place(3 * k, {low(difference), -im(difference)});
    }

    Graph& g_;
    int n_, q_;
    Spectrum u_;
    HalfSpectrum z_;
    Spectrum spectrum_;
};

}   // namespace

// One transform of half the length.
std::vector<ComplexLanes> evenAndOdd(Graph& g, std::span<const Lane> x) {
    const int n = static_cast<int>(x.size()), m = n / 2;
    const TwoSpectra spectra =
        twoTransforms(g, Plan(m), pickedLanes(x, 0, 2, m), pickedLanes(x, 1, 2, m));
    Spectrum spectrum(m + 1);
    const Spectrum ends = twoPoints(g, spectra.first[0].re, spectra.second[0].re);
    spectrum[0] = ends[0];
    spectrum[m] = ends[1];
    spectrum[m / 2] = {spectra.first[m / 2].re, -spectra.second[m / 2].re};
    int k = 1;
    for (; k + 1 < m / 2; k += 2) radixTwoBins(g, spectra, n, k, k + 1, spectrum);
    if (k < m / 2) radixTwoBin(g, spectra, n, k, spectrum);
    return spectrum;
}

std::vector<ComplexLanes> splitRadix(Graph& g, std::span<const Lane> x) {
    return SplitRadix(g, x).run();
}

}   // namespace kfm::kernelgen
