#include "transform/planned_transform.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "dct4_plan.h"
#include "failure.h"

namespace kfm::tool {
namespace {

// Lengths lie at powers of two and right above them; which of these, the library tells.
template <class Real>
std::vector<int> acceptedLengths() {
    std::vector<int> lengths;
    for (int exponent = 1; exponent < 31; ++exponent)
        for (const int length : {1 << exponent, (1 << exponent) + 1}) {
            int size;
            if (Dct4Calls<Real>::getSize(length, &size) == kfmOk) lengths.push_back(length);
        }
    return lengths;
}

template <class Real>
[[noreturn]] void refuse(int length) {
    const std::vector<int> lengths = acceptedLengths<Real>();
    const auto above = std::ranges::upper_bound(lengths, length);
    std::string nearest;
    if (above != lengths.begin()) nearest = std::to_string(above[-1]);
    if (above != lengths.end())
        nearest += (nearest.empty() ? "" : " and ") + std::to_string(*above);
    throw UsageError("length " + std::to_string(length) + ": nearest lengths of " +
                     std::string(plannedFamily) + ": " + nearest);
}

template <class Real>
class PlannedTransform : public FrameTransform {
public:
    explicit PlannedTransform(int length) : plan_(length) {
        if (!plan_) refuse<Real>(length);
        data_.resize(length);
    }

    const std::string& name() const override { return name_; }
    bool doublePrecision() const override { return sizeof(Real) == sizeof(Kfm64f); }
    Form sourceForm() const override { return Form::realSignal; }
    Form resultForm() const override { return Form::realSignal; }
    std::size_t sourceSize() const override { return data_.size(); }
    std::size_t resultSize() const override { return data_.size(); }

    void operator()(std::span<const double> source, std::span<double> result) override {
        std::ranges::transform(source, data_.begin(),
                               [](double value) { return static_cast<Real>(value); });
        if (plan_.transform(data_.data(), data_.data()) != kfmOk)
            throw std::logic_error("the library refused a plan of its own");
        std::ranges::copy(data_, result.begin());
    }

private:
    std::string name_{plannedFamily};
    Dct4Plan<Real> plan_;
    std::vector<Real> data_;
};

}   // namespace

std::unique_ptr<FrameTransform> plannedTransform(int length, bool doublePrecision, int flag) {
    if (flag != kfmScaleNone)
        throw UsageError(std::string(plannedFamily) + " is not scaled: its flag is none");
    if (doublePrecision) return std::make_unique<PlannedTransform<Kfm64f>>(length);
    return std::make_unique<PlannedTransform<Kfm32f>>(length);
}

std::string plannedLengths() {
    return std::to_string(acceptedLengths<Kfm32f>().front()) + ".." +
           std::to_string(acceptedLengths<Kfm32f>().back());
}

}   // namespace kfm::tool
