#include "transform/fixed_transform.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <vector>

#include "failure.h"
#include "kfmgen.h"
#include "registry/functions.h"
#include "transform/planned_transform.h"

namespace kfm::tool {
namespace {

const registry::Family& knownFamily(const std::string& name) {
    if (const registry::Family* family = registry::findFamily(name)) return *family;
    std::string message = "no family '" + name + "'; there are";
    for (const registry::Family& family : registry::families())
        message += " " + std::string(family.name);
    throw UsageError(message + " " + std::string(plannedFamily));
}

const registry::Function& knownFunction(const registry::Family& family, int length,
                                        bool doublePrecision) {
    int member = family.first;
    while (member <= family.last && static_cast<int>(family.samples(member)) != length) ++member;
    if (member > family.last)
        throw UsageError("length " + std::to_string(length) + ": " + std::string(family.name) +
                         " has lengths " + std::to_string(family.samples(family.first)) + " to " +
                         std::to_string(family.samples(family.last)) +
                         (family.byOrder ? ", powers of two" : ""));
    const registry::Element* element =
        *std::ranges::find(family.elements, doublePrecision, &registry::Element::doublePrecision);
    return *std::ranges::find(registry::functions(),
                              registry::functionName(family, member, *element),
                              &registry::Function::name);
}

// Where the values of a side lie in the array that the library computes in; -1 for one that is
// always zero and not stored.
std::vector<int> placesOf(Form form, std::optional<SpectrumLayout> layout, int length) {
    std::vector<int> places;
    if (form == Form::halfSpectrum) {
        for (int bin = 0; bin <= length / 2; ++bin) {
            const Slots slots = binSlots(*layout, length, bin);
            places.insert(places.end(), {slots.re, slots.im});
        }
    } else {
        places.resize(length * valuesPerSample(form));
        std::iota(places.begin(), places.end(), 0);
    }
    return places;
}

template <class Real>
class FixedTransform : public FrameTransform {
public:
    FixedTransform(const registry::Family& family, const registry::Function& function, int length,
                   int flag)
        : name_(family.name), function_(function), ordered_(family.byOrder), flag_(flag),
          source_(formOf(family, family.inverse())), result_(formOf(family, !family.inverse())),
          sourcePlaces_(placesOf(source_, spectrumLayout(family), length)),
          resultPlaces_(placesOf(result_, spectrumLayout(family), length)),
          data_(2 * (length + 1)) {   // room for every form on either side
        // A call that has to allocate its buffer does not tell that there is no memory.
        int bytes = 0;
        if (ordered_ && kfmgWHTGetBufferSize_64f(function.length, &bytes) == kfmOk)
            buffer_.resize(bytes / sizeof(Aligned) + 1);
    }

    const std::string& name() const override { return name_; }
    bool doublePrecision() const override { return sizeof(Real) == sizeof(Kfm64f); }
    Form sourceForm() const override { return source_; }
    Form resultForm() const override { return result_; }
    std::size_t sourceSize() const override {
        return sourcePlaces_.size() / valuesPerSample(source_);
    }
    std::size_t resultSize() const override {
        return resultPlaces_.size() / valuesPerSample(result_);
    }

    void operator()(std::span<const double> source, std::span<double> result) override {
        for (std::size_t i = 0; i < sourcePlaces_.size(); ++i)
            if (sourcePlaces_[i] >= 0) data_[sourcePlaces_[i]] = static_cast<Real>(source[i]);
        if (const KfmStatus status = call(); status != kfmOk)
            throw std::logic_error(std::string(function_.name) + " returned " +
                                   std::to_string(status));
        for (std::size_t i = 0; i < resultPlaces_.size(); ++i)
            result[i] = resultPlaces_[i] >= 0 ? data_[resultPlaces_[i]] : 0;
    }

private:
    struct alignas(16) Aligned {
        Kfm8u bytes[16];
    };

    Form formOf(const registry::Family& family, bool spectrum) const {
        if (registry::findElement(function_.element)->complex) return Form::complexSignal;
        return spectrum && spectrumLayout(family) ? Form::halfSpectrum : Form::realSignal;
    }

    KfmStatus call() {
        using Call = KfmStatus (*)(const void*, void*, int);
        using BufferedCall = KfmStatus (*)(const void*, void*, int, Kfm8u*);
        Real* data = data_.data();
        if (!ordered_) return reinterpret_cast<Call>(function_.address)(data, data, flag_);
        return reinterpret_cast<BufferedCall>(function_.address)(data, data, flag_,
                                                                 buffer_.data()->bytes);
    }

    std::string name_;
    const registry::Function& function_;
    bool ordered_;
    int flag_;
    Form source_, result_;
    std::vector<int> sourcePlaces_, resultPlaces_;
    std::vector<Real> data_;
    std::vector<Aligned> buffer_;
};

}   // namespace

std::string familyName(const std::string& family, std::optional<SpectrumLayout> layout) {
    if (!layout) return family.empty() ? "DFTFwd_CToC" : family;
    for (const registry::Family& candidate : registry::families()) {
        const std::string_view direction = candidate.name.substr(0, candidate.name.find('_'));
        if (spectrumLayout(candidate) == layout &&
            direction == (family.empty() ? "DFTFwd" : family))
            return std::string(candidate.name);
    }
    throw UsageError("--layout goes with --family DFTFwd or DFTInv, not with " + family);
}

std::unique_ptr<FrameTransform> fixedTransform(const std::string& name, int length,
                                               bool doublePrecision, int flag) {
    const registry::Family& family = knownFamily(name);
    const registry::Function& function = knownFunction(family, length, doublePrecision);
    if (doublePrecision)
        return std::make_unique<FixedTransform<Kfm64f>>(family, function, length, flag);
    return std::make_unique<FixedTransform<Kfm32f>>(family, function, length, flag);
}

}   // namespace kfm::tool
