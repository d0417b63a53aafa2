#include "fixed_transform.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "kfmgen.h"

namespace kfm::tool {
namespace {

const registry::Family& knownFamily(const std::string& name) {
    if (const registry::Family* family = registry::findFamily(name)) return *family;
    std::string message = "no family '" + name + "'; there are";
    for (const registry::Family& family : registry::families())
        message += " " + std::string(family.name);
    throw InputError(message);
}

const registry::Function* findFunction(const registry::Family& family, int length,
                                       bool doublePrecision) {
    if (length < family.first || length > family.last)
        throw InputError("length " + std::to_string(length) + ": " + std::string(family.name) +
                         " has lengths " + std::to_string(family.first) + " to " +
                         std::to_string(family.last));
    const registry::Element* element = *std::ranges::find(
        family.elements, doublePrecision, &registry::Element::doublePrecision);
    return &*std::ranges::find(registry::functions(),
                               registry::functionName(family, length, *element),
                               &registry::Function::name);
}

template <class Real>
Real converted(double value) {
    const Real result = static_cast<Real>(value);
    if (std::isfinite(result)) return result;
    std::ostringstream message;
    message << "sample " << value << " has no finite value in this precision";
    throw InputError(message.str());
}

template <class Complex>
Samples apply(const registry::Function& function, std::span<const Sample> frame, int flag) {
    using Real = decltype(Complex::re);
    using Call = KfmStatus (*)(const Complex*, Complex*, int);
    std::vector<Complex> data;
    for (const Sample& sample : frame)
        data.push_back({converted<Real>(sample.real()), converted<Real>(sample.imag())});
    const KfmStatus status =
        reinterpret_cast<Call>(function.address)(data.data(), data.data(), flag);
    if (status != kfmOk)
        throw std::logic_error(function.name + std::string(" returned ") + std::to_string(status));
    Samples result;
    for (const Complex& value : data) result.emplace_back(value.re, value.im);
    return result;
}

}   // namespace

FixedTransform::FixedTransform(const std::string& family, int length, bool doublePrecision,
                               int flag)
    : function_(findFunction(knownFamily(family), length, doublePrecision)),
      doublePrecision_(doublePrecision),
      flag_(flag) {}

Samples FixedTransform::operator()(std::span<const Sample> frame) const {
    return doublePrecision_ ? apply<Kfm64fc>(*function_, frame, flag_)
                            : apply<Kfm32fc>(*function_, frame, flag_);
}

}   // namespace kfm::tool
