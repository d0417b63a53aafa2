// Single precision: from a length to the graph of its lane mapping.
#include <stdexcept>

#include "dft/complex/complex_kernels.h"
#include "dft/complex/single_graphs.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

using LaneTransform = std::vector<LaneVector> (*)(Graph&, const Plan&, Sign, const ElementMap&);

int sameElement(int i) { return i; }

void storeAll(Graph& g, const std::vector<LaneVector>& vectors) {
    for (const LaneVector& vector : vectors) store4(g, vector);
}

// A prime alone, or 2 x prime: one column after the other, the 2-point step at the end.
void raderGraph(Graph& g, const Plan& plan, Sign sign, LaneTransform transform) {
    if (plan.kind != Plan::Kind::pfa) return storeAll(g, transform(g, plan, sign, sameElement));
    const Plan& column = plan.second();
    const auto columnInput = [&](int which) {
        return [&, which](int i) { return (2 * i + column.n * which) % plan.n; };
    };
    const std::vector<LaneVector> even = transform(g, column, sign, columnInput(0));
    const std::vector<LaneVector> odd = transform(g, column, sign, columnInput(1));
    for (std::size_t i = 0; i < even.size(); ++i) {
        LaneVector sum{add(g, even[i].value, odd[i].value), even[i].elements};
        LaneVector difference{sub(g, even[i].value, odd[i].value), even[i].elements};
        for (int lane = 0; lane < 4 && even[i].elements[lane] >= 0; ++lane) {
            sum.elements[lane] = chineseRemainder(0, 2, even[i].elements[lane], column.n);
            difference.elements[lane] = chineseRemainder(1, 2, even[i].elements[lane], column.n);
        }
        storeAll(g, {sum, difference});
    }
}

}   // namespace

// One complex element in the lower half of a vector, taken as a formal real.
void elementGraph(Graph& g, const Plan& plan, Sign sign) {
    std::vector<Ref> x;
    for (int i = 0; i < plan.n; ++i) x.push_back(g.load(i));
    const HalfSpectrum spectrum = realDft(g, plan, x);
    for (int k = 0; 2 * k <= plan.n; ++k) {
        const auto [p, q] = spectrum[k];
        if (q.isZero()) {
            g.store(k, -1, p);
            continue;
        }
        const Ref iq = g.flip(g.select(q, neighbours), {1, 0, 0, 0});
        g.store(sign == Sign::minus ? k : plan.n - k, -1, g.add(p, iq));
        g.store(sign == Sign::minus ? plan.n - k : k, -1, g.sub(p, iq));
    }
}

Graph singleGraph(const SinglePrecisionRow& row, bool inverse) {
    const Sign sign = inverse ? Sign::plus : Sign::minus;
    Graph g(4);
    switch (row.lanes) {
    case LaneMapping::element:
        elementGraph(g, row.plan, sign);
        break;
    case LaneMapping::rows:
        storeAll(g, rowTransform(g, TwoStep(row.plan), sign, sameElement));
        break;
    case LaneMapping::joinedRows:
        storeAll(g, rowTransform(g, TwoStep(row.plan, true), sign, sameElement));
        break;
    case LaneMapping::rowPairs:
        rowPairGraph(g, row.plan, sign);
        break;
    case LaneMapping::symmetric:
    case LaneMapping::raderTwo:
        twoColumnGraph(g, row.plan, sign);
        break;
    case LaneMapping::raderPair:
    case LaneMapping::raderPadded:
        raderGraph(g, row.plan, sign, raderPairTransform);
        break;
    case LaneMapping::raderMirror:
        raderMirrorGraph(g, row.plan, sign);
        break;
    case LaneMapping::raderHalf:
        raderHalfGraph(g, row.plan, sign);
        break;
    case LaneMapping::raderRows:
        raderGraph(g, row.plan, sign, raderRowTransform);
        break;
    }
    return g;
}

std::string text(LaneMapping mapping) {
    switch (mapping) {
    case LaneMapping::element:
        return "one element in half a vector";
    case LaneMapping::rows:
        return "four rows, transposed to four columns";
    case LaneMapping::joinedRows:
        return "four rows of the twiddled step, transposed to four columns";
    case LaneMapping::rowPairs:
        return "four rows, two columns across the lanes";
    case LaneMapping::symmetric:
        return "sums and differences of both columns";
    case LaneMapping::raderPair:
        return "Rader sums and differences of two positions";
    case LaneMapping::raderPadded:
        return "Rader sums and differences, even and odd samples of the padded convolution";
    case LaneMapping::raderMirror:
        return "Rader sums and differences of mirrored positions";
    case LaneMapping::raderHalf:
        return "Rader sums and differences in half of the lanes";
    case LaneMapping::raderTwo:
        return "Rader sums and differences of both columns";
    case LaneMapping::raderRows:
        return "four rows of the Rader convolution";
    }
    throw std::invalid_argument("unknown lane mapping");
}

}   // namespace kfm::dft::complex
