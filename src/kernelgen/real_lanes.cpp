#include "kernelgen/real_lanes.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

#include "kernelgen/evaluate.h"

namespace kfm::kernelgen {
namespace {

using Spectrum = std::vector<ComplexLanes>;
using Sequence = std::vector<Lane>;

Lane low(Ref vector) { return {vector, 0}; }
Lane high(Ref vector) { return {vector, 1}; }

// A bin as one vector (re, im), or (re, -im) where that saves a change of sign.
struct BinVector {
    Ref value;
    bool conjugated;
};

BinVector binVector(Graph& g, const ComplexLanes& bin) {
    const bool conjugated = bin.re.negative() != bin.im.negative();
    return {pack(g, bin.re, conjugated ? -bin.im : bin.im), conjugated};
}

BinVector conjugated(Graph& g, BinVector bin) {
    return {g.flip(bin.value, {0, 1}), !bin.conjugated};
}

// exp(-2 pi i numerator / denominator) times a bin in a vector.
BinVector rotated(Graph& g, BinVector bin, long numerator, long denominator) {
    const Constant c = Constant::cosTurn(numerator, denominator);
    const Constant s = Constant::sinTurn(bin.conjugated ? -numerator : numerator, denominator);
    const Ref z = g.settle(bin.value, Border::rotation);
    const Ref product = g.add(g.mul(c, z), g.mul(LaneConstant{s, -s}, swapped(g, z)));
    return {g.settle(product, Border::rotation), bin.conjugated};
}

Spectrum two(Graph& g, Lane x0, Lane x1) {
    const Ref a = alone(g, x0), b = alone(g, x1);
    return {{low(g.add(a, b)), {}}, {low(g.sub(a, b)), {}}};
}

Spectrum four(Graph& g, std::span<const Lane> x) {
    const Ref left = pack(g, x[0], x[1]), right = pack(g, x[2], x[3]);
    const Ref sum = g.add(left, right), difference = g.sub(left, right);
    const Spectrum ends = two(g, low(sum), high(sum));
    return {ends[0], {low(difference), -high(difference)}, ends[1]};
}

// (x[j] + x[n-j], x[j] - x[n-j]) for j = 1..(n-1)/2, two j at a time, and the sum of all x.
struct MirroredPairs {
    std::vector<Ref> sumAndDifference;
    Ref total;   // lane 0
};

MirroredPairs mirroredPairs(Graph& g, std::span<const Lane> x) {
    const int n = static_cast<int>(x.size()), half = (n - 1) / 2;
    MirroredPairs result;
    std::vector<Ref> sums;
    for (int j = 1; j < half; j += 2) {
        const Ref left = pack(g, x[j], x[j + 1]), right = pack(g, x[n - j], x[n - j - 1]);
        const Ref sum = g.settle(g.add(left, right), Border::module);
        const Ref difference = g.settle(g.sub(left, right), Border::module);
        result.sumAndDifference.push_back(pack(g, low(sum), low(difference)));
        result.sumAndDifference.push_back(pack(g, high(sum), high(difference)));
        sums.push_back(sum);
    }
    Ref total = alone(g, x[0]);
    if (const Ref all = balancedSum(g, sums); !all.isZero())
        total = g.add(g.add(total, all), alone(g, high(all)));
    if (half % 2 == 1) {
        const Ref left = alone(g, x[half]), right = alone(g, x[half + 1]);
        const Ref sum = g.settle(g.add(left, right), Border::module);
        const Ref difference = g.settle(g.sub(left, right), Border::module);
        result.sumAndDifference.push_back(pack(g, low(sum), low(difference)));
        total = g.add(total, sum);
    }
    result.total = total;
    return result;
}

// The sum of the terms, in runs of about the square root of their number: long chains of additions
// lose accuracy, trees need registers.
Ref sumInRuns(Graph& g, Ref start, std::span<const Ref> terms) {
    constexpr std::size_t shortest = 6;   // up to here one run, in the order of the terms
    const std::size_t count = terms.size();
    const auto root = static_cast<std::size_t>(std::ceil(std::sqrt(double(count))));
    const std::size_t run = count < shortest ? 1 : root;
    Ref sum = start;
    for (std::size_t first = 0; first < count; first += run) {
        Ref part;
        for (std::size_t i = first; i < std::min(first + run, count); ++i)
            part = g.add(part, terms[i]);
        sum = g.add(sum, part);
    }
    return sum;
}

Ref packRe(Graph& g, const ComplexLanes& a, const ComplexLanes& b) { return pack(g, a.re, b.re); }
Ref packIm(Graph& g, const ComplexLanes& a, const ComplexLanes& b) { return pack(g, a.im, b.im); }

Sequence pickedLanes(std::span<const Lane> x, int start, int step, int count) {
    Sequence result(count);
    for (int i = 0; i < count; ++i) result[i] = x[(start + i * step) % static_cast<int>(x.size())];
    return result;
}

// Transforms of two sequences at once: bin k of them in lanes 0 and 1.
struct TwoSpectra {
    Spectrum first, second;
};

TwoSpectra twoTransforms(Graph& g, const Plan& plan, std::span<const Lane> a,
                         std::span<const Lane> b) {
    std::vector<Ref> x(plan.n);
    for (int i = 0; i < plan.n; ++i) x[i] = pack(g, a[i], b[i]);
    TwoSpectra result;
    for (const auto& [re, im] : realDft(g, plan, x)) {
        const Ref r = g.settle(re, Border::module), i = g.settle(im, Border::module);
        result.first.push_back({low(r), im.isZero() ? Lane{} : low(i)});
        result.second.push_back({high(r), im.isZero() ? Lane{} : high(i)});
    }
    return result;
}

// X[k], X[m-k] = E[k] +- w^k O[k] for two k at a time, n = 2m.
void radixTwoBins(Graph& g, const TwoSpectra& rows, int n, int k, int l, Spectrum& spectrum) {
    const Complex e{packRe(g, rows.first[k], rows.first[l]),
                    packIm(g, rows.first[k], rows.first[l])};
    const Ref re = g.settle(packRe(g, rows.second[k], rows.second[l]), Border::rotation);
    const Ref im = g.settle(packIm(g, rows.second[k], rows.second[l]), Border::rotation);
    const LaneConstant c{Constant::cosTurn(k, n), Constant::cosTurn(l, n)};
    const LaneConstant s{Constant::sinTurn(k, n), Constant::sinTurn(l, n)};
    const Complex o{g.settle(g.add(g.mul(c, re), g.mul(s, im)), Border::rotation),
                    g.settle(g.sub(g.mul(c, im), g.mul(s, re)), Border::rotation)};
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

// Even and odd samples in the lanes of one transform of half the length.
Spectrum evenAndOdd(Graph& g, std::span<const Lane> x) {
    const int n = static_cast<int>(x.size()), m = n / 2;
    const TwoSpectra spectra =
        twoTransforms(g, Plan(m), pickedLanes(x, 0, 2, m), pickedLanes(x, 1, 2, m));
    Spectrum spectrum(m + 1);
    const Spectrum ends = two(g, spectra.first[0].re, spectra.second[0].re);
    spectrum[0] = ends[0];
    spectrum[m] = ends[1];
    spectrum[m / 2] = {spectra.first[m / 2].re, -spectra.second[m / 2].re};
    int k = 1;
    for (; k + 1 < m / 2; k += 2) radixTwoBins(g, spectra, n, k, k + 1, spectrum);
    if (k < m / 2) radixTwoBin(g, spectra, n, k, spectrum);
    return spectrum;
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
        const Ref odd = even.conjugated ? g_.add(swapped(g_, z), g_.flip(z, {0, 1}))
                                        : g_.add(z, g_.flip(swapped(g_, z), {0, 1}));
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

// The first step of a factorised length: bin k of the transform at each position, two positions
// at a time.
std::vector<Spectrum> firstStep(Graph& g, const Plan& plan,
                                const std::vector<Sequence>& positions) {
    const int count = static_cast<int>(positions.size());
    std::vector<Spectrum> bins(count);
    const auto both = [&](int a, int b) {
        TwoSpectra spectra = twoTransforms(g, plan, positions[a], positions[b]);
        bins[a] = std::move(spectra.first);
        bins[b] = std::move(spectra.second);
    };
    if (count % 2 == 0) {
        for (int i = 0; i < count; i += 2) both(i, i + 1);
        return bins;
    }
    // Neighbours and their mirror images meet as the second step takes them.
    bins[0] = realDftInLanes(g, plan, positions[0]);
    for (auto& [re, im] : bins[0]) {
        re.vector = g.settle(re.vector, Border::module);
        im.vector = g.settle(im.vector, Border::module);
    }
    const int half = (count - 1) / 2;
    for (int i = 1; i < half; i += 2) {
        both(i, i + 1);
        both(count - i, count - i - 1);
    }
    if (half % 2 == 1) both(half, half + 1);
    return bins;
}

// The second step of a bin that is complex at every position: (re, im) in the lanes, Y[k] = P + iQ
// and Y[n-k] = P - iQ as P +- (im Q, re Q), whose lanes belong to one bin each.
template <class Place>
void complexColumn(Graph& g, const Plan& plan, std::vector<BinVector> column, Place place) {
    const int n = plan.n;
    const bool conjugate = column[n - 1].conjugated;
    std::vector<Ref> z;
    for (const BinVector& bin : column)
        z.push_back(bin.conjugated == conjugate ? bin.value : conjugated(g, bin).value);
    const auto placeBin = [&](int k, Lane re, Lane im) {
        place(conjugate ? (n - k) % n : k, ComplexLanes{re, conjugate ? -im : im});
    };
    const HalfSpectrum spectrum = realDft(g, plan, z);
    for (int k = 0; 2 * k <= n; ++k) {
        const auto [p, q] = spectrum[k];
        if (q.isZero()) {
            placeBin(k, low(p), high(p));
            continue;
        }
        const Ref sum = g.add(p, swapped(g, q)), difference = g.sub(p, swapped(g, q));
        placeBin(k, low(difference), high(sum));
        placeBin(n - k, low(sum), high(difference));
    }
}

Spectrum twoSteps(Graph& g, const Plan& plan, std::span<const Lane> x) {
    const int a = plan.first().n, b = plan.second().n;
    const bool twiddled = plan.kind == Plan::Kind::ct;
    std::vector<Sequence> positions(b);
    for (int j = 0; j < b; ++j) positions[j] = pickedLanes(x, twiddled ? j : a * j, b, a);
    const std::vector<Spectrum> bins = firstStep(g, plan.first(), positions);

    Spectrum spectrum(plan.n / 2 + 1);
    const auto placer = [&](int k1) {
        return [&, k1](int k2, const ComplexLanes& value) {
            const int k = twiddled ? k1 + a * k2 : chineseRemainder(k1, a, k2, b);
            setBin(spectrum, plan.n, k, value);
        };
    };
    Sequence real(b);
    for (int j = 0; j < b; ++j) real[j] = bins[j][0].re;
    if (a % 2 == 0) {
        if (twiddled) throw std::invalid_argument("in lanes an even first factor is not twiddled");
        Sequence middle(b);
        for (int j = 0; j < b; ++j) middle[j] = bins[j][a / 2].re;
        const TwoSpectra both = twoTransforms(g, plan.second(), real, middle);
        for (int k = 0; 2 * k <= b; ++k) {
            placer(0)(k, both.first[k]);
            placer(a / 2)(k, both.second[k]);
        }
    } else {
        const Spectrum row = realDftInLanes(g, plan.second(), real);
        for (int k = 0; 2 * k <= b; ++k) placer(0)(k, row[k]);
    }
    for (int k1 = 1; 2 * k1 < a; ++k1) {
        std::vector<BinVector> column(b);
        for (int j = 0; j < b; ++j) {
            column[j] = binVector(g, bins[j][k1]);
            if (twiddled && j > 0) column[j] = rotated(g, column[j], long(j) * k1, plan.n);
        }
        complexColumn(g, plan.second(), column, placer(k1));
    }
    return spectrum;
}

Spectrum scalarDft(Graph& g, const Plan& plan, std::span<const Lane> x) {
    std::vector<Ref> values;
    for (const Lane& lane : x) values.push_back(lane.vector);
    Spectrum result;
    for (const auto& [re, im] : realDft(g, plan, values)) result.push_back({low(re), low(im)});
    return result;
}

}   // namespace

// Sums and differences of mirrored inputs in the lanes, against (cos, sin) or (cos, -sin).
std::vector<ComplexLanes> symmetricPairs(Graph& g, std::span<const Lane> x, Sign sign) {
    const int n = static_cast<int>(x.size());
    const MirroredPairs pairs = mirroredPairs(g, x);
    Spectrum spectrum((n + 1) / 2);
    spectrum[0] = {low(pairs.total), {}};
    const Ref start = withZero(g, x[0]);
    for (int k = 1; 2 * k < n; ++k) {
        std::vector<Ref> terms;
        for (std::size_t i = 0; i < pairs.sumAndDifference.size(); ++i) {
            const long angle = long(i + 1) * k * static_cast<int>(sign);
            terms.push_back(
                g.mul(LaneConstant{Constant::cosTurn(angle, n), Constant::sinTurn(angle, n)},
                      pairs.sumAndDifference[i]));
        }
        const Ref sum = sumInRuns(g, start, terms);
        spectrum[k] = {low(sum), high(sum)};
    }
    return spectrum;
}

void setBin(std::vector<ComplexLanes>& spectrum, int n, int k, ComplexLanes value) {
    if (2 * k <= n)
        spectrum.at(k) = value;
    else
        spectrum.at(n - k) = {value.re, -value.im};
}

std::vector<ComplexLanes> realDftInLanes(Graph& g, const Plan& plan, std::span<const Lane> x) {
    if (g.lanes() == 1) return scalarDft(g, plan, x);
    switch (plan.kind) {
    case Plan::Kind::direct:
        if (plan.n == 2) return two(g, x[0], x[1]);
        return plan.n == 4 ? four(g, x) : symmetricPairs(g, x);
    case Plan::Kind::factored5:
        return symmetricPairs(g, x);
    case Plan::Kind::powerOfTwo:
        return SplitRadix(g, x).run();
    case Plan::Kind::evenOdd:
        return evenAndOdd(g, x);
    case Plan::Kind::ct:
    case Plan::Kind::pfa:
        return twoSteps(g, plan, x);
    case Plan::Kind::rader:
        return raderInLanes(g, plan, x);
    case Plan::Kind::paddedRader:
        break;
    }
    throw std::invalid_argument("no mapping to lanes for " + plan.text());
}

void storeLanes(Graph& g, std::span<const LaneOutput> outputs) {
    struct Vector {
        int elements[2] = {-1, -1};
        bool negative[2] = {};
    };
    std::map<Ref, Vector> vectors;
    for (const auto& [element, value] : outputs) {
        Vector& vector = vectors[value.vector.magnitude()];
        if (vector.elements[value.index] >= 0) throw std::logic_error("a lane is stored once");
        vector.elements[value.index] = element;
        vector.negative[value.index] = value.negative();
    }
    const std::vector<double> zeros(outputs.size());
    const auto silence = evaluateNodes<double>(g, 1, zeros);
    for (const auto& [ref, vector] : vectors) {
        LanePattern subtracted(g.lanes()), flipped(g.lanes());
        for (int lane = 0; lane < g.lanes(); ++lane) {
            const bool used = vector.elements[lane] >= 0;
            const bool negative = vector.negative[used || g.lanes() == 1 ? lane : 1 - lane];
            // What silence would make a negative zero goes through zero as well.
            flipped[lane] = used && !negative && std::signbit(silence[ref.node()][lane]);
            subtracted[lane] = negative || flipped[lane];
        }
        const bool flips = std::ranges::any_of(flipped, [](int lane) { return lane; });
        const Ref value = flips ? g.flip(ref, flipped) : ref;
        g.store(vector.elements[0], vector.elements[1], g.subtract(value, subtracted));
    }
}

}   // namespace kfm::kernelgen
