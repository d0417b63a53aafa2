// A transform of frames of samples, chosen by name at run time.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "packed_spectrum.h"
#include "samples.h"

namespace kfm::tool {

// What the samples on one side of a transform are.
enum class Form {
    complexSignal,
    realSignal,     // imaginary parts are zero
    halfSpectrum,   // bins 0 ... N/2 of a real signal, in whichever layout
};

class FrameTransform {
public:
    virtual ~FrameTransform() = default;

    virtual bool doublePrecision() const = 0;
    virtual Form resultForm() const = 0;
    virtual std::size_t frameLength() const = 0;   // samples that one call takes

    // `frame` holds frameLength() samples. Values are those of the chosen precision. Throws
    // InputError for samples that the source cannot hold.
    virtual Samples operator()(std::span<const Sample> frame) const = 0;
};

// What `kfmgen transform` is asked for. `family` is a name of the registry, DCT4, or with a layout
// the direction of the real DFT; `flag` is one of the library's scaling flags.
struct Choice {
    std::string family;
    std::optional<SpectrumLayout> layout;
    int length;
    bool doublePrecision;
    int flag;
};

// Throws InputError for a family or a length that does not exist.
std::unique_ptr<const FrameTransform> makeTransform(const Choice& choice);

// The value in a precision of the library; throws InputError when it is none.
template <class Real>
Real converted(double value);

}   // namespace kfm::tool
