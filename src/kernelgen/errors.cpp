#include "kernelgen/errors.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "kernelgen/evaluate.h"

namespace kfm::kernelgen {
namespace {

using Wide = Constant::Wide;

// Linear congruential generator (Knuth's MMIX constants): the same signals everywhere.
class RandomSignal {
public:
    // Uniform in [-1, 1), a multiple of 2^(1-bits).
    double value(int bits) {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        const auto top = static_cast<std::int64_t>(state_) >> (64 - bits);
        return std::ldexp(static_cast<double>(top), 1 - bits);
    }

private:
    std::uint64_t state_ = 1;
};

struct Difference {
    double errors = 0, outputs = 0;              // sums of squares
    double largestError = 0, largestOutput = 0;
};

template <class Real, class Product>
class Meter {
public:
    Meter(const Graph& g, int lanesPerElement) : g_(g), lanesPerElement_(lanesPerElement) {}

    Difference of(const std::vector<Real>& source) const {
        const std::vector<Real> actual = evaluate<Real, Product>(g_, lanesPerElement_, source);
        const std::vector<Wide> exact =
            evaluate<Wide>(g_, lanesPerElement_, std::vector<Wide>(source.begin(), source.end()));
        Difference result;
        for (std::size_t i = 0; i < exact.size(); ++i) {
            const double error = std::abs(static_cast<double>(actual[i] - exact[i]));
            const double output = std::abs(static_cast<double>(exact[i]));
            result.errors += error * error;
            result.outputs += output * output;
            result.largestError = std::max(result.largestError, error);
            result.largestOutput = std::max(result.largestOutput, output);
        }
        return result;
    }

    ErrorFigures figures(int elements, int signals) const {
        constexpr int bits = sizeof(Real) == 4 ? 24 : 53;
        const double unit = std::ldexp(1, -bits);
        const auto relative = [&](const Difference& d) {
            return d.largestError / d.largestOutput / unit;
        };
        std::vector<Real> source(elements * lanesPerElement_);
        ErrorFigures result;
        Difference all;
        RandomSignal random;
        for (int i = 0; i < signals; ++i) {
            for (Real& value : source) value = static_cast<Real>(random.value(bits));
            const Difference d = of(source);
            all.errors += d.errors;
            all.outputs += d.outputs;
            result.worst = std::max(result.worst, relative(d));
        }
        result.mean = std::sqrt(all.errors / all.outputs) / unit;
        for (std::size_t i = 0; i < source.size(); ++i) {
            std::ranges::fill(source, Real(0));
            source[i] = 1;
            result.worstOfImpulses = std::max(result.worstOfImpulses, relative(of(source)));
        }
        return result;
    }

private:
    const Graph& g_;
    int lanesPerElement_;
};

}   // namespace

ErrorFigures measureErrors(const Graph& g, const registry::Element& element, int elements,
                           int signals) {
    const int lanesPerElement = element.complex ? 2 : 1;
    if (element.doublePrecision)
        return Meter<double, double>(g, lanesPerElement).figures(elements, signals);
    if (g.arithmetic().mixed)
        return Meter<float, double>(g, lanesPerElement).figures(elements, signals);
    return Meter<float, float>(g, lanesPerElement).figures(elements, signals);
}

}   // namespace kfm::kernelgen
