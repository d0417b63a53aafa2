#include "fixed_transform.h"

#include <algorithm>

#include "kfmgen.h"
#include "planned_transform.h"

namespace kfm::tool {
namespace {

const registry::Family& knownFamily(const std::string& name) {
    if (const registry::Family* family = registry::findFamily(name)) return *family;
    std::string message = "no family '" + name + "'; there are";
    for (const registry::Family& family : registry::families())
        message += " " + std::string(family.name);
    throw InputError(message + " " + std::string(plannedFamily));
}

const registry::Function* findFunction(const registry::Family& family, int length,
                                       bool doublePrecision) {
    int member = family.first;
    while (member <= family.last && static_cast<int>(family.samples(member)) != length) ++member;
    if (member > family.last)
        throw InputError("length " + std::to_string(length) + ": " + std::string(family.name) +
                         " has lengths " + std::to_string(family.samples(family.first)) + " to " +
                         std::to_string(family.samples(family.last)) +
                         (family.byOrder ? ", powers of two" : ""));
    const registry::Element* element = *std::ranges::find(
        family.elements, doublePrecision, &registry::Element::doublePrecision);
    return &*std::ranges::find(registry::functions(),
                               registry::functionName(family, member, *element),
                               &registry::Function::name);
}

// Reals in, reals out; the array has room for the longer of source and destination.
template <class Real>
std::vector<double> apply(const registry::Function& function, std::span<const double> source,
                          int flag) {
    using Call = KfmStatus (*)(const void*, void*, int);
    using BufferedCall = KfmStatus (*)(const void*, void*, int, Kfm8u*);
    std::vector<Real> data;
    for (const double value : source) data.push_back(converted<Real>(value));
    const KfmStatus status =
        registry::findFamily(function.family)->byOrder
            ? reinterpret_cast<BufferedCall>(function.address)(data.data(), data.data(), flag,
                                                               nullptr)
            : reinterpret_cast<Call>(function.address)(data.data(), data.data(), flag);
    if (status != kfmOk)
        throw std::logic_error(function.name + std::string(" returned ") + std::to_string(status));
    return {data.begin(), data.end()};
}

}   // namespace

std::string familyName(const std::string& family, std::optional<SpectrumLayout> layout) {
    if (!layout) return family.empty() ? "DFTFwd_CToC" : family;
    for (const registry::Family& candidate : registry::families()) {
        const std::string_view direction = candidate.name.substr(0, candidate.name.find('_'));
        if (spectrumLayout(candidate) == layout &&
            direction == (family.empty() ? "DFTFwd" : family))
            return std::string(candidate.name);
    }
    throw InputError("--layout goes with --family DFTFwd or DFTInv, not with " + family);
}

FixedTransform::FixedTransform(const std::string& family, int length, bool doublePrecision,
                               int flag)
    : family_(knownFamily(family)),
      function_(findFunction(family_, length, doublePrecision)),
      length_(length),
      doublePrecision_(doublePrecision),
      flag_(flag) {}

Form FixedTransform::form(bool spectrum) const {
    if (registry::findElement(function_->element)->complex) return Form::complexSignal;
    return spectrum && spectrumLayout(family_) ? Form::halfSpectrum : Form::realSignal;
}

std::size_t FixedTransform::frameLength() const {
    const std::size_t length = length_;
    return sourceForm() == Form::halfSpectrum ? length / 2 + 1 : length;
}

Samples FixedTransform::operator()(std::span<const Sample> frame) const {
    const std::vector<double> array = arrayOf(frame);
    return samplesOf(doublePrecision_ ? apply<Kfm64f>(*function_, array, flag_)
                                      : apply<Kfm32f>(*function_, array, flag_));
}

std::vector<double> FixedTransform::arrayOf(std::span<const Sample> samples) const {
    // Room for every form on either side.
    std::vector<double> array(2 * (length_ + 1));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const Slots slots = slotsOf(sourceForm(), i);
        array[slots.re] = samples[i].real();
        if (slots.im >= 0)
            array[slots.im] = samples[i].imag();
        else if (sourceForm() == Form::realSignal && samples[i].imag() != 0)
            throw InputError(std::string(family_.name) + " takes real samples, not complex ones");
    }
    return array;
}

Samples FixedTransform::samplesOf(std::span<const double> array) const {
    const std::size_t length = length_;
    Samples samples(resultForm() == Form::halfSpectrum ? length / 2 + 1 : length);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const Slots slots = slotsOf(resultForm(), i);
        samples[i] = Sample(array[slots.re], slots.im >= 0 ? array[slots.im] : 0);
    }
    return samples;
}

Slots FixedTransform::slotsOf(Form form, int i) const {
    if (form == Form::complexSignal) return {2 * i, 2 * i + 1};
    if (form == Form::realSignal) return {i, -1};
    return binSlots(*spectrumLayout(family_), length_, i);
}

}   // namespace kfm::tool
