#include "kernelgen/real_lanes.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

#include "kernelgen/algorithms.h"
#include "kernelgen/evaluate.h"
#include "kernelgen/lane_pairs.h"

namespace kfm::kernelgen {
namespace {

using Spectrum = std::vector<ComplexLanes>;

Spectrum four(Graph& g, std::span<const Lane> x) {
    const Ref left = pack(g, x[0], x[1]), right = pack(g, x[2], x[3]);
    const Ref sum = g.add(left, right), difference = g.sub(left, right);
    const Spectrum ends = twoPoints(g, low(sum), high(sum));
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
    if (const Ref all = balancedSum(g, sums); !all.isZero()) {
        const Ref upper = alone(g, high(all));
        total = g.add(g.add(total, all), upper);
    }
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
    if (2 * k <= n) spectrum.at(k) = value;
    else spectrum.at(n - k) = {value.re, -value.im};
}

std::vector<ComplexLanes> realDftInLanes(Graph& g, const Plan& plan, std::span<const Lane> x) {
    if (g.lanes() == 1) return scalarDft(g, plan, x);
    switch (plan.kind) {
    case Plan::Kind::direct:
        if (plan.n == 2) return twoPoints(g, x[0], x[1]);
        return plan.n == 4 ? four(g, x) : symmetricPairs(g, x);
    case Plan::Kind::factored5: return symmetricPairs(g, x);
    case Plan::Kind::powerOfTwo: return splitRadix(g, x);
    case Plan::Kind::evenOdd: return evenAndOdd(g, x);
    case Plan::Kind::ct:
    case Plan::Kind::pfa: return twoSteps(g, plan, x);
    case Plan::Kind::rader: return raderInLanes(g, plan, x);
    case Plan::Kind::paddedRader: break;
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
    const auto silence = evaluateNodes<double>(g, zeros);
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
