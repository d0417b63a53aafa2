// Frames of results in the formats that other programs read.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "output/output_file.h"
#include "transform/frame_transform.h"

namespace kfm::tool {

enum class Format { csv, json, raw };

// What is written beside the values, where it is known and wanted.
struct ResultLabels {
    struct Times {
        double first, step;   // seconds at which frames start
    };
    std::optional<Times> times;
    std::vector<double> frequencies;   // of the rows of every frame; empty: none
};

class ResultWriter {
public:
    virtual ~ResultWriter() = default;
    virtual void writeHeader() {}
    virtual void writeFrame(std::span<const double> values) = 0;
};

// CSV: a row per value or pair of them, after a row of names. JSON: an object per frame and line,
// its members named as the columns. Raw: nothing but the values, float or double of this machine.
// Numbers have as many digits as give the value back in its precision.
std::unique_ptr<ResultWriter> resultWriter(OutputFile& out, Format format, Form form,
                                           bool doublePrecision, ResultLabels labels = {});

}   // namespace kfm::tool
