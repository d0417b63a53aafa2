#include "spectrum.h"

#include <vector>

#include "output/output_file.h"
#include "pictures/gnuplot.h"
#include "spectrum/analysis.h"
#include "spectrum/page.h"

namespace kfm::tool {
namespace {

constexpr std::size_t blockSamples = 4096;

// Lower ones are cut from an axis of ratios: nobody hears them.
double lowestOf(const FrequencyGrid& grid) {
    return std::max(std::min(10.0, grid.highest() / 1000), grid.step() / 2);
}

}   // namespace

void showSpectrum(const InputOptions& input, double sliceSeconds, std::ostream& out) {
    InputOptions one = input;
    if (one.channels.use == Channels::Use::unset) one.channels.use = Channels::Use::mix;
    const auto source = openSamples(one, {.taker = "spectrum"});
    if (source->rate() == 0) throw InputError(source->name() + ": is text, not a sound");
    source->showProgress();

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

void drawSpectrum(const InputOptions& input, const SpectrumOptions& options) {
    const PictureOptions& picture = options.picture;
    const PictureKind kind = pictureKind(picture.output);
    const Gnuplot gnuplot(displayed(picture.output));
    InputOptions chosen = input;
    const auto source = openSound(chosen, "spectrum");
    const double rate = source->rate();
    const std::size_t channels =
        chosen.channels.use == Channels::Use::each ? source->channels() : 1;
    PictureOptions quarters = picture;
    if (!quarters.overlapPercent) quarters.overlapPercent = 75;
    const FrameShape shape = frameShape(quarters, *source, frameLength(rate), plotColumns);
    OutputFile out(picture.output);

    std::vector<PowerSpectrum> spectra(channels);
    std::vector<std::unique_ptr<FrameStream>> streams;
    for (PowerSpectrum& spectrum : spectra)
        streams.push_back(std::make_unique<FrameStream>(shape, [&spectrum](const Frame& frame) {
            spectrum.add(frame.powers, static_cast<double>(frame.samples.size()));
        }));
    const std::uint64_t count =
        readChannels(*source, channels, [&](std::size_t channel, std::span<const double> samples) {
            streams[channel]->add(samples);
        });
    for (auto& stream : streams) stream->finish();

    const FrequencyGrid grid{rate, shape.length, shape.length};
    const FrequencyAxis axis{options.logarithmic, options.logarithmic ? lowestOf(grid) : 0,
                             grid.highest()};
    out.write(gnuplot.draw(spectrumScript(kind,
                                          captionOf(picture, *source, chosen.channels, shape,
                                                    channels, static_cast<double>(count) / rate),
                                          spectra, grid, axis, picture.range)));
    out.complete();
}

}   // namespace kfm::tool
