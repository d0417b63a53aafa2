#include "transform.h"

#include <algorithm>
#include <cmath>

#include "row_writer.h"

namespace kfm::tool {
namespace {

Demand demandOf(const FrameTransform& transform) {
    return {.complex = transform.sourceForm() != Form::realSignal,
            .single = !transform.doublePrecision(),
            .frame = transform.sourceSize(),
            .bins = transform.sourceForm() == Form::halfSpectrum,
            .taker = transform.name()};
}

// Rows that say their frame would be mixed with those of others.
void checkHop(const SampleSource& source, const Framing& framing) {
    if (source.framed() && framing.hop % framing.length != 0)
        throw UsageError(source.name() + ": it is cut in frames, --hop has to be a multiple of " +
                         std::to_string(framing.length));
}

void checkRange(std::span<const double> result, const FrameTransform& transform,
                const std::string& name, std::uint64_t frame) {
    if (std::ranges::all_of(result, [](double value) { return std::isfinite(value); })) return;
    throw InputError(
        name + ": results of frame " + std::to_string(frame) + " are too large for " +
        (transform.doublePrecision() ? "double precision" : "single precision; see --precision"));
}

}   // namespace

void runTransform(const TransformOptions& options) {
    const std::unique_ptr<FrameTransform> transform = makeTransform(options.choice);
    const std::size_t length = transform->sourceSize();
    const Framing framing{length, options.hop > 0 ? options.hop : length, options.tail};
    const std::unique_ptr<SampleSource> source = openSamples(options.input, demandOf(*transform));
    checkHop(*source, framing);

    OutputFile out(options.output);
    RowWriter rows(out, transform->resultForm(), transform->doublePrecision());
    rows.writeHeader();
    Framer frames(*source, framing, valuesPerSample(transform->sourceForm()));
    std::vector<double> result(transform->resultSize() * valuesPerSample(transform->resultForm()));
    std::uint64_t count = 0;
    for (auto frame = frames.next(); !frame.empty(); frame = frames.next()) {
        (*transform)(frame, result);
        checkRange(result, *transform, source->name(), count++);
        rows.writeFrame(result);
    }
    out.complete();
}

}   // namespace kfm::tool
