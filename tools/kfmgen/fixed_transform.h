// One fixed-length function of the library, chosen by name at run time.
#pragma once

#include "frame_transform.h"
#include "registry/functions.h"

namespace kfm::tool {

// The registry's name of a family: with a layout, of the real DFT in the direction `family`, DFTFwd
// or DFTInv; without one, `family` itself. Empty means forward, and complex where there is no
// layout. Throws InputError for a layout beside another family.
std::string familyName(const std::string& family, std::optional<SpectrumLayout> layout);

class FixedTransform : public FrameTransform {
public:
    // `flag` is one of the library's scaling flags. Throws InputError for a family or a length
    // that does not exist.
    FixedTransform(const std::string& family, int length, bool doublePrecision, int flag);

    bool doublePrecision() const override { return doublePrecision_; }
    Form sourceForm() const { return form(family_.inverse()); }
    Form resultForm() const override { return form(!family_.inverse()); }
    std::size_t frameLength() const override;
    Samples operator()(std::span<const Sample> frame) const override;

private:
    Form form(bool spectrum) const;
    Slots slotsOf(Form form, int i) const;
    std::vector<double> arrayOf(std::span<const Sample> samples) const;
    Samples samplesOf(std::span<const double> array) const;

    const registry::Family& family_;
    const registry::Function* function_;
    int length_;
    bool doublePrecision_;
    int flag_;
};

}   // namespace kfm::tool
