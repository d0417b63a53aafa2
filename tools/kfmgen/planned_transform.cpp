#include "planned_transform.h"

#include <algorithm>
#include <vector>

#include "kfmgen.h"

namespace kfm::tool {
namespace {

template <class Real>
struct Calls;
template <>
struct Calls<Kfm32f> {
    using Spec = KfmDCT4Spec_32f;
    static constexpr auto getSize = kfmgDCT4GetSize_32f;
    static constexpr auto initAlloc = kfmgDCT4InitAlloc_32f;
    static constexpr auto free = kfmgDCT4Free_32f;
    static constexpr auto transform = kfmgDCT4_32f;
};
template <>
struct Calls<Kfm64f> {
    using Spec = KfmDCT4Spec_64f;
    static constexpr auto getSize = kfmgDCT4GetSize_64f;
    static constexpr auto initAlloc = kfmgDCT4InitAlloc_64f;
    static constexpr auto free = kfmgDCT4Free_64f;
    static constexpr auto transform = kfmgDCT4_64f;
};

// Lengths lie at powers of two and right above them; which of these, the library tells.
template <class Real>
std::vector<int> acceptedLengths() {
    std::vector<int> lengths;
    for (int exponent = 1; exponent < 31; ++exponent)
        for (const int length : {1 << exponent, (1 << exponent) + 1}) {
            int size;
            if (Calls<Real>::getSize(length, &size) == kfmOk) lengths.push_back(length);
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
    throw InputError("length " + std::to_string(length) + ": nearest lengths of " +
                     std::string(plannedFamily) + ": " + nearest);
}

template <class Real>
class PlannedTransform : public FrameTransform {
public:
    explicit PlannedTransform(int length) : length_(length) {
        typename Calls<Real>::Spec* spec = nullptr;
        const KfmStatus status = Calls<Real>::initAlloc(&spec, length);
        if (status == kfmErrSize) refuse<Real>(length);
        if (status != kfmOk) throw std::runtime_error("not enough memory for this length");
        spec_.reset(spec);
    }

    bool doublePrecision() const override { return sizeof(Real) == sizeof(Kfm64f); }
    Form resultForm() const override { return Form::realSignal; }
    std::size_t frameLength() const override { return static_cast<std::size_t>(length_); }

    Samples operator()(std::span<const Sample> frame) const override {
        std::vector<Real> data;
        for (const Sample& sample : frame) {
            if (sample.imag() != 0)
                throw InputError(std::string(plannedFamily) +
                                 " takes real samples, not complex ones");
            data.push_back(converted<Real>(sample.real()));
        }
        if (Calls<Real>::transform(data.data(), data.data(), spec_.get()) != kfmOk)
            throw std::logic_error("the library refused a plan of its own");
        return {data.begin(), data.end()};
    }

private:
    struct Free {
        void operator()(typename Calls<Real>::Spec* spec) const { Calls<Real>::free(spec); }
    };
    int length_;
    std::unique_ptr<typename Calls<Real>::Spec, Free> spec_;
};

}   // namespace

std::unique_ptr<const FrameTransform> plannedTransform(int length, bool doublePrecision,
                                                       int flag) {
    if (flag != kfmScaleNone)
        throw InputError(std::string(plannedFamily) + " is not scaled: its flag is none");
    if (doublePrecision) return std::make_unique<PlannedTransform<Kfm64f>>(length);
    return std::make_unique<PlannedTransform<Kfm32f>>(length);
}

std::string plannedLengths() {
    return std::to_string(acceptedLengths<Kfm32f>().front()) + ".." +
           std::to_string(acceptedLengths<Kfm32f>().back());
}

}   // namespace kfm::tool
