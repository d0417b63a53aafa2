#include "hartley/fixed_sums.h"

#include <map>

namespace kfm::hartley {

using namespace kernelgen;

namespace {

Ref lows(Graph& g, Ref a, Ref b) { return pack(g, low(a), low(b)); }
Ref highs(Graph& g, Ref a, Ref b) { return pack(g, high(a), high(b)); }

// Outputs `first` and `second` from the lanes of a vector.
void place(std::vector<LaneOutput>& outputs, int first, int second, Ref vector) {
    outputs.push_back({first, low(vector)});
    outputs.push_back({second, high(vector)});
}

Ref product(Graph& g, const Constant& c, Ref a) { return g.settle(g.mul(c, a), Border::rotation); }

// The odd outputs from the differences d[n] = x[n] - x[n+8], given as (d0,d2), (d4,d6), (d1,d3),
// (d5,d7). With the bins X[k] of the DFT H[k] = Re - Im and H[16-k] = Re + Im.
void oddOutputs(Graph& g, Ref d02, Ref d46, Ref d13, Ref d57, std::vector<LaneOutput>& outputs) {
    const Constant c = Constant::cosTurn(1, 16), s = Constant::sinTurn(1, 16);
    const Ref d75 = swapped(g, d57);
    const Ref sums = g.add(d13, d75), differences = g.sub(d13, d75);
    const Ref first = lows(g, differences, sums), second = highs(g, differences, sums);
    const auto rotated = [&](Ref a, Ref b) { return g.settle(g.add(a, b), Border::rotation); };
    const Ref near2 = g.mul(LaneConstant{s, c}, second), near1 = g.mul(LaneConstant{c, s}, first);
    const Ref near = rotated(near1, near2);
    const Ref far2 = -g.mul(LaneConstant{c, s}, second), far1 = g.mul(LaneConstant{s, c}, first);
    const Ref far = rotated(far1, far2);

    const Ref d04 = lows(g, d02, d46), d26 = highs(g, d02, d46);
    const Ref turned = g.add(d26, g.flip(swapped(g, d26), {1, 0}));   // (d2 - d6, d2 + d6)
    const Ref eighth = product(g, Constant::cosTurn(1, 8), turned);
    const Ref plus = g.add(d04, eighth), minus = g.sub(d04, eighth);
    const Ref x1 = g.add(plus, near);    // Re X1, -Im X1
    const Ref x7 = g.sub(plus, near);    // Re X7, Im X7
    const Ref x35 = g.add(minus, far);   // Re X3, -Im X5
    const Ref x53 = g.sub(minus, far);   // Re X5, Im X3

    const Ref re17 = lows(g, x1, x7), im17 = highs(g, x1, x7);
    place(outputs, 1, 9, g.add(re17, im17));
    place(outputs, 15, 7, g.sub(re17, im17));
    const Ref re35 = lows(g, x35, x53), im35 = highs(g, x53, x35);
    place(outputs, 13, 5, g.add(re35, im35));
    place(outputs, 3, 11, g.sub(re35, im35));
}

}   // namespace

std::vector<LaneOutput> eightPoints(Graph& g, std::span<const Lane> x) {
    const auto pairs = [&](int i, int j) { return pack(g, x[i], x[j]); };
    const Ref x46 = pairs(4, 6), x02 = pairs(0, 2);
    const Ref ef0 = g.add(x02, x46), ef1 = g.sub(x02, x46);
    const Ref x57 = pairs(5, 7), x13 = pairs(1, 3);
    const Ref gh = g.add(x13, x57);
    const Ref pq = product(g, Constant::cosTurn(1, 8), g.sub(x13, x57));
    const auto twice = [&](Lane a) { return pack(g, a, a); };
    std::vector<LaneOutput> outputs;

    const Ref conjugate = g.flip(ef0, {0, 1});
    const Ref evenOdd = g.add(swapped(g, ef0), conjugate);   // (e0 + f0, e0 - f0)
    const Ref gg = twice(low(gh)), h = g.flip(twice(high(gh)), {0, 1});
    place(outputs, 0, 2, g.add(g.add(evenOdd, gg), h));
    place(outputs, 4, 6, g.sub(g.sub(evenOdd, gg), h));

    const Ref p = twice(low(pq)), q = g.flip(twice(high(pq)), {0, 1});
    const Ref plus = g.sub(g.add(ef1, p), q);    // (e1 + p - q, f1 + p + q)
    const Ref minus = g.add(g.sub(ef1, p), q);   // (e1 - p + q, f1 - p - q)
    const Ref e = lows(g, plus, minus), f = highs(g, plus, minus);
    place(outputs, 1, 5, g.add(e, f));
    place(outputs, 7, 3, g.sub(e, f));
    return outputs;
}

std::vector<LaneOutput> sixteenPoints(Graph& g, std::span<const Lane> x) {
    const auto left = [&](int i) { return pack(g, x[i], x[i + 2]); };
    const auto right = [&](int i) { return pack(g, x[i + 8], x[i + 10]); };
    std::vector<Lane> sums(8);
    for (const int i : {0, 1, 4, 5}) {
        const Ref r = right(i), sum = g.add(left(i), r);
        sums[i] = low(sum);
        sums[i + 2] = high(sum);
    }
    std::vector<LaneOutput> outputs = eightPoints(g, sums);
    for (LaneOutput& output : outputs) output.element *= 2;
    std::map<int, Ref> differences;
    for (const int i : {5, 1, 4, 0}) {
        const Ref r = right(i);
        differences[i] = g.sub(left(i), r);
    }
    oddOutputs(g, differences[0], differences[4], differences[1], differences[5], outputs);
    return outputs;
}

}   // namespace kfm::hartley
