// Frames of results as rows of CSV.
#pragma once

#include <cstdint>
#include <span>

#include "frame_transform.h"
#include "output_file.h"

namespace kfm::tool {

class RowWriter {
public:
    RowWriter(OutputFile& out, Form form, bool doublePrecision);

    void writeHeader();
    void writeFrame(std::span<const double> values);

private:
    char* digits(char* to, double value) const;

    OutputFile& out_;
    Form form_;
    bool doublePrecision_;
    std::uint64_t frame_ = 0;
};

}   // namespace kfm::tool
