#include "spectrum.h"

#include <vector>

#include "spectrum/analysis.h"
#include "spectrum/page.h"

namespace kfm::tool {
namespace {

constexpr std::size_t blockSamples = 4096;

std::string channelWords(const SampleSource& source, const Channels& chosen) {
    if (source.channels() == 1) return "one channel";
    const std::string all = std::to_string(source.channels());
    if (chosen.use == Channels::Use::mix) return "mean of " + all + " channels";
    return "channel " + std::to_string(chosen.number) + " of " + all;
}

}   // namespace

void showSpectrum(const InputOptions& input, double sliceSeconds, std::ostream& out) {
    InputOptions one = input;
    if (one.channels.use == Channels::Use::unset) one.channels.use = Channels::Use::mix;
    const auto source = openSamples(one, {.taker = "spectrum"});
    if (source->rate() == 0) throw InputError(source->name() + ": is text, not a sound");

    SpectrumPage page;
    SpectrumAnalysis analysis(source->rate(), sliceSeconds,
                              [&](const Slice& slice, const FrequencyGrid& grid) {
                                  page.addRow(slice, grid);
                              });
    std::vector<double> block(blockSamples);
    while (const std::size_t count = source->read(block))
        analysis.add(std::span(block).first(count));
    analysis.finish();
    page.print({source->name(), channelWords(*source, one.channels)}, analysis.whole(),
               analysis.grid(), analysis.sliceSeconds(), out);
}

}   // namespace kfm::tool
