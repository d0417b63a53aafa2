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
    // A product of two uniform numbers: with all bits of its own exponent, so that no sum is exact
    // by chance.
    double value() { return uniform() * uniform(); }

private:
    double uniform() {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return std::ldexp(static_cast<double>(static_cast<std::int64_t>(state_)), -63);
    }

    std::uint64_t state_ = 1;
};

template <class Real, class Product>
class Meter {
public:
    Meter(const Graph& g, int elements)
        : g_(g), exactScale_(Constant::inverseSqrt(elements).value()) {}

    void add(const std::vector<Real>& source) {
        const std::vector<Real> actual = evaluate<Real, Product>(g_, source);
        const std::vector<Wide> exact =
            evaluate<Wide>(g_, std::vector<Wide>(source.begin(), source.end()));
        const Real scale = static_cast<Real>(exactScale_);
        double largestError = 0, largestOutput = 0;
        for (std::size_t i = 0; i < exact.size(); ++i) {
            const double error = std::abs(static_cast<double>(actual[i] - exact[i]));
            const double output = std::abs(static_cast<double>(exact[i]));
            const Wide scaledError = Real(actual[i] * scale) - exact[i] * exactScale_;
            errors_ += error * error;
            outputs_ += output * output;
            largestError = std::max(
                {largestError, error, std::abs(static_cast<double>(scaledError / exactScale_))});
            largestOutput = std::max(largestOutput, output);
        }
        worst_ = std::max(worst_, largestError / largestOutput);
    }

    ErrorFigures figures() const { return {std::sqrt(errors_ / outputs_) / unit, worst_ / unit}; }

private:
    static constexpr double unit = 1.0 / (1ll << (sizeof(Real) == 4 ? 24 : 53));
    const Graph& g_;
    Wide exactScale_;
    double errors_ = 0, outputs_ = 0, worst_ = 0;
};

// `feed` adds its signals to a meter of the graph's arithmetic.
template <class Feed>
ErrorFigures measured(const Graph& g, const registry::Element& element, int elements, Feed feed) {
    const auto run = [&]<class Real, class Product>(Real, Product) {
        Meter<Real, Product> meter(g, elements);
        feed(meter, Real());
        return meter.figures();
    };
    if (element.doublePrecision) return run(0.0, 0.0);
    return g.arithmetic().mixed ? run(0.0f, 0.0) : run(0.0f, 0.0f);
}

int reals(const registry::Element& element, int elements) {
    return element.complex ? 2 * elements : elements;
}

}   // namespace

ErrorFigures errorsOnSignals(const Graph& g, const registry::Element& element, int elements,
                             int signals) {
    return measured(g, element, elements, [&]<class Real>(auto& meter, Real) {
        RandomSignal random;
        std::vector<Real> source(reals(element, elements));
        for (int i = 0; i < signals; ++i) {
            for (Real& value : source) value = static_cast<Real>(random.value());
            meter.add(source);
        }
    });
}

ErrorFigures errorsOnImpulses(const Graph& g, const registry::Element& element, int elements,
                              int step) {
    return measured(g, element, elements, [&]<class Real>(auto& meter, Real) {
        std::vector<Real> source(reals(element, elements));
        for (std::size_t i = 0; i < source.size(); i += step) {
            source[i] = 1;
            meter.add(source);
            source[i] = 0;
        }
    });
}

}   // namespace kfm::kernelgen
