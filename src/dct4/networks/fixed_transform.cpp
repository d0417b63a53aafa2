#include "dct4/networks/fixed_transform.h"

#include "dct4/networks/cosine_networks.h"

namespace kfm::dct4 {
namespace {

using kernelgen::Constant;
using kernelgen::LaneConstant;
using kernelgen::LanePattern;
using Rows = std::vector<Ref>;

Ref reversed(Graph& g, Ref a) {
    LanePattern pattern(g.lanes());
    for (int lane = 0; lane < g.lanes(); ++lane) pattern[lane] = g.lanes() - 1 - lane;
    return g.select(a, pattern);
}

Rows transposed(Graph& g, const Rows& x) {
    if (g.lanes() == 2) return {g.select(x[0], x[1], {0, 2}), g.select(x[0], x[1], {1, 3})};
    const Ref low01 = g.select(x[0], x[1], {0, 4, 1, 5});
    const Ref high01 = g.select(x[0], x[1], {2, 6, 3, 7});
    const Ref low23 = g.select(x[2], x[3], {0, 4, 1, 5});
    const Ref high23 = g.select(x[2], x[3], {2, 6, 3, 7});
    return {g.select(low01, low23, {0, 1, 4, 5}), g.select(low01, low23, {2, 3, 6, 7}),
            g.select(high01, high23, {0, 1, 4, 5}), g.select(high01, high23, {2, 3, 6, 7})};
}

// Of a vector that starts at this element; all start at multiples of their length.
int slot(const Graph& g, int element) { return element / g.lanes(); }

// The rows C_q, T_q of the sub-transforms r = first .. first+lanes-1 of n = d*m.
Rows inputRows(Graph& g, int n, int d, int first) {
    std::vector<Complex> u;
    for (int k = 0; k < n / d / 2; ++k) {
        const int front = 2 * d * k + first;
        const int mirrored = n - front - g.lanes();
        u.push_back({g.load(slot(g, front)), -reversed(g, g.load(slot(g, mirrored)))});
    }
    return mirroredRows(skewDft(g, u));
}

// cos or sin of the kernel's angle in column r, rows q in the lanes.
LaneConstant kernelAngles(int lanes, int n, int q, int r, bool sine) {
    LaneConstant result;
    for (int lane = 0; lane < lanes; ++lane) {
        const long numerator = (2 * (q + lane) + 1) * (2 * r + 1);
        result.push_back(sine ? Constant::sinTurn(numerator, 8 * n)
                              : Constant::cosTurn(numerator, 8 * n));
    }
    return result;
}

// Both stages of n = d*m: sub-transforms in the lanes, then rows in the lanes. Needs d and m/2 to
// be multiples of the lanes.
void twoStages(Graph& g, int n, int d) {
    const int m = n / d, L = g.lanes();
    std::vector<Rows> groups;
    for (int first = 0; first < d; first += L) groups.push_back(inputRows(g, n, d, first));
    for (int q = 0; q < m / 2; q += L) {
        Rows p, rotated;
        for (int r = 0; r < d; r += L) {
            Rows cosines, sines;
            for (int row = q; row < q + L; ++row) {
                cosines.push_back(groups[r / L][2 * row]);
                sines.push_back(groups[r / L][2 * row + 1]);
            }
            cosines = transposed(g, cosines);
            sines = transposed(g, sines);
            for (int j = 0; j < L; ++j) {
                const LaneConstant c = kernelAngles(L, n, q, r + j, false);
                const LaneConstant s = kernelAngles(L, n, q, r + j, true);
                const Ref sine = g.mul(s, sines[j]), cosine = g.mul(c, cosines[j]);
                p.push_back(g.sub(cosine, sine));
                const Ref ofSine = g.mul(c, sines[j]), ofCosine = g.mul(s, cosines[j]);
                rotated.push_back(g.add(ofCosine, ofSine));
            }
        }
        const Rows D = dct2(g, p), E = dst2(g, rotated);
        for (int k = 0; k < d; ++k) {
            g.store(slot(g, k * m + q), -1, k == 0 ? D[0] : g.sub(D[k], E[k - 1]));
            const Ref mirrored = k == d - 1 ? E[k] : g.add(D[k + 1], E[k]);
            g.store(slot(g, (k + 1) * m - L - q), -1, reversed(g, mirrored));
        }
    }
}

// n = 16 in four lanes: four sub-transforms of four, whose rows C_0, T_0, C_1, T_1 become the
// lanes. With the sign of alternate T the sine sums are cosine sums read backwards, so one network
// of four points serves both.
void sixteen(Graph& g) {
    const Rows v = transposed(g, inputRows(g, 16, 4, 0));
    Rows z;
    for (int r = 0; r < 4; ++r) {
        const auto cosine = [&](int q) {
            return Constant::cosTurn((2 * q + 1) * (2 * r + 1), 128);
        };
        const auto sine = [&](int q) { return Constant::sinTurn((2 * q + 1) * (2 * r + 1), 128); };
        const Constant sign = r % 2 ? -1 : 1;
        const LaneConstant direct = {cosine(0), sign * cosine(0), cosine(1), sign * cosine(1)};
        const LaneConstant crossed = {-sine(0), sign * sine(0), -sine(1), sign * sine(1)};
        const Ref other = g.mul(crossed, g.select(v[r], {1, 0, 3, 2}));
        z.push_back(g.add(g.mul(direct, v[r]), other));
    }
    // Lanes of x[k]: D_k and E_{4-k} of row 0, of row 1.
    const Rows x = dct2(g, z);
    const LanePattern firstHalf = {1, 1, 0, 0};
    const LaneConstant upper = {0, 0, 1, 1}, lower = {1, 1, 0, 0};
    for (int k = 0; k < 4; ++k) {
        const Ref D = k < 3 ? g.select(x[k], x[k + 1], {0, 2, 6, 4})
                            : g.mul(lower, g.select(x[3], {0, 2, 2, 0}));
        const Ref E = k > 0 ? g.select(x[4 - k], x[3 - k], {1, 3, 7, 5})
                            : g.mul(upper, g.select(x[3], {1, 3, 3, 1}));
        g.store(k, -1, g.add(D, g.flip(E, firstHalf)));
    }
}

void scalar(Graph& g, int n) {
    Rows x;
    for (int i = 0; i < n; ++i) x.push_back(g.load(i));
    const Rows y = dct4(g, x);
    for (int i = 0; i < n; ++i) g.store(i, -1, y[i]);
}

}   // namespace

Graph fixedTransformGraph(int n, bool doublePrecision) {
    const int lanes = doublePrecision ? 2 : 4;
    const int used = n < 4 * lanes ? 1 : lanes;
    Graph g(used, {}, used);
    if (g.lanes() == 1) scalar(g, n);
    else if (n == 16 && lanes == 4) sixteen(g);
    else twoStages(g, n, n == 8 ? 2 : 4);
    return g;
}

}   // namespace kfm::dct4
