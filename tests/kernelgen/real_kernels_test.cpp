// The graphs of the kernels on real data before emission, in exact arithmetic and in that of the
// element types.
#include "dft/real/real_kernels.h"

#include <gtest/gtest.h>

#include "hartley/hartley_kernels.h"
#include "kernelgen/evaluate.h"
#include "kernelgen/report.h"
#include "kfmgen.h"
#include "registry/functions.h"

using namespace kfm::kernelgen;

namespace {

using Wide = Constant::Wide;

std::vector<Wide> samples(int n) {
    std::vector<Wide> x(n);
    for (int i = 0; i < n; ++i) x[i] = Wide((i * 7919 + 104729) % 1009) / 512 - 1;
    return x;
}

Wide cosine(long k, long n) { return Constant::cosTurn(k, n).value(); }
Wide sine(long k, long n) { return Constant::sinTurn(k, n).value(); }

class RealGraph : public testing::TestWithParam<std::tuple<int, bool>> {};

TEST_P(RealGraph, ForwardIsTheDefinition) {
    const auto [n, single] = GetParam();
    const std::vector<Wide> x = samples(n);
    const auto y = evaluate<Wide>(kfm::dft::real::forwardGraph(n, single), x);
    for (long k = 0; 2 * k <= n; ++k) {
        Wide re = 0, im = 0;
        for (long i = 0; i < n; ++i) {
            re += x[i] * cosine(i * k, n);
            im -= x[i] * sine(i * k, n);
        }
        EXPECT_NEAR(double(y[k == 0 ? 0 : 2 * k - 1] - re), 0, 1e-24) << "bin " << k;
        if (k == 0 || 2 * k == n) continue;
        EXPECT_NEAR(double(y[2 * k] - im), 0, 1e-24) << "bin " << k;
    }
}

TEST_P(RealGraph, InverseIsTheDefinition) {
    const auto [n, single] = GetParam();
    const std::vector<Wide> v = samples(n);
    const auto x = evaluate<Wide>(kfm::dft::real::inverseGraph(n, single), v);
    for (long i = 0; i < n; ++i) {
        Wide sum = v[0];
        for (long k = 1; 2 * k <= n; ++k)
            sum += 2 * k == n ? v[n - 1] * cosine(i * k, n)
                              : 2 * (v[2 * k - 1] * cosine(i * k, n) - v[2 * k] * sine(i * k, n));
        EXPECT_NEAR(double(x[i] - sum), 0, 1e-24) << "sample " << i;
    }
}

TEST_P(RealGraph, HartleyIsTheDefinition) {
    const auto [n, single] = GetParam();
    const std::vector<Wide> x = samples(n);
    const auto y = evaluate<Wide>(kfm::hartley::hartleyGraph(n, single), x);
    for (long k = 0; k < n; ++k) {
        Wide sum = 0;
        for (long i = 0; i < n; ++i) sum += x[i] * (cosine(i * k, n) + sine(i * k, n));
        EXPECT_NEAR(double(y[k] - sum), 0, 1e-24) << "output " << k;
    }
}

INSTANTIATE_TEST_SUITE_P(All, RealGraph, testing::Combine(testing::Range(2, 65), testing::Bool()));

// Trigonometric products of one Hartley kernel may not exceed these numbers.
TEST(HartleyProducts, StayWithinTheirBounds) {
    constexpr std::pair<int, int> bounds[] = {
        {3, 2},    {4, 0},    {5, 8},     {7, 18},   {8, 2},    {9, 20},   {11, 50}, {13, 44},
        {16, 12},  {17, 54},  {19, 108},  {23, 242}, {29, 210}, {31, 194}, {32, 42}, {37, 236},
        {41, 242}, {43, 352}, {47, 1058}, {53, 450}, {59, 954}, {61, 415}, {64, 134}};
    for (const auto& [n, bound] : bounds)
        for (const bool single : {false, true})
            EXPECT_LE(countScalarProducts(kfm::hartley::hartleyGraph(n, single)), bound) << n;
}

// The compiler keeps every operation of the graph: the library gives the evaluation's bits.
template <class Real>
void expectBitsOfTheGraph(const kfm::registry::Function& function, const Graph& g) {
    const int n = function.length;
    std::vector<Real> x(n), y(n);
    for (int i = 0; i < n; ++i) x[i] = Real((i * 7919 + 104729) % 1009) / 3 - 100;
    using Kernel = KfmStatus (*)(const Real*, Real*, int);
    ASSERT_EQ(reinterpret_cast<Kernel>(function.address)(x.data(), y.data(), kfmScaleNone), kfmOk);
    EXPECT_EQ((evaluate<Real, double>(g, x)), y) << function.name;
}

TEST(CompiledRealKernels, GiveTheBitsOfTheirGraphs) {
    using Builder = Graph (*)(int, bool);
    constexpr std::tuple<std::string_view, Builder> families[] = {
        {"DFTFwd_RToPack", kfm::dft::real::forwardGraph},
        {"DFTInv_PackToR", kfm::dft::real::inverseGraph},
        {"Hartley", kfm::hartley::hartleyGraph}};
    for (const kfm::registry::Function& function : kfm::registry::functions())
        for (const auto& [family, graph] : families) {
            if (function.family == nullptr || family != function.family || function.length == 0)
                continue;
            if (std::string_view(function.element) == "32f")
                expectBitsOfTheGraph<float>(function, graph(function.length, true));
            else expectBitsOfTheGraph<double>(function, graph(function.length, false));
        }
}

}   // namespace
