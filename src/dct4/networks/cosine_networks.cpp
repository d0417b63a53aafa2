#include "dct4/networks/cosine_networks.h"

namespace kfm::dct4 {
namespace {

using kernelgen::Constant;
using kernelgen::Sign;

template <class T>
std::vector<T> strided(const std::vector<T>& x, int start, int step) {
    std::vector<T> result;
    for (int i = start; i < static_cast<int>(x.size()); i += step) result.push_back(x[i]);
    return result;
}

Complex add(Graph& g, Complex a, Complex b) { return {g.add(a.re, b.re), g.add(a.im, b.im)}; }
Complex sub(Graph& g, Complex a, Complex b) { return {g.sub(a.re, b.re), g.sub(a.im, b.im)}; }
Complex timesI(Complex z) { return {-z.im, z.re}; }

// sum of u[k] exp(2 pi i k (p + skew/4) / n), skew = 0 or 1.
std::vector<Complex> conjugatePairs(Graph& g, const std::vector<Complex>& u, int skew) {
    const int n = static_cast<int>(u.size());
    if (n == 1) return u;
    if (n == 2) {
        const Complex z = rotate(g, u[1], skew, 8, Sign::plus);
        return {add(g, u[0], z), sub(g, u[0], z)};
    }
    // The last input is the one before the first, a turn of the skew away.
    std::vector<Complex> before{skew ? timesI(u[n - 1]) : u[n - 1]};
    for (int k = 3; k < n - 1; k += 4) before.push_back(u[k]);
    const std::vector<Complex> even = conjugatePairs(g, strided(u, 0, 2), skew);
    const std::vector<Complex> after = conjugatePairs(g, strided(u, 1, 4), skew);
    before = conjugatePairs(g, before, skew);
    std::vector<Complex> result(n);
    for (int p = 0; p < n / 4; ++p) {
        const Complex x = rotate(g, after[p], 4 * p + skew, 4 * n, Sign::plus);
        const Complex y = rotate(g, before[p], 4 * p + skew, 4 * n, Sign::minus);
        const Complex sum = add(g, x, y), difference = timesI(sub(g, x, y));
        result[p] = add(g, even[p], sum);
        result[p + n / 2] = sub(g, even[p], sum);
        result[p + n / 4] = add(g, even[p + n / 4], difference);
        result[p + 3 * n / 4] = sub(g, even[p + n / 4], difference);
    }
    return result;
}

// Sums and differences of x[r] and x[n-1-r], r < n/2.
struct Halves {
    std::vector<Ref> sums, differences;
};

Halves halves(Graph& g, const std::vector<Ref>& x) {
    Halves result;
    for (std::size_t r = 0; r < x.size() / 2; ++r) {
        const Ref mirrored = x[x.size() - 1 - r];
        result.sums.push_back(g.add(x[r], mirrored));
        result.differences.push_back(g.sub(x[r], mirrored));
    }
    return result;
}

}   // namespace

std::vector<Complex> dft(Graph& g, const std::vector<Complex>& u) {
    return conjugatePairs(g, u, 0);
}

std::vector<Complex> skewDft(Graph& g, const std::vector<Complex>& u) {
    return conjugatePairs(g, u, 1);
}

std::vector<Ref> dct2(Graph& g, const std::vector<Ref>& x) {
    if (x.size() == 1) return x;
    const Halves h = halves(g, x);
    const std::vector<Ref> even = dct2(g, h.sums), odd = dct4(g, h.differences);
    std::vector<Ref> y(x.size());
    for (std::size_t j = 0; j < even.size(); ++j) {
        y[2 * j] = even[j];
        y[2 * j + 1] = odd[j];
    }
    return y;
}

std::vector<Ref> dst2(Graph& g, const std::vector<Ref>& x) {
    if (x.size() == 1) return x;
    const Halves h = halves(g, x);
    const std::vector<Ref> odd = dct4(g, {h.sums.rbegin(), h.sums.rend()});
    const std::vector<Ref> even = dst2(g, h.differences);
    std::vector<Ref> y(x.size());
    for (std::size_t j = 0; j < even.size(); ++j) {
        y[2 * j] = j % 2 ? -odd[j] : odd[j];
        y[2 * j + 1] = even[j];
    }
    return y;
}

std::vector<Ref> dct4(Graph& g, const std::vector<Ref>& x) {
    const int n = static_cast<int>(x.size());
    if (n == 1) return {g.mul(Constant::cosTurn(1, 8), x[0])};
    std::vector<Complex> u;
    for (int k = 0; k < n; k += 2) u.push_back({x[k], -x[n - 1 - k]});
    const std::vector<Ref> rows = mirroredRows(skewDft(g, u));
    std::vector<Ref> y(n);
    for (int q = 0; q < n / 2; ++q) {
        const Complex z = rotate(g, {rows[2 * q], rows[2 * q + 1]}, 2 * q + 1, 8 * n, Sign::plus);
        y[q] = z.re;
        y[n - 1 - q] = z.im;
    }
    return y;
}

std::vector<Ref> mirroredRows(const std::vector<Complex>& result) {
    const int n = static_cast<int>(result.size());
    std::vector<Ref> rows;
    for (int q = 0; q < n; ++q) {
        const Complex z = result[q % 2 ? n - 1 - q / 2 : q / 2];
        rows.push_back(z.re);
        rows.push_back(q % 2 ? -z.im : z.im);
    }
    return rows;
}

std::vector<Ref> naturalRows(const std::vector<Complex>& result) {
    std::vector<Ref> rows;
    for (const Complex& z : result) rows.insert(rows.end(), {z.re, z.im});
    return rows;
}

}   // namespace kfm::dct4
