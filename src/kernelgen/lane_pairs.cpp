#include "kernelgen/lane_pairs.h"

#include "kernelgen/algorithms.h"

namespace kfm::kernelgen {

std::vector<ComplexLanes> twoPoints(Graph& g, Lane x0, Lane x1) {
    const Ref a = alone(g, x0), b = alone(g, x1);
    return {{low(g.add(a, b)), {}}, {low(g.sub(a, b)), {}}};
}

std::vector<Lane> pickedLanes(std::span<const Lane> x, int start, int step, int count) {
    std::vector<Lane> result(count);
    for (int i = 0; i < count; ++i) result[i] = x[(start + i * step) % static_cast<int>(x.size())];
    return result;
}

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

BinVector binVector(Graph& g, const ComplexLanes& bin) {
    const bool conjugated = bin.re.negative() != bin.im.negative();
    return {pack(g, bin.re, conjugated ? -bin.im : bin.im), conjugated};
}

BinVector conjugated(Graph& g, BinVector bin) {
    return {g.flip(bin.value, {0, 1}), !bin.conjugated};
}

BinVector rotated(Graph& g, BinVector bin, long numerator, long denominator) {
    const Constant c = Constant::cosTurn(numerator, denominator);
    const Constant s = Constant::sinTurn(bin.conjugated ? -numerator : numerator, denominator);
    const Ref z = g.settle(bin.value, Border::rotation);
    const Ref turned = g.mul(LaneConstant{s, -s}, swapped(g, z));
    const Ref product = g.add(g.mul(c, z), turned);
    return {g.settle(product, Border::rotation), bin.conjugated};
}

}   // namespace kfm::kernelgen
