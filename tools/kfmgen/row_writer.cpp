#include "row_writer.h"

#include <charconv>
#include <string>

namespace kfm::tool {
namespace {

constexpr std::size_t longestNumber = 32;

}   // namespace

RowWriter::RowWriter(OutputFile& out, Form form, bool doublePrecision)
    : out_(out), form_(form), doublePrecision_(doublePrecision) {}

void RowWriter::writeHeader() {
    out_.write(form_ == Form::halfSpectrum ? "frame,bin," : "frame,index,");
    out_.write(form_ == Form::realSignal ? "value\n" : "re,im\n");
}

void RowWriter::writeFrame(std::span<const double> values) {
    char row[4 * longestNumber];
    char* const index = std::to_chars(row, row + longestNumber, frame_++).ptr + 1;
    index[-1] = ',';
    const std::size_t width = valuesPerSample(form_);
    for (std::size_t i = 0; i * width < values.size(); ++i) {
        char* end = std::to_chars(index, index + longestNumber, i).ptr;
        for (std::size_t part = 0; part < width; ++part) {
            *end++ = ',';
            end = digits(end, values[width * i + part]);
        }
        *end++ = '\n';
        out_.write({row, end});
    }
}

// The shortest that read back as the same value in its precision.
char* RowWriter::digits(char* to, double value) const {
    return doublePrecision_ ? std::to_chars(to, to + longestNumber, value).ptr
                            : std::to_chars(to, to + longestNumber, static_cast<float>(value)).ptr;
}

}   // namespace kfm::tool
