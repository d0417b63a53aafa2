// One fixed-length function of the library, chosen by name at run time.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "registry/functions.h"
#include "packed_spectrum.h"
#include "samples.h"

namespace kfm::tool {

// What the samples on one side of a transform are.
enum class Form {
    complexSignal,
    realSignal,     // imaginary parts are zero
    halfSpectrum,   // bins 0 ... N/2 of a real signal, in whichever layout
};

// The registry's name of a family: with a layout, of the real DFT in the direction `family`, DFTFwd
// or DFTInv; without one, `family` itself. Empty means forward, and complex where there is no
// layout. Throws InputError for a layout beside another family.
std::string familyName(const std::string& family, std::optional<SpectrumLayout> layout);

class FixedTransform {
public:
    // `flag` is one of the library's scaling flags. Throws InputError for a family or a length
    // that does not exist.
    FixedTransform(const std::string& family, int length, bool doublePrecision, int flag);

    bool doublePrecision() const { return doublePrecision_; }
    Form sourceForm() const { return form(family_.inverse()); }
    Form resultForm() const { return form(!family_.inverse()); }
    std::size_t frameLength() const;   // samples that one call takes

    // `frame` holds frameLength() samples. Values are those of the chosen precision. Throws
    // InputError for samples that the source cannot hold.
    Samples operator()(std::span<const Sample> frame) const;

private:
    Form form(bool spectrum) const;
    Slots slotsOf(Form form, int i) const;
    std::vector<double> arrayOf(std::span<const Sample> samples) const;
    Samples samplesOf(std::span<const double> array) const;

    const registry::Family& family_;
    const registry::Function* function_;
    bool doublePrecision_;
    int flag_;
};

}   // namespace kfm::tool
