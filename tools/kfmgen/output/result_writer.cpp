#include "output/result_writer.h"

#include <string>

#include "digits.h"

namespace kfm::tool {
namespace {

// Whatever the format, what a frame holds besides its values.
class Labelled : public ResultWriter {
public:
    Labelled(OutputFile& out, Form form, bool doublePrecision, ResultLabels labels)
        : out_(out), form_(form), doublePrecision_(doublePrecision), labels_(std::move(labels)) {}

protected:
    double time() const {
        return labels_.times->first + static_cast<double>(frame_) * labels_.times->step;
    }

    OutputFile& out_;
    Form form_;
    bool doublePrecision_;
    ResultLabels labels_;
    std::uint64_t frame_ = 0;
};

class CsvWriter : public Labelled {
public:
    using Labelled::Labelled;

    void writeHeader() override {
        out_.write(labels_.times ? "frame,time," : "frame,");
        out_.write(form_ == Form::halfSpectrum ? "bin," : "index,");
        if (!labels_.frequencies.empty()) out_.write("frequency,");
        out_.write(form_ == Form::realSignal ? "value\n" : "re,im\n");
    }

    void writeFrame(std::span<const double> values) override {
        char row[6 * longestNumber];
        char* index = writeNumber(row, frame_);
        *index++ = ',';
        if (labels_.times) {
            index = writeNumber(index, time(), true);
            *index++ = ',';
        }
        const std::size_t width = valuesPerSample(form_);
        for (std::size_t i = 0; i * width < values.size(); ++i) {
            char* end = writeNumber(index, std::uint64_t{i});
            if (!labels_.frequencies.empty()) {
                *end++ = ',';
                end = writeNumber(end, labels_.frequencies[i], true);
            }
            for (std::size_t part = 0; part < width; ++part) {
                *end++ = ',';
                end = writeNumber(end, values[width * i + part], doublePrecision_);
            }
            *end++ = '\n';
            out_.write({row, end});
        }
        ++frame_;
    }
};

class JsonWriter : public Labelled {
public:
    using Labelled::Labelled;

    void writeFrame(std::span<const double> values) override {
        char number[longestNumber];
        out_.write("{\"frame\":");
        out_.write({number, writeNumber(number, frame_)});
        if (labels_.times) {
            out_.write(",\"time\":");
            out_.write({number, writeNumber(number, time(), true)});
        }
        if (!labels_.frequencies.empty()) writeArray("frequency", labels_.frequencies, 0, 1, true);
        const std::size_t width = valuesPerSample(form_);
        writeArray(width == 1 ? "value" : "re", values, 0, width, doublePrecision_);
        if (width == 2) writeArray("im", values, 1, width, doublePrecision_);
        out_.write("}\n");
        ++frame_;
    }

private:
    void writeArray(const char* name, std::span<const double> values, std::size_t first,
                    std::size_t step, bool doublePrecision) {
        out_.write(",\"" + std::string(name) + "\":[");
        char number[longestNumber + 1];
        for (std::size_t i = first; i < values.size(); i += step) {
            char* const begin = number + 1;
            *number = ',';
            char* const end = writeNumber(begin, values[i], doublePrecision);
            out_.write({i == first ? begin : number, end});
        }
        out_.write("]");
    }
};

class RawWriter : public Labelled {
public:
    using Labelled::Labelled;

    void writeFrame(std::span<const double> values) override {
        for (const double value : values)
            if (doublePrecision_) writeBytes(value);
            else writeBytes(static_cast<float>(value));
    }

private:
    template <class Real>
    void writeBytes(Real value) {
        out_.write({reinterpret_cast<const char*>(&value), sizeof value});
    }
};

}   // namespace

std::unique_ptr<ResultWriter> resultWriter(OutputFile& out, Format format, Form form,
                                           bool doublePrecision, ResultLabels labels) {
    switch (format) {
    case Format::json:
        return std::make_unique<JsonWriter>(out, form, doublePrecision, std::move(labels));
    case Format::raw:
        return std::make_unique<RawWriter>(out, form, doublePrecision, std::move(labels));
    default: return std::make_unique<CsvWriter>(out, form, doublePrecision, std::move(labels));
    }
}

}   // namespace kfm::tool
