// The DCT-IV in extended precision, signals that bring out errors, and the test that a function
// computes it, with what must hold whatever the addresses of its arrays.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <random>
#include <vector>

#include "definition/definition.h"
#include "support/buffer.h"
#include "support/fault.h"

namespace kfm::tests {

using Wide = long double;
using WideComplex = std::complex<Wide>;
using WideSignal = std::vector<Wide>;

inline long double cosPi(long double x) {
    return std::cos(3.141592653589793238462643383279502884L * x);
}
inline long double sinPi(long double x) {
    return std::sin(3.141592653589793238462643383279502884L * x);
}

inline constexpr double promisedUnits = 10;

inline WideComplex unitAngle(Wide x) { return {cosPi(x), sinPi(x)}; }

// Without the checks for infinities that make the operator slow.
inline WideComplex product(WideComplex a, WideComplex b) {
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

template <class Real>
std::vector<Real> randomSignal(std::size_t size) {
    static std::mt19937 random(4);
    std::vector<Real> signal(size);
    for (Real& value : signal)
        value = static_cast<Real>(static_cast<double>(random()) / 2147483648.0 - 1);
    return signal;
}

// sum of u[first + k stride] exp(-2 pi i kp/n) by halving; `roots` holds exp(-2 pi i j / u.size()).
inline std::vector<WideComplex> transformByHalves(const std::vector<WideComplex>& u,
                                                  const std::vector<WideComplex>& roots,
                                                  std::size_t first = 0, std::size_t stride = 1) {
    const std::size_t n = u.size() / stride;
    if (n == 1) return {u[first]};
    const auto even = transformByHalves(u, roots, first, 2 * stride);
    const auto odd = transformByHalves(u, roots, first + stride, 2 * stride);
    std::vector<WideComplex> result(n);
    for (std::size_t p = 0; p < n / 2; ++p) {
        const WideComplex z = product(odd[p], roots[p * stride]);
        result[p] = even[p] + z;
        result[p + n / 2] = even[p] - z;
    }
    return result;
}

// The transform of n elements: by the definition for short and odd lengths, else by a complex
// transform of half the length, whose angles serve all signals.
class Reference {
public:
    explicit Reference(std::size_t n) {
        if (n < 128 || n % 2) return;
        for (std::size_t i = 0; i < n / 2; ++i) {
            before_.push_back(unitAngle(-Wide(4 * i + 1) / (4 * n)));
            after_.push_back(unitAngle(-static_cast<Wide>(i) / n));
        }
        for (std::size_t j = 0; j < n / 4; ++j)
            roots_.push_back(unitAngle(-static_cast<Wide>(4 * j) / n));
    }

    template <class Real>
    WideSignal operator()(const std::vector<Real>& x) const {
        const std::size_t n = x.size();
        WideSignal y(n);
        if (roots_.empty()) {
            const std::vector<double> samples(x.begin(), x.end());
            std::ranges::transform(definition::dct4(samples), y.begin(),
                                   [](Quad value) { return static_cast<Wide>(value); });
            return y;
        }
        std::vector<WideComplex> u(n / 2);
        for (std::size_t i = 0; i < n / 2; ++i)
            u[i] = product(WideComplex(x[2 * i], x[n - 1 - 2 * i]), before_[i]);
        u = transformByHalves(u, roots_);
        for (std::size_t k = 0; k < n / 2; ++k) {
            const WideComplex z = product(u[k], after_[k]);
            y[2 * k] = z.real();
            y[n - 1 - 2 * k] = -z.imag();
        }
        return y;
    }

private:
    std::vector<WideComplex> before_, roots_, after_;
};

template <class Real>
double errorInUnits(const Real* actual, const WideSignal& expected) {
    Wide error = 0, largest = 0;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        error = std::max(error, std::abs(actual[i] - expected[i]));
        largest = std::max(largest, std::abs(expected[i]));
    }
    return static_cast<double>(std::ldexp(error / largest, sizeof(Real) == 4 ? 24 : 53));
}

// Random signals, then regular ones, on which errors add up where they can; of these only one for
// lengths whose reference takes long.
template <class Real>
std::vector<std::vector<Real>> signals(std::size_t n, int rounds) {
    std::vector<std::vector<Real>> result;
    for (int i = 0; i < rounds; ++i) result.push_back(randomSignal<Real>(n));
    result.emplace_back(n);   // all of the output in one element
    for (std::size_t i = 0; i < n; ++i) {
        const auto turns = (2 * i + 1) * (2 * (n / 3) + 1) % (8 * n);
        result.back()[i] = static_cast<Real>(cosPi(static_cast<Wide>(turns) / (4 * n)));
    }
    if (n > 65536) return result;
    for (const std::size_t at : {std::size_t(0), n / 2, n - 1}) {
        result.emplace_back(n);
        result.back()[at] = 1;
    }
    result.emplace_back(n, Real(1));
    result.emplace_back(n);
    for (std::size_t i = 0; i < n; ++i) result.back()[i] = i % 2 ? -1 : 1;
    return result;
}

// Runs `transform` on every signal: between arrays that touch guard pages at either end, and in
// place an element away from one.
template <class Real>
void expectDefinition(std::size_t n, int rounds, auto&& transform) {
    const std::size_t bytes = n * sizeof(Real);
    const Reference reference(n);
    double worst = 0;
    for (const std::vector<Real>& x : signals<Real>(n, rounds)) {
        const WideSignal expected = reference(x);
        std::vector<Real> first;
        for (const Flush side : {Flush::start, Flush::end})
            for (const bool inPlace : {false, true}) {
                GuardedBuffer src(bytes, side, inPlace ? sizeof(Real) : 0), other(bytes, side);
                GuardedBuffer& dst = inPlace ? src : other;
                std::memcpy(src.data(), x.data(), bytes);
                auto* y = reinterpret_cast<Real*>(dst.data());
                ASSERT_TRUE(
                    survives([&] { transform(reinterpret_cast<const Real*>(src.data()), y); }));
                ASSERT_TRUE(src.canariesIntact() && other.canariesIntact());
                if (first.empty()) first.assign(y, y + n);
                ASSERT_EQ(std::memcmp(y, first.data(), bytes), 0) << "bits depend on addresses";
                ASSERT_TRUE(inPlace || std::memcmp(src.data(), x.data(), bytes) == 0);
            }
        worst = std::max(worst, errorInUnits(first.data(), expected));
    }
    EXPECT_LE(worst, promisedUnits);
    testing::Test::RecordProperty("units" + std::to_string(n), std::to_string(worst));
    std::printf("%zu elements of %zu bytes: worst error %.2f units\n", n, sizeof(Real), worst);
}

}   // namespace kfm::tests
