// `kfmgen transform --inverse`: frames of results back to the signal they were made of.
#include <algorithm>

#include "output/signal_writer.h"
#include "transform/inverse_choice.h"
#include "transform/overlap_add.h"
#include "transform/transform.h"

namespace kfm::tool {
namespace {

using Samples = std::optional<std::uint64_t>;

// What the frames hold beside the signal is left out: zeros before it, zeros behind it.
class Trimmed {
public:
    Trimmed(SignalWriter& out, std::size_t lead, std::size_t width, bool realPart)
        : out_(out), skip_(lead), width_(width), realPart_(realPart) {}

    // No more than `most` samples in all.
    void write(std::span<const double> values, const Samples& most) {
        const std::size_t skipped = std::min<std::uint64_t>(skip_, values.size() / width_);
        skip_ -= skipped;
        values = values.subspan(skipped * width_);
        if (most)
            values =
                values.first(width_ * std::min<std::uint64_t>(values.size() / width_,
                                                              *most - std::min(*most, written_)));
        written_ += values.size() / width_;
        if (realPart_) {
            part_.clear();
            for (std::size_t i = 0; i < values.size(); i += width_) part_.push_back(values[i]);
            values = part_;
        }
        out_.write(values);
    }

    std::uint64_t written() const { return written_; }

private:
    SignalWriter& out_;
    std::uint64_t skip_, written_ = 0;
    std::size_t width_;
    bool realPart_;
    std::vector<double> part_;
};

// The values of the next frame; false at the end.
bool readFrame(SampleSource& source, std::span<double> frame, std::size_t samples) {
    const std::size_t count = source.read(frame);
    if (count > 0 && count < samples)
        throw InputError(source.name() + ": ends within a frame of " + std::to_string(samples));
    return count > 0;
}

Samples samplesWanted(const TransformOptions& options, const SampleSource& source) {
    return options.samples > 0 ? Samples(options.samples) : source.notes().samples;
}

}   // namespace

void runInverse(const TransformOptions& options) {
    const InverseChoice inverse = inverseOf(options.choice);
    const std::unique_ptr<FrameTransform> transform = makeTransform(inverse.choice);
    const std::size_t length = transform->resultSize();
    const std::size_t hop = options.hop > 0 ? options.hop : length;
    if (options.format == Format::json)
        throw UsageError("--inverse: a signal is written as csv or raw, or as a sound");
    if (hop > length) throw UsageError("--inverse: samples between frames cannot be restored");
    const std::unique_ptr<SampleSource> source = openSamples(options.input, demandOf(*transform));
    const std::size_t width = valuesPerSample(transform->resultForm());
    if (options.realPart && width == 1)
        throw UsageError("--real: results of " + transform->name() + " are real");

    if (!showsOnTerminal(options.output)) source->showProgress();
    const auto out =
        signalWriter(options.output, {options.format, width == 2 && !options.realPart,
                                      transform->doublePrecision(), rateOf(options, *source)});
    Trimmed signal(*out, leadOf(options, length, hop), width, options.realPart);
    OverlapAdd frames(window::weights(options.window.value_or(window::none), length), width);
    std::vector<double> values(transform->sourceSize() * valuesPerSample(transform->sourceForm()));
    std::vector<double> result(length * width);
    for (std::uint64_t frame = 0; readFrame(*source, values, transform->sourceSize()); ++frame) {
        if (frame > 0) signal.write(frames.take(hop), samplesWanted(options, *source));
        (*transform)(values, result);
        checkRange(result, *transform, source->name(), frame);
        for (double& value : result) value *= inverse.factor;
        frames.add(result);
    }
    // How many samples there were is noted behind the last frame, which holds one at least.
    const Samples wanted = samplesWanted(options, *source);
    signal.write(frames.take(length), wanted);
    if (wanted && *wanted != signal.written())
        throw InputError(source->name() + ": the frames are those of " +
                         std::to_string(signal.written()) + " samples, not of " +
                         std::to_string(*wanted));
    out->complete();
}

}   // namespace kfm::tool
