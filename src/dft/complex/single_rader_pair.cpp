// Rader's step for one prime with two positions of the convolution in the lanes.
//
// p = 4q + 1, q odd: position m is (m mod 4, m mod q); the lanes hold m mod 4 = 0, 1, their
// mirror images 2, 3 meet them in the sums. Padded: the convolution of length q (p = 2q + 1) is
// continued to a cyclic one of twice the plan's length; the lanes hold its even and odd samples.
// Either way the two positions mix by a 2 x 2 matrix in each bin.
#include "dft/complex/single_rader.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

struct Positions {
    const Plan* plan;   // of the transform over the vectors
    int vectors;        // vectors in use; the rest of the plan's inputs are zero
    std::function<int(int, int)> position;   // m of vector i, lane pair 0 or 1; -1: none
    std::function<BinConstants(int)> constants;
    bool alternating;   // b is taken with the sign (-1)^m, which makes S cyclic
};

std::array<ComplexConstant, 4> lanesOf(ComplexConstant c0, ComplexConstant c1, ComplexConstant s0,
                                       ComplexConstant s1) {
    return {c0, c1, s0, s1};
}

Positions residuesModulo4(const Plan& plan, const RaderOrder& order) {
    const Plan& rows = plan.first().second();
    const int q = rows.n;
    const auto position = [q](int i, int lane) { return chineseRemainder(lane, 4, i, q); };
    const auto transformOf = [position, q](const std::vector<Constant>& roots, int lane, int k) {
        std::vector<Constant> sequence;
        for (int i = 0; i < q; ++i) sequence.push_back(roots[position(i, lane)]);
        return weightedBin(sequence, k);
    };
    const auto constants = [&order, transformOf](int k) {
        const auto c0 = transformOf(order.cosines, 0, k), c1 = transformOf(order.cosines, 1, k);
        const auto s0 = transformOf(order.sines, 0, k), s1 = transformOf(order.sines, 1, k);
        return BinConstants{lanesOf(c0, c0, s0, s0), lanesOf(c1, c1, scaled(s1, Constant(-1)), s1)};
    };
    return {&rows, q, position, constants, false};
}

Positions evenAndOddSamples(const Plan& plan, const RaderOrder& order) {
    // Even and odd bins of the padded transform are the two convolutions; even and odd samples
    // halve each once more.
    const Plan& quarter = plan.first();
    const int q = (plan.n - 1) / 2, n = quarter.n;
    const auto position = [q](int i, int lane) { return 2 * i + lane < q ? 2 * i + lane : -1; };
    // The convolution kernel h[t], t = -(q-1)..q-1, at t modulo 2n: its samples 2i + phase.
    const auto transformOf = [&order, q, n](bool sine, int phase, int k) {
        std::vector<Constant> sequence(n);
        for (int t = -(q - 1); t < q; ++t) {
            if ((t + 2 * q) % 2 != phase) continue;
            const int root = (t + q) % q;
            const Constant s = order.sines[root];
            sequence[((t + 2 * n) % (2 * n)) / 2] = !sine           ? order.cosines[root]
                                                    : root % 2 == 0 ? s
                                                                    : -s;
        }
        return weightedBin(sequence, k);
    };
    const auto constants = [transformOf, n](int k) {
        const ComplexConstant delay = {Constant::cosTurn(k, n), -Constant::sinTurn(k, n)};
        const auto delayed = [&](ComplexConstant h) {
            return ComplexConstant{h.re * delay.re - h.im * delay.im,
                                   h.re * delay.im + h.im * delay.re};
        };
        const auto c0 = transformOf(false, 0, k), c1 = transformOf(false, 1, k);
        const auto s0 = transformOf(true, 0, k), s1 = transformOf(true, 1, k);
        return BinConstants{lanesOf(c0, c0, s0, s0), lanesOf(delayed(c1), c1, delayed(s1), s1)};
    };
    return {&quarter, (q + 1) / 2, position, constants, true};
}

// The mirrored inputs of position m; odd ones exchanged where the sign alternates.
void setPair(MirroredPair& pair, int lane, int m, const RaderOrder& order, bool alternating,
             const ElementMap& input) {
    const int half = (order.prime - 1) / 2;
    pair.z[lane] = m < 0 ? -1 : input(order.input[m]);
    pair.mirror[lane] = m < 0 ? -1 : input(order.input[(m + half) % (2 * half)]);
    if (alternating && m % 2 == 1) std::swap(pair.z[lane], pair.mirror[lane]);
}

}   // namespace

std::vector<LaneVector> raderPairTransform(Graph& g, const Plan& plan, Sign sign,
                                           const ElementMap& input) {
    const RaderOrder order(plan);
    const Positions positions = plan.kind == Plan::Kind::paddedRader
                                    ? evenAndOddSamples(plan, order)
                                    : residuesModulo4(plan, order);
    std::vector<MirroredPair> pairs(positions.vectors);
    for (int i = 0; i < positions.vectors; ++i)
        for (const int lane : {0, 1})
            setPair(pairs[i], lane, positions.position(i, lane), order, positions.alternating,
                    input);

    const Ref first = g.load(input(0));
    const Complex x0 = {g.select(first, {0, 0, 2, 2}), g.select(first, {1, 1, 3, 3})};
    Complex sums;
    std::vector<Complex> parts =
        convolve(g, *positions.plan, sumsAndDifferences(g, pairs), positions.constants, x0, sums);
    parts.resize(positions.vectors);

    const Complex all = add(g, add(g, sums, select(g, sums, neighbours)), x0);
    std::vector<LaneVector> result = {{all, {0, -1, -1, -1}}};
    for (const SignedOutputs& y : combineParts(g, parts, sign)) {
        LaneVector plus{y.plus, {-1, -1, -1, -1}}, minus{y.minus, {-1, -1, -1, -1}};
        for (int lane = 0; lane < (y.second < 0 ? 2 : 4); ++lane) {
            const int m = positions.position(lane < 2 ? y.first : y.second, lane % 2);
            if (m < 0) continue;
            plus.elements[lane] = order.output[m];
            minus.elements[lane] = plan.n - order.output[m];
            if (positions.alternating && m % 2 == 1)
                std::swap(plus.elements[lane], minus.elements[lane]);
        }
        result.push_back(plus);
        result.push_back(minus);
    }
    return result;
}

}   // namespace kfm::dft::complex
