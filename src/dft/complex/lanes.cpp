#include "dft/complex/lanes.h"

#include <algorithm>

namespace kfm::dft::complex {

using kernelgen::Constant;
using kernelgen::Ref;

namespace {

// Two elements in one vector. Aligned neighbours come in one load whatever their order; then
// `swapped` says that the first stands in the upper half.
struct Halves {
    Ref vector;
    bool swapped;
};

Halves loadHalves(Graph& g, int first, int second) {
    if (second < 0) return {g.load(first), false};
    const bool reversed = second % 2 == 0 && first == second + 1;
    return reversed ? Halves{g.load(second, first), true} : Halves{g.load(first, second), false};
}

// The places of the real (part 0) or imaginary (1) values of both halves.
std::array<int, 2> places(const Halves& halves, int part) {
    return halves.swapped ? std::array{2 + part, part} : std::array{part, 2 + part};
}

std::array<Ref, 4> transposeReal(Graph& g, const std::vector<Ref>& rows) {
    const Ref low = g.select(rows[0], rows[1], {0, 4, 1, 5});
    const Ref high = g.select(rows[0], rows[1], {2, 6, 3, 7});
    if (rows.size() == 2)
        return {low, g.select(low, {2, 3, 2, 3}), high, g.select(high, {2, 3, 2, 3})};
    if (rows.size() == 3)
        return {g.select(low, rows[2], {0, 1, 4, 4}), g.select(low, rows[2], {2, 3, 5, 5}),
                g.select(high, rows[2], {0, 1, 6, 6}), g.select(high, rows[2], {2, 3, 7, 7})};
    const Ref lowOthers = g.select(rows[2], rows[3], {0, 4, 1, 5});
    const Ref highOthers = g.select(rows[2], rows[3], {2, 6, 3, 7});
    return {g.select(low, lowOthers, lowHalves), g.select(low, lowOthers, highHalves),
            g.select(high, highOthers, lowHalves), g.select(high, highOthers, highHalves)};
}

}   // namespace

Complex load4(Graph& g, const Elements& elements) {
    const Halves low = loadHalves(g, elements[0], elements[1]);
    const bool full = elements[2] >= 0;
    const Halves high = full ? loadHalves(g, elements[2], elements[3]) : low;
    const auto part = [&](int which) {
        const std::array<int, 2> a = places(low, which), b = places(high, which);
        return g.select(low.vector, high.vector, {a[0], a[1], 4 + b[0], 4 + b[1]});
    };
    return {part(0), part(1)};
}

Complex loadLane0(Graph& g, int element) {
    const Ref value = g.load(element);
    return {g.select(value, {0, 2, 2, 2}), g.select(value, {1, 2, 2, 2})};
}

void storeHalf(Graph& g, int first, int second, Complex value, int half) {
    const LanePattern signs = {value.re.negative(), value.im.negative(), value.re.negative(),
                               value.im.negative()};
    const Ref re = value.re.magnitude(), im = value.im.magnitude();
    const LanePattern pattern = half == 0 ? LanePattern{0, 4, 1, 5} : LanePattern{2, 6, 3, 7};
    const Ref merged = g.select(re, im, pattern);
    g.store(first, second, merged, signs);
}

void store4(Graph& g, const LaneVector& vector) {
    const Elements& e = vector.elements;
    storeHalf(g, e[0], e[1], vector.value, 0);
    if (e[2] >= 0) storeHalf(g, e[2], e[3], vector.value, 1);
}

Complex add(Graph& g, Complex a, Complex b) { return {g.add(a.re, b.re), g.add(a.im, b.im)}; }
Complex sub(Graph& g, Complex a, Complex b) { return {g.sub(a.re, b.re), g.sub(a.im, b.im)}; }

Complex select(Graph& g, Complex a, Complex b, const LanePattern& pattern) {
    return {g.select(a.re, b.re, pattern), g.select(a.im, b.im, pattern)};
}

Complex flip(Graph& g, Complex a, const LanePattern& lanes) {
    return {g.flip(a.re, lanes), g.flip(a.im, lanes)};
}

Complex addTimesI(Graph& g, Complex a, Complex b, Sign sign) {
    if (sign == Sign::minus) return {g.add(a.re, b.im), g.sub(a.im, b.re)};
    return {g.sub(a.re, b.im), g.add(a.im, b.re)};
}

std::array<Complex, 4> transpose4(Graph& g, const std::vector<Complex>& rows) {
    if (rows.size() == 1) {
        std::array<Complex, 4> lanes;
        for (int r = 1; r < 4; ++r) lanes[r] = select(g, rows[0], {r, r, r, r});
        lanes[0] = rows[0];
        return lanes;
    }
    std::vector<Ref> re, im;
    for (const Complex& row : rows) re.push_back(row.re), im.push_back(row.im);
    const std::array<Ref, 4> r = transposeReal(g, re), i = transposeReal(g, im);
    return {{{r[0], i[0]}, {r[1], i[1]}, {r[2], i[2]}, {r[3], i[3]}}};
}

Complex twiddle(Graph& g, Complex z, const std::array<long, 4>& exponents, long n, Sign sign) {
    LaneConstant c, s;
    for (const long exponent : exponents) {
        c.push_back(Constant::cosTurn(exponent, n));
        s.push_back(Constant::sinTurn(static_cast<int>(sign) * exponent, n));
    }
    return scaleLanes(g, z, c, s);
}

}   // namespace kfm::dft::complex
