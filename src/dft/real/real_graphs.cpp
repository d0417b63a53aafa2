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

std::vector<LaneOutput> packedSpectrum(Graph& g, int n) {
    std::vector<Lane> x;
    for (int i = 0; i < n; ++i) x.push_back({g.load(i), 0});
    const std::vector<ComplexLanes> spectrum = realDftInLanes(g, row(n).plan, x);
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

Graph forwardGraph(int n, bool singlePrecision) {
    Graph g(row(n).lanes, forwardArithmetic(n, singlePrecision));
    storeLanes(g, packedSpectrum(g, n));
    return g;
}

Graph inverseGraph(int n, bool singlePrecision) {
    const Arithmetic arithmetic = inverseArithmetic(n, singlePrecision);
    Graph network(row(n).lanes, {.rounding = arithmetic.rounding, .marking = true});
    std::map<Ref, SpectrumVector> vectors;
    for (const LaneOutput& output : packedSpectrum(network, n))
        vectors[output.value.vector.magnitude()].add(output);

    Graph g(row(n).lanes, arithmetic);
    std::vector<WeightedOutput> outputs;
    for (const auto& [vector, values] : vectors) outputs.push_back(values.weighted(g, vector, n));
    std::vector<LaneOutput> samples;
    const std::vector<Lane> x = transposedLanes(network, n, outputs, g);
    for (int i = 0; i < n; ++i) samples.push_back({i, x[i]});
    storeLanes(g, samples);
    return g;
}

}   // namespace kfm::dft::real
