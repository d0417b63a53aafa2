// Rader's step for one prime by a complex transform of length p - 1 with rows in the lanes, there
// and back: the way back starts where the way there ends, columns in the lanes, so that the
// products with the transformed roots need no shuffle.
#include <algorithm>
#include <stdexcept>

#include "dft/complex/single_graphs.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

// Bin k of the transformed roots exp(sign 2 pi i g^-t / p), divided by their number.
ComplexConstant rootBin(const RaderOrder& order, Sign sign, int k) {
    const int m = order.prime - 1;
    const ComplexConstant c = constantBin(order.cosines, k), s = constantBin(order.sines, k);
    const Constant weight = Constant::ratio(1, m);
    const Constant direction = sign == Sign::plus ? 1 : -1;
    return {(c.re - direction * s.im) * weight, (c.im + direction * s.re) * weight};
}

Complex multiplyBins(Graph& g, const RaderOrder& order, Sign sign, const LaneVector& bins) {
    LaneConstant re, im;
    for (const int k : bins.elements) {
        const ComplexConstant c = rootBin(order, sign, std::max(k, 0));
        re.push_back(c.re);
        im.push_back(c.im);
    }
    return scaleLanes(g, bins.value, re, im);
}

// The second step backwards for the columns from `first`: row r in vector r, columns in lanes.
std::vector<Complex> columnsBack(Graph& g, const TwoStep& step, std::span<const Complex> bins,
                                 int first) {
    std::vector<Complex> rows = complexDft(g, step.second, bins, Sign::plus);
    Elements columns = {-1, -1, -1, -1};
    for (int lane = 0; lane < 4 && first + lane < step.columns; ++lane)
        columns[lane] = first + lane;
    for (int r = 0; r < step.rows; ++r)
        rows[r] = twiddleColumns(g, step, Sign::plus, rows[r], r, columns);
    return rows;
}

}   // namespace

std::vector<LaneVector> raderRowTransform(Graph& g, const Plan& plan, Sign sign,
                                          const ElementMap& input) {
    const RaderOrder order(plan);
    const TwoStep step(plan.first());
    if (step.columns % 4 == 1)
        throw std::invalid_argument(plan.text() + ": a lone column would not come back in place");
    const std::vector<LaneVector> bins =
        rowTransform(g, step, Sign::minus, [&](int m) { return input(order.input[m]); });

    const Complex x0 = loadLane0(g, input(0));
    std::vector<LaneVector> result = {{add(g, x0, bins[0].value), {0, -1, -1, -1}}};

    std::vector<std::vector<Complex>> blocks;   // of up to four columns, a vector for each row
    for (std::size_t b = 0; b < bins.size(); b += step.rows) {
        std::vector<Complex> products;
        for (int r = 0; r < step.rows; ++r)
            products.push_back(multiplyBins(g, order, sign, bins[b + r]));
        if (b == 0) products[0] = add(g, products[0], x0);
        blocks.push_back(columnsBack(g, step, products, 4 * int(blocks.size())));
    }
    for (int row = 0; row < step.rows; row += 4) {
        const int count = std::min(4, step.rows - row);
        std::vector<Complex> columns;
        for (const std::vector<Complex>& block : blocks)
            for (const Complex& column : transpose4(
                     g, std::vector<Complex>(block.begin() + row, block.begin() + row + count)))
                columns.push_back(column);
        columns.resize(step.columns);
        const std::vector<Complex> y = complexDft(g, step.first, columns, Sign::plus);
        for (int i = 0; i < step.columns; ++i) {
            LaneVector vector{y[i], {-1, -1, -1, -1}};
            for (int lane = 0; lane < count; ++lane)
                vector.elements[lane] = order.output[step.input(row + lane, i)];
            result.push_back(vector);
        }
    }
    return result;
}

}   // namespace kfm::dft::complex
