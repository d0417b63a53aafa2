// A signal as it is written: text, bare values, or a sound for who names the file so.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "output/result_writer.h"
#include "transform/frame_transform.h"

namespace kfm::tool {

struct SignalFormat {
    Format format;
    bool complex;
    bool doublePrecision;
    int rate;   // 0: unknown
};

class SignalWriter {
public:
    virtual ~SignalWriter() = default;
    virtual void write(std::span<const double> values) = 0;   // whole samples
    virtual void complete() = 0;
};

bool namesSound(const std::string& path);

// Text has a row per sample: index and value, or re and im. A sound has samples of floating point,
// real and imaginary part in two channels. Throws UsageError for a sound without a rate.
std::unique_ptr<SignalWriter> signalWriter(const std::string& path, const SignalFormat& format);

}   // namespace kfm::tool
