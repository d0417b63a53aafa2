// Two-step transforms with rows in the lanes: rows four at a time through the first step, a
// transpose in registers, then four columns at a time through the second.
#include <algorithm>

#include "dft/complex/single_graphs.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

// The first step on the rows first .. first+count-1, one in each lane: value[k1].
std::vector<Complex> rowGroup(Graph& g, const TwoStep& step, Sign sign, const ElementMap& input,
                              int first, int count) {
    std::vector<Complex> x;
    for (int i = 0; i < step.columns; ++i) {
        Elements elements = {-1, -1, -1, -1};
        for (int lane = 0; lane < count; ++lane)
            elements[lane] = input(step.input(first + lane, i));
        x.push_back(load4(g, elements));
    }
    return complexDft(g, step.first, x, sign);
}

// Twiddle factors of column k1 with the rows from `first` in the lanes.
Complex twiddleRows(Graph& g, const TwoStep& step, Sign sign, Complex z, int first, int k1) {
    std::array<long, 4> exponents = {};
    for (int lane = 0; lane < 4; ++lane)
        exponents[lane] = step.exponent(std::min(first + lane, step.rows - 1), k1);
    return twiddle(g, z, exponents, step.order(), sign);
}

// The second step on the columns first .. first+count-1, one in each lane.
std::vector<LaneVector> columnGroup(Graph& g, const TwoStep& step, Sign sign,
                                    std::vector<Complex> column, int first, int count) {
    for (int r = 0; r < step.rows; ++r) {
        std::array<long, 4> exponents = {};
        for (int lane = 0; lane < 4; ++lane)
            exponents[lane] = step.exponent(r, first + std::min(lane, count - 1));
        column[r] = twiddle(g, column[r], exponents, step.order(), sign);
    }
    const std::vector<Complex> y = complexDft(g, step.second, column, sign);
    std::vector<LaneVector> result;
    for (int k2 = 0; k2 < step.rows; ++k2) {
        LaneVector vector{y[k2], {-1, -1, -1, -1}};
        for (int lane = 0; lane < count; ++lane)
            vector.elements[lane] = step.output(first + lane, k2);
        result.push_back(vector);
    }
    return result;
}

// A 4-point step across the lanes of one column: lanes y0, y2, y1, y3.
LaneVector singleColumn(Graph& g, const TwoStep& step, Sign sign, Complex z, int k1) {
    const Complex t = add(g, flip(g, z, {0, 0, 1, 1}), select(g, z, {2, 3, 0, 1}));
    const bool minus = sign == Sign::minus;
    const Ref oddRe = g.flip(g.select(t.re, t.im, {1, 1, 7, 7}),
                             minus ? LanePattern{0, 1, 0, 1} : LanePattern{0, 1, 1, 0});
    const Ref oddIm = g.flip(g.select(t.im, t.re, {1, 1, 7, 7}),
                             minus ? LanePattern{0, 1, 1, 0} : LanePattern{0, 1, 0, 1});
    const Complex y = add(g, select(g, t, {0, 0, 2, 2}), {oddRe, oddIm});
    return {y, {step.output(k1, 0), step.output(k1, 2), step.output(k1, 1), step.output(k1, 3)}};
}

// A 4-point step across the lanes of two columns. In the imaginary parts the outputs 1 and 3 come
// out exchanged, which the stores put right for nothing.
void storeColumnPair(Graph& g, const TwoStep& step, Sign sign, Complex a, Complex b, int ka,
                     int kb) {
    const Complex low = select(g, a, b, lowHalves), high = select(g, a, b, highHalves);
    const Complex p = add(g, low, high), q = sub(g, low, high);
    const Complex even = select(g, p, q, evenLanes);
    const Complex odd = {g.select(p.re, q.im, oddLanes), g.select(p.im, q.re, oddLanes)};
    const Complex sum = add(g, even, odd), difference = sub(g, even, odd);
    storeHalf(g, step.output(ka, 0), step.output(kb, 0), sum, 0);
    storeHalf(g, step.output(ka, 2), step.output(kb, 2), difference, 0);
    const int viaSum = sign == Sign::minus ? 1 : 3;
    storeHalf(g, step.output(ka, viaSum), step.output(kb, viaSum), {sum.re, difference.im}, 1);
    storeHalf(g, step.output(ka, 4 - viaSum), step.output(kb, 4 - viaSum),
              {difference.re, sum.im}, 1);
}

}   // namespace

std::vector<LaneVector> rowTransform(Graph& g, const TwoStep& step, Sign sign,
                                     const ElementMap& input) {
    std::vector<std::vector<Complex>> groups;
    for (int first = 0; first < step.rows; first += 4)
        groups.push_back(
            rowGroup(g, step, sign, input, first, std::min(4, step.rows - first)));

    std::vector<LaneVector> result;
    for (int first = 0; first < step.columns; first += 4) {
        const int count = std::min(4, step.columns - first);
        if (step.rows == 4 && count == 1) {
            const Complex z = twiddleRows(g, step, sign, groups[0][first], 0, first);
            result.push_back(singleColumn(g, step, sign, z, first));
            continue;
        }
        std::vector<Complex> column;
        for (const std::vector<Complex>& group : groups) {
            const std::vector<Complex> block(group.begin() + first, group.begin() + first + count);
            for (const Complex& row : transpose4(g, block)) column.push_back(row);
        }
        column.resize(step.rows);
        for (LaneVector& vector : columnGroup(g, step, sign, column, first, count))
            result.push_back(vector);
    }
    return result;
}

void rowPairGraph(Graph& g, const Plan& plan, Sign sign) {
    const TwoStep step(plan);
    const std::vector<Complex> rows = rowGroup(g, step, sign, [](int i) { return i; }, 0, 4);
    const auto column = [&](int k1) { return twiddleRows(g, step, sign, rows[k1], 0, k1); };
    for (int k1 = 0; k1 + 1 < step.columns; k1 += 2)
        storeColumnPair(g, step, sign, column(k1), column(k1 + 1), k1, k1 + 1);
    if (step.columns % 2 == 1)
        store4(g, singleColumn(g, step, sign, column(step.columns - 1), step.columns - 1));
}

}   // namespace kfm::dft::complex
