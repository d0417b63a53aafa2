#include "dft/complex/single_direct.h"

#include <numeric>
#include <optional>

namespace kfm::dft::complex {

using kernelgen::Constant;

namespace {

LaneConstant factors(const std::array<long, 4>& exponents, int p) {
    return {Constant::cosTurn(exponents[0], p), Constant::cosTurn(exponents[1], p),
            Constant::sinTurn(exponents[2], p), Constant::sinTurn(exponents[3], p)};
}

Complex scale(Graph& g, const LaneConstant& c, Complex z) {
    return {g.mul(c, z.re), g.mul(c, z.im)};
}

// (u, u', v, v') -> (u + v, u' + v', u - v, u' - v').
Complex halfButterfly(Graph& g, Complex z) {
    const Complex exchanged = select(g, z, {2, 3, 0, 1});
    return add(g, flip(g, z, {0, 0, 1, 1}), exchanged);
}

// One column by sums and differences of the positions 2t+1, 2t+2 in vector t.
class ColumnModule {
public:
    ColumnModule(Graph& g, int p, std::span<const Complex> groups) : g_(g), p_(p) {
        const int half = (p - 1) / 2;
        for (int t = 0; t < half / 2; ++t) pairs_.push_back(halfButterfly(g, groups[t]));
        const Complex rest = groups[half / 2];
        if (half % 2 == 1) {
            const Complex mirror = flip(g, select(g, rest, {1, 1, 1, 1}), {0, 0, 1, 1});
            odd_ = add(g, select(g, rest, {0, 0, 0, 0}), mirror);
            x0_ = lowerHalf(g, select(g, rest, {2, 2, 2, 2}));
        } else {
            x0_ = lowerHalf(g, select(g, rest, {0, 0, 0, 0}));
        }
    }

    Complex outputZero() const {
        Complex sum = x0_;
        for (const Complex& t : pairs_) sum = add(g_, sum, add(g_, t, select(g_, t, neighbours)));
        if (odd_) sum = add(g_, sum, *odd_);
        return sum;
    }

    // (C k, C l, S k, S l).
    Complex parts(long k, long l) const {
        Complex sum = x0_;
        long i = 1;
        for (const Complex& t : pairs_) {
            const long j = i + 1;
            sum = add(g_, sum, scale(g_, factors({i * k, j * l, i * k, j * l}, p_), t));
            sum = add(g_, sum,
                      scale(g_, factors({j * k, i * l, j * k, i * l}, p_),
                            select(g_, t, neighbours)));
            i += 2;
        }
        if (odd_) sum = add(g_, sum, scale(g_, factors({i * k, i * l, i * k, i * l}, p_), *odd_));
        return sum;
    }

private:
    Graph& g_;
    int p_;
    std::vector<Complex> pairs_;
    std::optional<Complex> odd_;
    Complex x0_;
};

// C -+ iS with C taken from the lanes `c`, S from the lanes `s` and its sign changed in `mirrored`.
Complex signedSum(Graph& g, Complex parts, const LanePattern& c, const LanePattern& s,
                  const LanePattern& mirrored, Sign sign) {
    LanePattern others = mirrored;
    for (int& lane : others) lane = 1 - lane;
    const Complex cosines = select(g, parts, c), sines = select(g, parts, s);
    const bool minus = sign == Sign::minus;
    return {g.add(cosines.re, g.flip(sines.im, minus ? mirrored : others)),
            g.add(cosines.im, g.flip(sines.re, minus ? others : mirrored))};
}

}   // namespace

Complex lowerHalf(Graph& g, Complex z) { return scale(g, {1, 1, 0, 0}, z); }

std::vector<int> mirroredOrder(int p) {
    std::vector<int> order;
    int i = 1;
    for (; 2 * (i + 1) < p; i += 2) order.insert(order.end(), {i, i + 1, p - i, p - i - 1});
    if (2 * i < p) order.insert(order.end(), {i, p - i});
    order.push_back(0);
    return order;
}

std::vector<LaneVector> directColumn(Graph& g, int p, std::span<const Complex> groups, Sign sign) {
    const ColumnModule module(g, p, groups);
    std::vector<LaneVector> result = {{module.outputZero(), {0, -1, -1, -1}}};
    int k = 1;
    for (; 2 * (k + 1) < p; k += 2)
        result.push_back(
            {signedSum(g, module.parts(k, k + 1), {0, 1, 0, 1}, {2, 3, 2, 3}, {0, 0, 1, 1}, sign),
             {k, k + 1, p - k, p - k - 1}});
    if (2 * k < p)
        result.push_back(
            {signedSum(g, module.parts(k, k), {0, 0, 0, 0}, {2, 2, 2, 2}, {0, 1, 0, 1}, sign),
             {k, p - k, -1, -1}});
    return result;
}

std::vector<Complex> directParts(Graph& g, int p, std::span<const Complex> t, Complex& first) {
    std::vector<Complex> parts;
    const long half = (p - 1) / 2;
    for (long k = 1; k <= half; ++k) {
        Complex part = first;
        for (long i = 1; i <= half; ++i)
            part = add(g, part, scale(g, factors({i * k, i * k, i * k, i * k}, p), t[i - 1]));
        parts.push_back(part);
    }
    for (const Complex& sums : t) first = add(g, first, sums);
    return parts;
}

std::vector<Complex> mirroredSums(Graph& g, int p, std::span<const Complex> a,
                                  std::span<const Complex> b, Complex& first) {
    const LanePattern low = {0, 4, 1, 5}, high = {2, 6, 3, 7};
    const int half = (p - 1) / 2;
    std::vector<Complex> t;
    for (int i = 0; i < half / 2; ++i) {
        const Complex z = select(g, a[i], b[i], low), mirror = select(g, a[i], b[i], high);
        splitMirrored(g, z, mirror, true, t);
    }
    const Complex restA = a[half / 2], restB = b[half / 2];
    if (half % 2 == 1) {
        t.push_back(halfButterfly(g, select(g, restA, restB, low)));
        first = lowerHalf(g, select(g, restA, restB, high));
    } else {
        first = lowerHalf(g, select(g, restA, restB, low));
    }
    return t;
}

std::vector<SignedOutputs> combineParts(Graph& g, std::span<const Complex> parts, Sign sign) {
    std::vector<SignedOutputs> result;
    for (int i = 0; i < static_cast<int>(parts.size()); i += 2) {
        const bool two = i + 1 < static_cast<int>(parts.size());
        const Complex other = two ? parts[i + 1] : parts[i];
        const Complex c = two ? select(g, parts[i], other, lowHalves) : parts[i];
        const Complex s = select(g, parts[i], other, highHalves);
        result.push_back(
            {addTimesI(g, c, s, sign), addTimesI(g, c, s, opposite(sign)), i, two ? i + 1 : -1});
    }
    return result;
}

void splitMirrored(Graph& g, Complex z, Complex mirror, bool upperHalf,
                   std::vector<Complex>& result) {
    const Complex sum = add(g, z, mirror), difference = sub(g, z, mirror);
    result.push_back(select(g, sum, difference, lowHalves));
    if (upperHalf) result.push_back(select(g, sum, difference, highHalves));
}

std::array<LaneVector, 2> twoPoint(Graph& g, int p, Complex even, Complex odd,
                                   const Elements& outputs) {
    LaneVector sum{add(g, even, odd), outputs}, difference{sub(g, even, odd), outputs};
    for (int lane = 0; lane < 4 && outputs[lane] >= 0; ++lane) {
        sum.elements[lane] = kernelgen::chineseRemainder(0, 2, outputs[lane], p);
        difference.elements[lane] = kernelgen::chineseRemainder(1, 2, outputs[lane], p);
    }
    return {sum, difference};
}

std::vector<LaneVector> joinColumns(Graph& g, int p, std::span<const Complex> parts,
                                    std::span<const int> outputs, Complex first, Sign sign) {
    std::vector<LaneVector> result;
    const auto join = [&](Complex even, Complex odd, const Elements& numbers) {
        for (const LaneVector& vector : twoPoint(g, p, even, odd, numbers))
            result.push_back(vector);
    };
    const auto joinLanes = [&](Complex a, Complex b, const Elements& numbers) {
        const Complex odd = select(g, a, b, oddLanes);
        join(select(g, a, b, evenLanes), odd, numbers);
    };
    for (const SignedOutputs& y : combineParts(g, parts, sign)) {
        const int k = outputs[y.first];
        if (y.second >= 0) {
            const int l = outputs[y.second];
            joinLanes(y.plus, y.minus, {k, l, p - k, p - l});
        } else {
            const Complex both = select(g, y.plus, y.minus, lowHalves);
            joinLanes(both, first, {k, p - k, 0, -1});
        }
    }
    if (parts.size() % 2 == 0) join(first, select(g, first, neighbours), {0, -1, -1, -1});
    return result;
}

int elementOfColumn(int p, int i, int column) { return (2 * i + p * column) % (2 * p); }

std::vector<int> mirroredPairOrder(int p) {
    std::vector<int> order;
    for (const int position : mirroredOrder(p))
        for (const int column : {0, 1}) order.push_back(elementOfColumn(p, position, column));
    return order;
}

std::vector<LaneVector> directTwoColumns(Graph& g, int p, std::span<const Complex> t, Complex first,
                                         Sign sign) {
    const std::vector<Complex> parts = directParts(g, p, t, first);
    std::vector<int> outputs(parts.size());
    std::iota(outputs.begin(), outputs.end(), 1);
    return joinColumns(g, p, parts, outputs, first, sign);
}

std::vector<LaneVector> directColumnOfPairs(Graph& g, int p, std::span<const Complex> groups,
                                            Sign sign) {
    std::vector<Complex> t;
    std::size_t next = 0;
    for (; next + 2 < groups.size(); next += 2)
        splitMirrored(g, groups[next], groups[next + 1], true, t);
    if (next + 1 < groups.size()) t.push_back(halfButterfly(g, groups[next]));
    return directTwoColumns(g, p, t, lowerHalf(g, groups.back()), sign);
}

}   // namespace kfm::dft::complex
