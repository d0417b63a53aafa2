// The graphs of the real DFT. The inverse is the transpose of the forward transform, applied to a
// spectrum whose interior bins are doubled, because each of them stands for its mirror image too.
#include <map>

#include "dft/real/factors.h"
#include "dft/real/real_kernels.h"
#include "kernelgen/real_lanes.h"
#include "kernelgen/transpose.h"

namespace kfm::dft::real {

using namespace kernelgen;

namespace {

// The number of Re X(k) and Im X(k) among the values of a packed spectrum.
int realPart(int k) { return k == 0 ? 0 : 2 * k - 1; }
int imaginaryPart(int k) { return 2 * k; }

std::vector<Lane> samples(Graph& g, int n) {
    std::vector<Lane> x;
    for (int i = 0; i < n; ++i) x.push_back({g.load(i), 0});
    return x;
}

// Operation by operation: every imaginary part is subtracted from zero.
std::vector<ComplexLanes> eightPoints(Graph& g, std::span<const Lane> x) {
    const auto add = [&](int i, int j) { return g.add(x[i].vector, x[j].vector); };
    const auto sub = [&](int i, int j) { return g.sub(x[i].vector, x[j].vector); };
    const auto product = [&](Ref a) {
        return g.settle(g.mul(Constant::cosTurn(1, 8), a), Border::rotation);
    };
    const Ref e0 = add(0, 4), e1 = add(2, 6), o0 = add(1, 5), o1 = add(3, 7);
    const Ref even = g.add(e0, e1), odd = g.add(o0, o1);
    const Ref p = product(sub(1, 5)), q = product(sub(3, 7));
    const Ref u = g.add(p, q), v = g.sub(p, q), d = sub(0, 4), f = sub(2, 6);
    const auto bin = [](Ref re, Ref im) { return ComplexLanes{{re, 0}, {im, 0}}; };
    const Ref re0 = g.add(even, odd);
    const Ref im1 = -g.add(f, u), re1 = g.add(d, v);
    const Ref im2 = -g.sub(o0, o1), re2 = g.sub(e0, e1);
    const Ref im3 = -g.sub(u, f), re3 = g.sub(d, v);
    return {bin(re0, {}), bin(re1, im1), bin(re2, im2), bin(re3, im3), bin(g.sub(even, odd), {})};
}

std::vector<LaneOutput> packed(std::span<const ComplexLanes> spectrum, int n) {
    std::vector<LaneOutput> outputs;
    for (int k = 0; 2 * k <= n; ++k) {
        outputs.push_back({realPart(k), spectrum[k].re});
        if (k > 0 && 2 * k < n) outputs.push_back({imaginaryPart(k), spectrum[k].im});
    }
    return outputs;
}

bool interior(int value, int n) { return value > 0 && (n % 2 == 1 || value < n - 1); }

// What the inverse transform of n points reads for one vector of the forward transform.
class SpectrumVector {
public:
    void add(const LaneOutput& output) {
        values_[output.value.index] = output.element;
        negative_[output.value.index] = output.value.negative();
    }

    WeightedOutput weighted(Graph& target, Ref vector, int n) const {
        if (target.lanes() == 1) return {vector, signedLoad(target, 0, n)};
        if (values_[1] < 0) return {vector, signedLoad(target, 0, n), {0, -1}};
        if (values_[0] < 0) return {vector, signedLoad(target, 1, n), {-1, 0}};
        Ref value = target.mul(LaneConstant{weight(0, n), weight(1, n)},
                               target.load(values_[0], values_[1]));
        if (negative_[0] != negative_[1]) value = target.flip(value, {negative_[0], negative_[1]});
        else if (negative_[0]) value = -value;
        return {vector, value};
    }

private:
    Constant weight(int lane, int n) const { return interior(values_[lane], n) ? 2 : 1; }

    Ref signedLoad(Graph& target, int lane, int n) const {
        const Ref value = target.mul(weight(lane, n), target.load(values_[lane]));
        return negative_[lane] ? -value : value;
    }

    int values_[2] = {-1, -1};
    bool negative_[2] = {};
};

}   // namespace

Graph forwardGraph(const RealRow& row, bool singlePrecision) {
    const int n = row.plan.n;
    Graph g(row.lanes, forwardArithmetic(n, singlePrecision));
    const std::vector<Lane> x = samples(g, n);
    storeLanes(g, packed(n == 8 ? eightPoints(g, x) : realDftInLanes(g, row.plan, x), n));
    return g;
}

Graph inverseGraph(const RealRow& row, bool singlePrecision) {
    const int n = row.plan.n;
    const Arithmetic arithmetic = inverseArithmetic(n, singlePrecision);
    Graph network(row.lanes, {.rounding = arithmetic.rounding, .marking = true});
    const std::vector<Lane> inputs = samples(network, n);
    // Pairs of a prime are synthesised as c - d and c + d with plain sums of sines in d: the
    // transpose of the conjugated transform, whose samples come in reversed order.
    const bool reversed = row.plan.kind == Plan::Kind::direct && row.lanes == 2;
    const std::vector<ComplexLanes> spectrum = reversed
                                                   ? symmetricPairs(network, inputs, Sign::plus)
                                                   : realDftInLanes(network, row.plan, inputs);
    std::map<Ref, SpectrumVector> vectors;
    for (const LaneOutput& output : packed(spectrum, n))
        vectors[output.value.vector.magnitude()].add(output);

    Graph g(row.lanes, arithmetic);
    std::vector<WeightedOutput> outputs;
    for (const auto& [vector, values] : vectors) outputs.push_back(values.weighted(g, vector, n));
    std::vector<LaneOutput> results;
    const std::vector<Lane> x = transposedLanes(network, n, outputs, g);
    for (int i = 0; i < n; ++i) results.push_back({reversed ? (n - i) % n : i, x[i]});
    storeLanes(g, results);
    return g;
}

Graph forwardGraph(int n, bool singlePrecision) { return forwardGraph(row(n), singlePrecision); }
Graph inverseGraph(int n, bool singlePrecision) { return inverseGraph(row(n), singlePrecision); }

}   // namespace kfm::dft::real
