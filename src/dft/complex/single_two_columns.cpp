// Lengths 2p by prime factors: both columns of length p in one vector, as sums and differences
// (a, a', b, b') of mirrored inputs. The column transform is the direct module or Rader's step;
// the 2-point step across the columns comes last, between even and odd lanes.
#include "dft/complex/single_rader.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

// Columns of a transform of length 2p before the last step.
struct Columns {
    std::vector<Complex> parts;   // (C, C', S, S') of the outputs below
    std::vector<int> outputs;     // k of the sum C + i*sign*S; the difference is p - k
    Complex first;                // output 0 of both columns in the lower half
};

// x0 of both columns in the lower half, zero in the upper.
Complex firstInputs(Graph& g, int p) {
    const Complex x = load4(g, {0, p, -1, -1});
    const LaneConstant lower = {1, 1, 0, 0};
    return {g.mul(lower, x.re), g.mul(lower, x.im)};
}

// The inputs n and -n modulo p of both columns.
MirroredPair inputPair(int p, int n, int mirror) {
    const auto element = [p](int i, int column) { return (2 * i + p * column) % (2 * p); };
    return {{element(n, 0), element(n, 1)}, {element(mirror, 0), element(mirror, 1)}};
}

Columns directColumns(Graph& g, int p) {
    const int half = (p - 1) / 2;
    std::vector<MirroredPair> pairs;
    for (int i = 1; i <= half; ++i) pairs.push_back(inputPair(p, i, p - i));
    const std::vector<Complex> t = sumsAndDifferences(g, pairs);
    Columns result;
    result.first = firstInputs(g, p);
    result.parts = directParts(g, p, t, result.first);
    for (int k = 1; k <= half; ++k) result.outputs.push_back(k);
    return result;
}

Columns raderColumns(Graph& g, const Plan& plan) {
    const RaderOrder order(plan);
    const Plan& rows = plan.first().second();
    const int p = plan.n, q = rows.n;
    std::vector<MirroredPair> pairs;
    std::vector<Constant> sines;
    for (int m = 0; m < q; ++m) {
        const int even = m % 2 == 0 ? m : m + q, odd = m % 2 == 0 ? m + q : m;
        pairs.push_back(inputPair(p, order.input[even], order.input[odd]));
        sines.push_back(m % 2 == 0 ? order.sines[m] : -order.sines[m]);
    }
    const std::span<const Constant> cosines = std::span(order.cosines).first(q);
    const auto constants = [&](int k) {
        const ComplexConstant c = scaled(constantBin(cosines, k), binWeight(k, q));
        const ComplexConstant s = scaled(constantBin(sines, k), binWeight(k, q));
        return BinConstants{{c, c, s, s}, {}};
    };
    Columns result;
    const Complex x0 = firstInputs(g, p);
    Complex sums;
    result.parts = convolve(g, rows, sumsAndDifferences(g, pairs), constants, x0, sums);
    result.first = add(g, x0, sums);
    for (int m = 0; m < q; ++m)
        result.outputs.push_back(m % 2 == 0 ? order.output[m] : p - order.output[m]);
    return result;
}

}   // namespace

void twoColumnGraph(Graph& g, const Plan& plan, Sign sign) {
    const Plan& column = plan.second();
    const Columns columns =
        column.kind == Plan::Kind::rader ? raderColumns(g, column) : directColumns(g, column.n);
    for (const LaneVector& vector :
         joinColumns(g, column.n, columns.parts, columns.outputs, columns.first, sign))
        store4(g, vector);
}

}   // namespace kfm::dft::complex
