// A transform of frames of samples, chosen by name at run time.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "kfmgen.h"
#include "transform/packed_spectrum.h"

namespace kfm::tool {

// What the samples on one side of a transform are.
enum class Form {
    complexSignal,
    realSignal,
    halfSpectrum,   // bins 0 ... N/2 of a real signal, in whichever layout
};

inline std::size_t valuesPerSample(Form form) { return form == Form::realSignal ? 1 : 2; }

class FrameTransform {
public:
    virtual ~FrameTransform() = default;

    virtual const std::string& name() const = 0;   // of its family
    virtual bool doublePrecision() const = 0;
    virtual Form sourceForm() const = 0;
    virtual Form resultForm() const = 0;
    virtual std::size_t sourceSize() const = 0;   // samples that one call takes
    virtual std::size_t resultSize() const = 0;   // and gives

    // Both hold valuesPerSample() values per sample. What goes in has to be finite in the chosen
    // precision; what comes out has its values.
    virtual void operator()(std::span<const double> source, std::span<double> result) = 0;
};

// What `kfmgen transform` is asked for. `family` is a name of the registry, DCT4, or with a layout
// the direction of the real DFT; `flag` is one of the library's scaling flags.
struct Choice {
    std::string family;
    std::optional<SpectrumLayout> layout;
    int length = 0;
    bool doublePrecision = false;
    int flag = kfmScaleNone;
};

// Throws UsageError for a family or a length that does not exist.
std::unique_ptr<FrameTransform> makeTransform(const Choice& choice);

}   // namespace kfm::tool
