// Rader's step on real data in two lanes. In the order of the powers of a primitive root the cosine
// part C and the sine part S of the outputs are convolutions of the sums a and the differences b of
// mirrored inputs with the roots of unity: X[g^-j] = x0 + C[j] + i S[j]. What shares a vector
// depends on the length m = p - 1 of the convolution.
#include <map>
#include <stdexcept>

#include "kernelgen/algorithms.h"
#include "kernelgen/lane_pairs.h"
#include "kernelgen/transpose.h"

namespace kfm::kernelgen {
namespace {

using Spectrum = std::vector<ComplexLanes>;

constexpr int lanes = 2;

// z * c with a complex constant for each lane.
Complex scaledByLanes(Graph& g, Complex z, ComplexConstant low, ComplexConstant high) {
    return scaleLanes(g, z, {low.re, high.re}, {low.im, high.im});
}

// m = 2q, q odd: lanes (a, b'), b'[i] = (-1)^i b[i], which makes both convolutions cyclic of length
// q. An odd i changes the sign of b by exchanging z[i] and z[i + q].
class SumsAndDifferences {
public:
    SumsAndDifferences(Graph& g, const Plan& plan, std::span<const Lane> x)
        : g_(g), order_(plan), plan_(plan.first().second()), x_(x) {}

    Spectrum run() {
        const int q = order_.q;
        std::vector<Ref> v(q);
        for (int i = 0; i < q; i += 2) loadTwo(i, std::min(i + 1, q - 1), v);
        HalfSpectrum bins = realDft(g_, plan_, v);
        Spectrum spectrum((order_.prime + 1) / 2);
        spectrum[0] = {{g_.add(alone(g_, x_[0]), bins[0].re), 0}, {}};
        for (int k = 0; 2 * k < q; ++k)
            bins[k] =
                scaledByLanes(g_, bins[k], order_.cosineBin(k), scaled(order_.sineBin(k), -1));
        bins[0].re = g_.add(withZero(g_, x_[0]), bins[0].re);
        const std::vector<Ref> y = realSynthesis(g_, plan_, bins);
        for (int j = 0; j < q; ++j)
            setBin(spectrum, order_.prime, order_.output(j), {{y[j], 0}, {y[j], 1}});
        return spectrum;
    }

private:
    Lane z(int m) const { return x_[order_.z(m)]; }
    Lane mirror(int m) const { return x_[order_.mirror(m)]; }

    void loadTwo(int i, int j, std::vector<Ref>& v) {
        const Ref l = i == j ? alone(g_, z(i)) : pack(g_, z(i), z(j));
        const Ref r = i == j ? alone(g_, mirror(i)) : pack(g_, mirror(i), mirror(j));
        const Ref sum = g_.add(l, r), difference = g_.sub(l, r);
        v[i] = pack(g_, {sum, 0}, {difference, 0});
        if (i != j) v[j] = pack(g_, {sum, 1}, {difference, 1});
    }

    Graph& g_;
    OddRader order_;
    const Plan& plan_;
    std::span<const Lane> x_;
};

// m = 4q, q odd: position i is (i mod 4, i mod q), the lanes hold i mod 4 = 0 and 1, and their
// mirror images 2 and 3 meet them in sums and differences. Over i mod 4 the sums a0, a1 are
// convolved as a0 + a1 and a0 - a1, the differences as the complex numbers b0 + i b1.
class ResiduesOfFour {
public:
    ResiduesOfFour(Graph& g, const Plan& plan, std::span<const Lane> x)
        : g_(g), order_(plan), plan_(plan.first().second()), x_(x), q_(plan_.n) {}

    Spectrum run() {
        std::vector<Ref> a(q_), b(q_);
        for (int r = 0; r < q_; ++r) {
            const Ref left = pack(g_, z(0, r), z(1, r)), right = pack(g_, z(2, r), z(3, r));
            a[r] = sumAndDifference(g_.add(left, right));
            b[r] = g_.sub(left, right);
        }
        Spectrum spectrum((order_.prime + 1) / 2);
        const std::vector<Ref> c = cosinePart(a, spectrum[0].re), s = sinePart(b);
        for (int r = 0; r < q_; ++r)
            for (int lane = 0; lane < lanes; ++lane)
                setBin(spectrum, order_.prime, order_.output[chineseRemainder(lane, 4, r, q_)],
                       {{c[r], lane}, {-s[r], lane}});
        return spectrum;
    }

private:
    Lane z(int i, int r) const { return x_[order_.input[chineseRemainder(i, 4, r, q_)]]; }

    Ref sumAndDifference(Ref v) {
        const Ref flipped = g_.flip(v, {0, 1});
        return g_.add(swapped(g_, v), flipped);
    }

    std::vector<Constant> rootsOf(const std::vector<Constant>& roots, int i) const {
        std::vector<Constant> row;
        for (int r = 0; r < q_; ++r) row.push_back(roots[chineseRemainder(i, 4, r, q_)]);
        return row;
    }

    std::vector<Ref> cosinePart(const std::vector<Ref>& a, Lane& total) {
        HalfSpectrum bins = realDft(g_, plan_, a);
        total = {g_.add(alone(g_, x_[0]), bins[0].re), 0};
        std::vector<Constant> sums = rootsOf(order_.cosines, 0), differences = sums;
        const std::vector<Constant> others = rootsOf(order_.cosines, 1);
        const Constant half = Constant::ratio(1, 2);
        for (int r = 0; r < q_; ++r) {
            sums[r] = half * (sums[r] + others[r]);
            differences[r] = half * (differences[r] - others[r]);
        }
        for (int k = 0; 2 * k < q_; ++k)
            bins[k] = scaledByLanes(g_, bins[k], weightedBin(sums, k), weightedBin(differences, k));
        bins[0].re = g_.add(withZero(g_, x_[0]), bins[0].re);
        std::vector<Ref> c = realSynthesis(g_, plan_, bins);
        for (Ref& v : c) v = sumAndDifference(v);
        return c;
    }

    // i times the complex number in the lanes.
    Ref turned(Ref z) { return g_.flip(swapped(g_, z), {1, 0}); }

    std::vector<Ref> sinePart(const std::vector<Ref>& b) {
        const HalfSpectrum bins = realDft(g_, plan_, b);
        const std::vector<Constant> re = rootsOf(order_.sines, 0), im = rootsOf(order_.sines, 1);
        HalfSpectrum products(bins.size());
        for (int k = 0; 2 * k < q_; ++k) {
            // Bins k and q - k of the complex sequences re + i im.
            const ComplexConstant p = constantBin(re, k), q = constantBin(im, k);
            const auto weighted = [&](Constant real, Constant imaginary, Ref z) {
                const Constant weight = Constant::ratio(1, q_);
                const Constant c = weight * real, s = weight * imaginary;
                const Ref other = g_.mul(LaneConstant{-s, s}, swapped(g_, z));
                return g_.add(g_.mul(c, z), other);
            };
            if (k == 0) {
                products[0].re = weighted(p.re, q.re, bins[0].re);
                continue;
            }
            const Ref turn = turned(bins[k].im);
            const Ref low = weighted(p.re - q.im, p.im + q.re, g_.add(bins[k].re, turn));
            const Ref high = weighted(p.re + q.im, q.re - p.im, g_.sub(bins[k].re, turn));
            products[k] = {g_.add(low, high), turned(g_.sub(high, low))};
        }
        return realSynthesis(g_, plan_, products);
    }

    Graph& g_;
    RaderOrder order_;
    const Plan& plan_;
    std::span<const Lane> x_;
    int q_;
};

// Any m: the transform of z in lanes, its bins times those of the roots, and the transposed
// transform, once for the even bins, which make C, and once for the odd ones, which make S.
class WholeConvolution {
public:
    WholeConvolution(Graph& g, const Plan& plan, std::span<const Lane> x)
        : g_(g), order_(plan), plan_(plan.first()), x_(x), m_(plan_.n), network_(lanes) {}

    Spectrum run() {
        std::vector<Lane> z, inputs;
        for (int i = 0; i < m_; ++i) {
            z.push_back(x_[order_.input[i]]);
            inputs.push_back({network_.load(i), 0});
        }
        const Spectrum bins = realDftInLanes(g_, plan_, z);
        networkBins_ = realDftInLanes(network_, plan_, inputs);
        Spectrum spectrum(m_ / 2 + 1);
        const Ref x0 = alone(g_, x_[0]);
        spectrum[0] = {{g_.add(x0, alone(g_, bins[0].re)), 0}, {}};
        Spectrum weighted;
        for (int k = 0; 2 * k <= m_; ++k) weighted.push_back(product(bins[k], k));
        weighted[0].re = {g_.add(x0, alone(g_, weighted[0].re)), 0};
        const std::vector<Lane> c = synthesis(weighted, 0), s = synthesis(weighted, 1);
        for (int j = 0; j < m_ / 2; ++j)
            setBin(spectrum, order_.prime, order_.output[j], {c[j], s[j]});
        return spectrum;
    }

private:
    ComplexLanes product(const ComplexLanes& bin, int k) {
        ComplexConstant c = weightedBin(k % 2 == 0 ? order_.cosines : order_.sines, k);
        if (k % 2 == 1) c = {-c.re, -c.im};
        if (bin.im.isZero()) {
            const Ref re = alone(g_, bin.re);
            return {{g_.mul(c.re, re), 0}, {g_.mul(c.im, re), 0}};
        }
        const bool conjugated = bin.re.negative() != bin.im.negative();
        if (conjugated) c.im = -c.im;
        const Ref z = pack(g_, bin.re, conjugated ? -bin.im : bin.im);
        const Ref other = g_.mul(LaneConstant{-c.im, c.im}, swapped(g_, z));
        const Ref y = g_.add(g_.mul(c.re, z), other);
        return {{y, 0}, {conjugated ? -y : y, 1}};
    }

    std::vector<Lane> synthesis(const Spectrum& values, int parity) {
        struct Pair {
            Lane lane[lanes];
        };
        std::map<Ref, Pair> vectors;   // what weighs each lane of the network's last vectors
        const auto weigh = [&](Lane output, Lane value) {
            if (output.isZero() || value.isZero()) return;
            vectors[output.vector.magnitude()].lane[output.index] =
                output.negative() ? -value : value;
        };
        for (int k = parity; 2 * k <= m_; k += 2) {
            weigh(networkBins_[k].re, values[k].re);
            weigh(networkBins_[k].im, values[k].im);
        }
        std::vector<WeightedOutput> outputs;
        for (const auto& [vector, pair] : vectors) {
            const auto& [low, high] = pair.lane;
            if (high.isZero()) outputs.push_back({vector, low.vector, {low.index, -1}});
            else if (low.isZero()) outputs.push_back({vector, high.vector, {-1, high.index}});
            else outputs.push_back({vector, pack(g_, low, high)});
        }
        return transposedLanes(network_, m_, outputs, g_);
    }

    Graph& g_;
    RaderOrder order_;
    const Plan& plan_;
    std::span<const Lane> x_;
    int m_;
    Graph network_;
    Spectrum networkBins_;
};

}   // namespace

std::vector<ComplexLanes> raderInLanes(Graph& g, const Plan& plan, std::span<const Lane> x) {
    const Plan& convolution = plan.first();
    const bool split = convolution.kind == Plan::Kind::pfa && convolution.second().n % 2 == 1;
    if (split && convolution.first().n == 2) return SumsAndDifferences(g, plan, x).run();
    if (split && convolution.first().n == 4) return ResiduesOfFour(g, plan, x).run();
    return WholeConvolution(g, plan, x).run();
}

}   // namespace kfm::kernelgen
