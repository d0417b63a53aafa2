// Factorised lengths on real data in two lanes.
#include <stdexcept>

#include "kernelgen/algorithms.h"
#include "kernelgen/lane_pairs.h"

namespace kfm::kernelgen {
namespace {

using Spectrum = std::vector<ComplexLanes>;
using Sequence = std::vector<Lane>;

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

}   // namespace

std::vector<ComplexLanes> twoSteps(Graph& g, const Plan& plan, std::span<const Lane> x) {
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

}   // namespace kfm::kernelgen
