// Single precision: from a length to the graph of its lane mapping.
#include <algorithm>

#include "dft/complex/complex_kernels.h"
#include "dft/complex/single_direct.h"
#include "dft/complex/single_graphs.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

using LaneTransform = std::vector<LaneVector> (*)(Graph&, const Plan&, Sign, const ElementMap&);

int sameElement(int i) { return i; }

void storeAll(Graph& g, std::span<const LaneVector> vectors) {
    for (const LaneVector& vector : vectors) store4(g, vector);
}

// A prime alone, or 2 x prime: one column after the other, the 2-point step at the end.
void raderGraph(Graph& g, const Plan& plan, Sign sign, LaneTransform transform) {
    if (plan.kind != Plan::Kind::pfa) return storeAll(g, transform(g, plan, sign, sameElement));
    const Plan& column = plan.second();
    const auto columnInput = [&](int which) {
        return [&, which](int i) { return elementOfColumn(column.n, i, which); };
    };
    const std::vector<LaneVector> even = transform(g, column, sign, columnInput(0));
    const std::vector<LaneVector> odd = transform(g, column, sign, columnInput(1));
    for (std::size_t i = 0; i < even.size(); ++i)
        storeAll(g, twoPoint(g, column.n, even[i].value, odd[i].value, even[i].elements));
}

void raderPairGraph(Graph& g, const Plan& plan, Sign sign) {
    raderGraph(g, plan, sign, raderPairTransform);
}

void raderRowGraph(Graph& g, const Plan& plan, Sign sign) {
    raderGraph(g, plan, sign, raderRowTransform);
}

void rowGraph(Graph& g, const Plan& plan, Sign sign) {
    storeAll(g, rowTransform(g, TwoStep(plan), sign, sameElement));
}

void joinedRowGraph(Graph& g, const Plan& plan, Sign sign) {
    storeAll(g, rowTransform(g, TwoStep(plan, true), sign, sameElement));
}

struct MappingRow {
    LaneMapping mapping;
    const char* text;
    void (*build)(Graph&, const Plan&, Sign);
};

constexpr MappingRow mappings[] = {
    {LaneMapping::element, "one element in half a vector", elementGraph},
    {LaneMapping::rows, "four rows, transposed to four columns", rowGraph},
    {LaneMapping::joinedRows, "four rows of the twiddled step, transposed to four columns",
     joinedRowGraph},
    {LaneMapping::rowPairs, "four rows, two columns across the lanes", rowPairGraph},
    {LaneMapping::symmetric, "sums and differences of both columns", twoColumnGraph},
    {LaneMapping::raderPair, "Rader sums and differences of two positions", raderPairGraph},
    {LaneMapping::raderPadded,
     "Rader sums and differences, even and odd samples of the padded convolution", raderPairGraph},
    {LaneMapping::raderMirror, "Rader sums and differences of mirrored positions",
     raderMirrorGraph},
    {LaneMapping::raderHalf, "Rader sums and differences in half of the lanes", raderHalfGraph},
    {LaneMapping::raderTwo, "Rader sums and differences of both columns", twoColumnGraph},
    {LaneMapping::raderRows, "four rows of the Rader convolution", raderRowGraph},
};

const MappingRow& find(LaneMapping mapping) {
    return *std::ranges::find(mappings, mapping, &MappingRow::mapping);
}

}   // namespace

Graph singleGraph(const SinglePrecisionRow& row, bool inverse) {
    Graph g(4, {}, 2);
    find(row.lanes).build(g, row.plan, inverse ? Sign::plus : Sign::minus);
    return g;
}

std::string text(LaneMapping mapping) { return find(mapping).text; }

}   // namespace kfm::dft::complex
