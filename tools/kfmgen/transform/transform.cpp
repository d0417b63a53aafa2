#include "transform/transform.h"

#include <algorithm>
#include <cmath>

#include "output/bin_frequencies.h"

namespace kfm::tool {
namespace {

// Rows that say their frame would be mixed with those of others.
void checkHop(const SampleSource& source, const Framing& framing) {
    if (source.framed() && framing.hop % framing.length != 0)
        throw UsageError(source.name() + ": it is cut in frames, --hop has to be a multiple of " +
                         std::to_string(framing.length));
}

Framing framingOf(const TransformOptions& options, const FrameTransform& transform) {
    const std::size_t length = transform.sourceSize();
    const std::size_t hop = options.hop > 0 ? options.hop : length;
    if (options.window && transform.name().starts_with("DFTInv"))
        throw UsageError("--window goes with signals, which " + transform.name() +
                         " does not take");
    const std::size_t lead = leadOf(options, length, hop);
    if (options.restorable && options.format != Format::csv)
        throw UsageError("--restorable: only csv has a place for remarks");
    if (options.restorable && hop > length)
        throw UsageError("--restorable: no sample may lie between frames");
    if (options.tail == Tail::drop && (lead > 0 || options.restorable))
        throw UsageError("--tail drop: frames have to reach the end, or samples cannot be "
                         "restored");
    return {length, hop, lead > 0 ? Tail::cover : options.tail, lead};
}

ResultLabels labelsOf(const TransformOptions& options, const FrameTransform& transform,
                      const SampleSource& source, const Framing& framing) {
    ResultLabels labels;
    if (!options.times && !options.frequencies) return labels;
    const double rate = rateOf(options, source);
    if (options.format == Format::raw)
        throw UsageError("--format raw has no place for times and frequencies");
    if (rate == 0) throw UsageError(source.name() + ": its rate is not known; see --rate");
    if (options.times)
        labels.times = {-static_cast<double>(framing.lead) / rate,
                        static_cast<double>(framing.hop) / rate};
    if (options.frequencies)
        labels.frequencies = binFrequencies(transform, options.choice.length, rate);
    return labels;
}

}   // namespace

std::size_t leadOf(const TransformOptions& options, std::size_t length, std::size_t hop) {
    return options.window && hop < length ? length - hop : 0;
}

int rateOf(const TransformOptions& options, const SampleSource& source) {
    if (options.rate > 0) return options.rate;
    return source.rate() > 0 ? source.rate() : source.notes().rate;
}

Demand demandOf(const FrameTransform& transform) {
    return {.complex = transform.sourceForm() != Form::realSignal,
            .single = !transform.doublePrecision(),
            .frame = transform.sourceSize(),
            .bins = transform.sourceForm() == Form::halfSpectrum,
            .taker = transform.name()};
}

void checkRange(std::span<const double> result, const FrameTransform& transform,
                const std::string& name, std::uint64_t frame) {
    if (std::ranges::all_of(result, [](double value) { return std::isfinite(value); })) return;
    throw InputError(
        name + ": results of frame " + std::to_string(frame) + " are too large for " +
        (transform.doublePrecision() ? "double precision" : "single precision; see --precision"));
}

void runTransform(const TransformOptions& options) {
    const std::unique_ptr<FrameTransform> transform = makeTransform(options.choice);
    const Framing framing = framingOf(options, *transform);
    const std::unique_ptr<SampleSource> source = openSamples(options.input, demandOf(*transform));
    checkHop(*source, framing);
    const ResultLabels labels = labelsOf(options, *transform, *source, framing);

    if (!showsOnTerminal(options.output)) source->showProgress();
    OutputFile out(options.output);
    const auto note = [&](const char* what, std::uint64_t number) {
        if (options.restorable && number > 0)
            out.write("# " + std::string(what) + " " + std::to_string(number) + "\n");
    };
    note("rate", rateOf(options, *source));
    const auto writer = resultWriter(out, options.format, transform->resultForm(),
                                     transform->doublePrecision(), labels);
    writer->writeHeader();
    const std::size_t width = valuesPerSample(transform->sourceForm());
    Framer frames(*source, framing, width);
    std::vector<double> windowed, weights;
    if (options.window) weights = window::weights(*options.window, framing.length);
    std::vector<double> result(transform->resultSize() * valuesPerSample(transform->resultForm()));
    std::uint64_t count = 0;
    for (auto frame = frames.next(); !frame.empty(); frame = frames.next()) {
        if (options.window) {
            windowed.assign(frame.begin(), frame.end());
            for (std::size_t i = 0; i < windowed.size(); ++i) windowed[i] *= weights[i / width];
            frame = windowed;
        }
        (*transform)(frame, result);
        checkRange(result, *transform, source->name(), count++);
        writer->writeFrame(result);
    }
    note("samples", frames.samples());
    out.complete();
}

}   // namespace kfm::tool
