// Lengths 2p by prime factors: both columns of length p in one vector, as sums and differences
// (a, a', b, b') of mirrored inputs. The column transform is the direct module or Rader's step;
// the 2-point step across the columns comes last, between even and odd lanes.
#include "dft/complex/single_rader.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

// The inputs n and -n modulo p of both columns.
MirroredPair inputPair(int p, int n, int mirror) {
    return {{elementOfColumn(p, n, 0), elementOfColumn(p, n, 1)},
            {elementOfColumn(p, mirror, 0), elementOfColumn(p, mirror, 1)}};
}

// x0 of both columns.
Complex firstInputs(Graph& g, int p) { return lowerHalf(g, load4(g, {0, p, -1, -1})); }

std::vector<LaneVector> directColumns(Graph& g, int p, Sign sign) {
    std::vector<MirroredPair> pairs;
    for (int i = 1; 2 * i < p; ++i) pairs.push_back(inputPair(p, i, p - i));
    const std::vector<Complex> t = sumsAndDifferences(g, pairs);
    return directTwoColumns(g, p, t, firstInputs(g, p), sign);
}

std::vector<LaneVector> raderColumns(Graph& g, const Plan& plan, Sign sign) {
    const OddRader rader(plan);
    const int p = plan.n;
    std::vector<MirroredPair> pairs;
    std::vector<int> outputs;
    for (int m = 0; m < rader.q; ++m) {
        pairs.push_back(inputPair(p, rader.z(m), rader.mirror(m)));
        outputs.push_back(rader.output(m));
    }
    const auto constants = [&](int k) {
        const ComplexConstant c = rader.cosineBin(k), s = rader.sineBin(k);
        return BinConstants{{c, c, s, s}, {}};
    };
    const Complex x0 = firstInputs(g, p);
    Complex sums;
    const std::vector<Complex> parts =
        convolve(g, plan.first().second(), sumsAndDifferences(g, pairs), constants, x0, sums);
    return joinColumns(g, p, parts, outputs, add(g, x0, sums), sign);
}

}   // namespace

void twoColumnGraph(Graph& g, const Plan& plan, Sign sign) {
    const Plan& column = plan.second();
    for (const LaneVector& vector : column.kind == Plan::Kind::rader
                                        ? raderColumns(g, column, sign)
                                        : directColumns(g, column.n, sign))
        store4(g, vector);
}

}   // namespace kfm::dft::complex
