// Two-step transforms with rows in the lanes: rows four at a time through the first step, a
// transpose in registers, then four columns at a time through the second.
#include <algorithm>
#include <numeric>

#include "dft/complex/single_direct.h"
#include "dft/complex/single_rader.h"

namespace kfm::dft::complex {

using namespace kernelgen;

namespace {

bool isOddDirect(const Plan& plan) { return plan.kind == Plan::Kind::direct && plan.n % 2 == 1; }

bool isTwiceOddDirect(const Plan& plan) {
    return plan.kind == Plan::Kind::pfa && plan.second().n == 2 && isOddDirect(plan.first());
}

std::vector<int> naturalOrder(int count) {
    std::vector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

// Up to four members of an order, from `first` on; -1 behind its end.
Elements group(const std::vector<int>& order, int first) {
    Elements members = {-1, -1, -1, -1};
    for (int lane = 0; lane < 4 && first + lane < int(order.size()); ++lane)
        members[lane] = order[first + lane];
    return members;
}

int countOf(const Elements& members) {
    return static_cast<int>(std::ranges::count_if(members, [](int m) { return m >= 0; }));
}

// The first step on up to four rows, one in each lane: value[k1].
std::vector<Complex> rowGroup(Graph& g, const TwoStep& step, Sign sign, const ElementMap& input,
                              const Elements& rows) {
    std::vector<Complex> x;
    for (int i = 0; i < step.columns; ++i) {
        Elements elements = {-1, -1, -1, -1};
        for (int lane = 0; lane < countOf(rows); ++lane)
            elements[lane] = input(step.input(rows[lane], i));
        x.push_back(load4(g, elements));
    }
    return complexDft(g, step.first, x, sign);
}

// Twiddle factors of column k1 with rows in the lanes.
Complex twiddleRows(Graph& g, const TwoStep& step, Sign sign, Complex z, const Elements& rows,
                    int k1) {
    std::array<long, 4> exponents;
    for (int lane = 0; lane < 4; ++lane)
        exponents[lane] = step.exponent(rows[std::min(lane, countOf(rows) - 1)], k1);
    return twiddle(g, z, exponents, step.order(), sign);
}

// A 4-point step across the lanes of one column: lanes y0, y2, y1, y3.
LaneVector singleColumn(Graph& g, const TwoStep& step, Sign sign, Complex z, int k1) {
    const Complex exchanged = select(g, z, {2, 3, 0, 1});
    const Complex t = add(g, flip(g, z, {0, 0, 1, 1}), exchanged);
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
    storeHalf(g, step.output(ka, 4 - viaSum), step.output(kb, 4 - viaSum), {difference.re, sum.im},
              1);
}

// The whole transform. Where rows or columns are left over and the module along them is direct,
// their order is mirrored, so that the left-over column (or row) lies in the lanes as the module
// across the lanes wants it.
class RowTransform {
public:
    RowTransform(Graph& g, const TwoStep& step, Sign sign, const ElementMap& input)
        : g_(g), step_(step), sign_(sign), input_(input), rowOrder_(naturalOrder(step.rows)),
          columnOrder_(naturalOrder(step.columns)) {
        const int left = step.columns % 4;
        if (isOddDirect(step.second) && step.rows > 4 && (left == 1 || left == 2))
            rowOrder_ = mirroredOrder(step.rows);
        if (left == 1 && isTwiceOddDirect(step.second))
            rowOrder_ = mirroredPairOrder(step.rows / 2);
        if (left == 1)
            std::rotate(columnOrder_.begin(), columnOrder_.begin() + 1, columnOrder_.end());
        if (fewRowsLeft()) columnOrder_ = mirroredOrder(step.columns);
    }

    std::vector<LaneVector> run() {
        for (int first = 0; first < step_.rows; first += 4) {
            rows_.push_back(group(rowOrder_, first));
            if (first + 4 < step_.rows || !fewRowsLeft())
                groups_.push_back(rowGroup(g_, step_, sign_, input_, rows_.back()));
        }
        if (fewRowsLeft()) countOf(rows_.back()) == 1 ? transformLoneRow() : transformRowPair();
        for (int first = 0; first < step_.columns; first += 4)
            transformColumns(group(columnOrder_, first));
        return std::move(result_);
    }

private:
    bool mirrored() const { return rowOrder_.front() != 0; }

    // One or two last rows whose spectra fill one group of columns and a lone column.
    bool fewRowsLeft() const {
        return mirrored() && step_.rows % 4 <= 2 && isOddDirect(step_.first) && step_.columns == 5;
    }

    int inputOf(int row, int i) const { return input_(step_.input(row, i)); }

    void transformLoneRow() {
        const int row = rowOrder_.back();
        std::vector<Complex> x;
        for (int first = 0; first < step_.columns; first += 4) {
            Elements elements = group(columnOrder_, first);
            for (int& element : elements)
                if (element >= 0) element = inputOf(row, element);
            x.push_back(load4(g_, elements));
        }
        const std::vector<LaneVector> y = directColumn(g_, step_.columns, x, sign_);
        lastColumnZero_ = y[0].value;
        lastRows_ = {y[1].value};
    }

    void transformRowPair() {
        const int a = rows_.back()[0], b = rows_.back()[1], p = step_.columns;
        std::vector<MirroredPair> pairs;
        for (int i = 1; 2 * i < p; ++i)
            pairs.push_back(
                {{inputOf(a, i), inputOf(b, i)}, {inputOf(a, p - i), inputOf(b, p - i)}});
        lastColumnZero_ = lowerHalf(g_, load4(g_, {inputOf(a, 0), inputOf(b, 0), -1, -1}));
        const std::vector<Complex> parts =
            directParts(g_, p, sumsAndDifferences(g_, pairs), lastColumnZero_);
        const SignedOutputs y = combineParts(g_, parts, sign_).front();
        lastRows_ = {select(g_, y.plus, y.minus, evenLanes), select(g_, y.plus, y.minus, oddLanes)};
    }

    void transformColumns(const Elements& columns) {
        const int count = countOf(columns);
        if (step_.rows == 4 && count == 1)
            result_.push_back(singleColumn(g_, step_, sign_, rowsOf(0, columns[0]), columns[0]));
        else if (mirrored() && count == 1) loneColumn(columns[0]);
        else if (mirrored() && count == 2) columnPair(columns[0], columns[1]);
        else transposedColumns(columns, count);
    }

    // Column k1 of a group of rows, twiddled.
    Complex rowsOf(int group, int k1) {
        if (group == int(groups_.size())) return lastColumnZero_;
        return twiddleRows(g_, step_, sign_, groups_[group][k1], rows_[group], k1);
    }

    std::vector<Complex> mirroredColumn(int k1) {
        std::vector<Complex> z;
        for (int i = 0; i < int(rows_.size()); ++i) z.push_back(rowsOf(i, k1));
        return z;
    }

    void loneColumn(int k1) {
        const std::vector<Complex> z = mirroredColumn(k1);
        for (LaneVector vector : isOddDirect(step_.second)
                                     ? directColumn(g_, step_.rows, z, sign_)
                                     : directColumnOfPairs(g_, step_.rows / 2, z, sign_)) {
            for (int& element : vector.elements)
                if (element >= 0) element = step_.output(k1, element);
            result_.push_back(vector);
        }
    }

    void columnPair(int ka, int kb) {
        const int p = step_.rows;
        Complex first;
        const std::vector<Complex> b = mirroredColumn(kb), a = mirroredColumn(ka);
        const std::vector<Complex> t = mirroredSums(g_, p, a, b, first);
        for (const SignedOutputs& y : combineParts(g_, directParts(g_, p, t, first), sign_)) {
            const int k = y.first + 1, l = y.second + 1;
            const auto elements = [&](int one, int other) {
                Elements e = {step_.output(ka, one), step_.output(kb, one), -1, -1};
                if (y.second >= 0) e[2] = step_.output(ka, other), e[3] = step_.output(kb, other);
                return e;
            };
            result_.push_back({y.plus, elements(k, l)});
            result_.push_back({y.minus, elements(p - k, p - l)});
        }
        result_.push_back({first, {step_.output(ka, 0), step_.output(kb, 0), -1, -1}});
    }

    // The second step on up to four columns, one in each lane.
    void transposedColumns(const Elements& columns, int count) {
        std::vector<Complex> x(step_.rows);
        for (int i = 0; i < int(groups_.size()); ++i) {
            std::vector<Complex> block;
            for (int lane = 0; lane < count; ++lane) block.push_back(groups_[i][columns[lane]]);
            const std::array<Complex, 4> rows = transpose4(g_, block);
            for (int lane = 0; lane < countOf(rows_[i]); ++lane) x[rows_[i][lane]] = rows[lane];
        }
        for (int i = 0; i < int(lastRows_.size()); ++i) x[rows_.back()[i]] = lastRows_[i];
        for (int r = 0; r < step_.rows; ++r)
            x[r] = twiddleColumns(g_, step_, sign_, x[r], r, columns);
        const std::vector<Complex> y = complexDft(g_, step_.second, x, sign_);
        for (int k2 = 0; k2 < step_.rows; ++k2) {
            LaneVector vector{y[k2], columns};
            for (int& element : vector.elements)
                if (element >= 0) element = step_.output(element, k2);
            result_.push_back(vector);
        }
    }

    Graph& g_;
    const TwoStep& step_;
    Sign sign_;
    const ElementMap& input_;
    std::vector<int> rowOrder_, columnOrder_;
    std::vector<Elements> rows_;
    std::vector<std::vector<Complex>> groups_;   // of rows, by column
    Complex lastColumnZero_;                     // of the rows that are no group
    std::vector<Complex> lastRows_;              // their other columns
    std::vector<LaneVector> result_;
};

}   // namespace

Complex twiddleColumns(Graph& g, const TwoStep& step, Sign sign, Complex z, int r,
                       const Elements& columns) {
    std::array<long, 4> exponents;
    for (int lane = 0; lane < 4; ++lane)
        exponents[lane] = step.exponent(r, columns[std::min(lane, countOf(columns) - 1)]);
    return twiddle(g, z, exponents, step.order(), sign);
}

std::vector<LaneVector> rowTransform(Graph& g, const TwoStep& step, Sign sign,
                                     const ElementMap& input) {
    return RowTransform(g, step, sign, input).run();
}

void rowPairGraph(Graph& g, const Plan& plan, Sign sign) {
    const TwoStep step(plan);
    const std::vector<Complex> rows =
        rowGroup(g, step, sign, [](int i) { return i; }, {0, 1, 2, 3});
    const auto column = [&](int k1) {
        return twiddleRows(g, step, sign, rows[k1], {0, 1, 2, 3}, k1);
    };
    for (int k1 = 0; k1 + 1 < step.columns; k1 += 2) {
        const Complex b = column(k1 + 1), a = column(k1);
        storeColumnPair(g, step, sign, a, b, k1, k1 + 1);
    }
    if (step.columns % 2 == 1)
        store4(g, singleColumn(g, step, sign, column(step.columns - 1), step.columns - 1));
}

}   // namespace kfm::dft::complex
