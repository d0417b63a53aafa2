// Rader's step for one prime p = 2q + 1, q odd. With b taken with the sign (-1)^m both parts of
// the convolution are cyclic of length q and run through one network.
//
// raderHalf: lanes (a, b), the upper half idle. raderMirror, for a direct q: lanes (a, b) of the
// positions m and -m, whose sums and differences the direct module needs next, so that its cosine
// and sine products fill all four lanes.
#include "dft/complex/single_rader.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

void storeSigned(Graph& g, const OddRader& rader, const SignedOutputs& y,
                 const std::array<int, 4>& positions) {
    LaneVector plus{y.plus, {-1, -1, -1, -1}}, minus{y.minus, {-1, -1, -1, -1}};
    for (int lane = 0; lane < 4; ++lane) {
        if (positions[lane] < 0) continue;
        plus.elements[lane] = rader.output(positions[lane]);
        minus.elements[lane] = rader.prime - plus.elements[lane];
    }
    store4(g, plus);
    store4(g, minus);
}

// Lanes (a, b) of each position.
std::vector<Complex> halfVectors(Graph& g, const OddRader& rader) {
    std::vector<Complex> result;
    for (int m = 0; m < rader.q; m += 4) {
        Elements z = {-1, -1, -1, -1}, mirror = z;
        const int count = std::min(4, rader.q - m);
        for (int lane = 0; lane < count; ++lane)
            z[lane] = rader.z(m + lane), mirror[lane] = rader.mirror(m + lane);
        const Complex x = load4(g, z), y = load4(g, mirror);
        const Complex sum = add(g, x, y), difference = sub(g, x, y);
        for (int lane = 0; lane < count; lane += 2) {
            const Complex two =
                select(g, sum, difference,
                       lane == 0 ? LanePattern{0, 4, 1, 5} : LanePattern{2, 6, 3, 7});
            result.push_back(two);
            if (lane + 1 < count) result.push_back(select(g, two, {2, 3, 2, 3}));
        }
    }
    return result;
}

// One direct module in each direction on vectors (Re a, Im a, Re b, Im b).
class MirrorNetwork {
public:
    MirrorNetwork(Graph& g, const OddRader& rader) : g_(g), rader_(rader) {}

    // v[0] = (a0, 0, b0, 0), v[i] = (a, a', b, b') of positions i and -i. Result 0 holds the
    // outputs of position 0 in lanes 0 and 2, result i those of -i and i like v[i].
    std::vector<Ref> run(std::vector<Ref> v, Ref x0, Ref& sum) {
        const int half = (rader_.q - 1) / 2;
        for (int i = 1; i <= half; ++i) v[i] = butterfly(v[i]);
        std::vector<Ref> bins(half + 1);
        for (int k = 0; k <= half; ++k) {
            Ref bin = v[0];
            for (int i = 1; i <= half; ++i)
                bin = g_.add(bin, g_.mul(factors(i * k, Sign::minus), v[i]));
            if (k == 0) sum = g_.add(bin, x0);
            bins[k] = multiply(bin, k);
        }
        bins[0] = g_.add(bins[0], x0);
        std::vector<Ref> y(half + 1);
        for (int i = 0; i <= half; ++i) {
            y[i] = bins[0];
            for (int k = 1; k <= half; ++k)
                y[i] = g_.add(y[i], g_.mul(factors(i * k, Sign::plus), bins[k]));
            if (i > 0) y[i] = butterfly(y[i]);
        }
        return y;
    }

private:
    // (u, v) -> (u + v, u - v) in both halves.
    Ref butterfly(Ref a) {
        const Ref exchanged = g_.select(a, neighbours);
        return g_.add(g_.flip(a, {0, 1, 0, 1}), exchanged);
    }

    LaneConstant factors(int exponent, Sign sign) const {
        const Constant c = Constant::cosTurn(exponent, rader_.q);
        const Constant s = Constant::sinTurn(static_cast<int>(sign) * exponent, rader_.q);
        return exponent == 0 ? LaneConstant(4, Constant(1)) : LaneConstant{c, s, c, s};
    }

    Ref multiply(Ref bin, int k) {
        const ComplexConstant a = rader_.cosineBin(k), b = rader_.sineBin(k);
        const Ref own = g_.mul(LaneConstant{a.re, k ? a.re : 0, b.re, k ? b.re : 0}, bin);
        if (k == 0) return own;
        return g_.add(own,
                      g_.mul(LaneConstant{-a.im, a.im, -b.im, b.im}, g_.select(bin, neighbours)));
    }

    Graph& g_;
    const OddRader& rader_;
};

}   // namespace

void raderHalfGraph(Graph& g, const Plan& plan, Sign sign) {
    const OddRader rader(plan);
    const auto constants = [&](int k) {
        const ComplexConstant c = rader.cosineBin(k), s = rader.sineBin(k);
        return BinConstants{{c, s, c, s}, {}};
    };
    const Complex x0 = loadLane0(g, 0);
    Complex sums;
    const std::vector<Complex> parts =
        convolve(g, plan.first().second(), halfVectors(g, rader), constants, x0, sums);
    store4(g, {add(g, x0, sums), {0, -1, -1, -1}});
    for (int j = 0; j < rader.q; j += 4) {
        const int count = std::min(4, rader.q - j);
        const auto two = [&](int from) {
            return from + 1 < rader.q ? select(g, parts[from], parts[from + 1], {0, 4, 1, 5})
                                      : select(g, parts[from], {0, 0, 1, 1});
        };
        const Complex low = two(j), high = count > 2 ? two(j + 2) : low;
        const Complex c = select(g, low, high, lowHalves), s = select(g, low, high, highHalves);
        std::array<int, 4> positions = {-1, -1, -1, -1};
        for (int lane = 0; lane < count; ++lane) positions[lane] = j + lane;
        storeSigned(g, rader, {addTimesI(g, c, s, sign), addTimesI(g, c, s, opposite(sign)), 0, 0},
                    positions);
    }
}

void raderMirrorGraph(Graph& g, const Plan& plan, Sign sign) {
    const OddRader rader(plan);
    const int q = rader.q, half = (q - 1) / 2;
    std::vector<MirroredPair> pairs;
    for (int m = 1; m <= half; ++m)
        pairs.push_back({{rader.z(m), rader.z(q - m)}, {rader.mirror(m), rader.mirror(q - m)}});
    std::vector<Complex> inputs = sumsAndDifferences(g, pairs);
    const Complex z = load4(g, {rader.z(0), -1, -1, -1});
    const Complex mirror = load4(g, {rader.mirror(0), -1, -1, -1});
    inputs.insert(inputs.begin(), add(g, z, flip(g, mirror, {0, 0, 1, 0})));

    std::vector<Ref> re, im;
    for (const Complex& input : inputs) re.push_back(input.re), im.push_back(input.im);
    const Complex x0 = loadLane0(g, 0);
    MirrorNetwork network(g, rader);
    Complex sums;
    re = network.run(re, x0.re, sums.re);
    im = network.run(im, x0.im, sums.im);
    store4(g, {sums, {0, -1, -1, -1}});

    const Complex alone = {re[0], im[0]};
    const Complex s = select(g, alone, {2, 3, 2, 3});
    storeSigned(g, rader,
                {addTimesI(g, alone, s, sign), addTimesI(g, alone, s, opposite(sign)), 0, -1},
                {0, -1, -1, -1});
    std::vector<Complex> parts;
    for (int i = 1; i <= half; ++i) parts.push_back({re[i], im[i]});
    for (const SignedOutputs& y : combineParts(g, parts, sign)) {
        const int i = y.first + 1, l = y.second + 1;
        storeSigned(g, rader, y,
                    l > 0 ? std::array{q - i, i, q - l, l} : std::array{q - i, i, -1, -1});
    }
}

}   // namespace kfm::dft::complex
