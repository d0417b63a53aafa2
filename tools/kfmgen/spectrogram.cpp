#include "spectrogram.h"

#include "output/output_file.h"
#include "pictures/gnuplot.h"
#include "spectrum/page_text.h"
#include "spectrum/spectrogram_page.h"

namespace kfm::tool {
namespace {

struct Analysed {
    std::vector<std::unique_ptr<Spectrogram>> channels;
    double seconds = 0;
};

Analysed analysed(SampleSource& source, std::size_t channels, const FrameShape& shape,
                  std::span<const double> edges, std::size_t columns) {
    Analysed result;
    for (std::size_t i = 0; i < channels; ++i)
        result.channels.push_back(
            std::make_unique<Spectrogram>(source.rate(), shape, edges, columns));
    const std::uint64_t count =
        readChannels(source, channels, [&](std::size_t channel, std::span<const double> samples) {
            result.channels[channel]->add(samples);
        });
    for (auto& channel : result.channels) channel->finish();
    result.seconds = static_cast<double>(count) / source.rate();
    return result;
}

// Two bins of a frame lie as close as one of its window's can be told from the next.
std::size_t plotRowsOf(std::size_t frame) { return std::min(plotRows, frame / 2); }

void draw(SampleSource& source, const Channels& chosen, std::size_t channels,
          const PictureOptions& options) {
    const PictureKind kind = pictureKind(options.output);
    const Gnuplot gnuplot(displayed(options.output));
    const double highest = source.rate() / 2.0;
    const FrameShape shape =
        frameShape(options, source, pictureFrameLength(source.rate()), plotColumns);
    const std::vector<double> edges = equalBands(0, highest, plotRowsOf(shape.length));
    OutputFile out(options.output);
    const Analysed sound = analysed(source, channels, shape, edges, plotColumns);
    std::vector<const Spectrogram*> panels;
    for (const auto& channel : sound.channels) panels.push_back(channel.get());
    out.write(gnuplot.draw(
        spectrogramScript(kind, captionOf(options, source, chosen, shape, channels, sound.seconds),
                          panels, highest, options.range)));
    out.complete();
}

void print(SampleSource& source, const Channels& chosen, std::size_t channels,
           const PictureOptions& options, std::ostream& page) {
    const double rate = source.rate();
    const FrameShape shape = frameShape(options, source, pictureFrameLength(rate), pageColumns);
    const std::vector<double> edges = pageBands(rate, shape.length);
    const Analysed sound = analysed(source, channels, shape, edges, pageColumns);
    page << cut(source.name()) << '\n'
         << format("  sound    %.*f s at %.0f Hz; %s\n", decimals(sound.seconds) + 2, sound.seconds,
                   rate, channelWords(source, chosen).c_str())
         << "  frames   " << frameWords(shape, rate) << '\n'
         << format("  levels   a shade is %g dB, from the loudest down: ", dbPerShade)
         << shadesFromLoudest() << '\n';
    for (std::size_t i = 0; i < channels; ++i) {
        if (channels > 1) page << "\nchannel " << i + 1 << '\n';
        printSpectrogram(*sound.channels[i], edges, page);
    }
}

}   // namespace

void showSpectrogram(const InputOptions& input, const PictureOptions& picture, std::ostream& page) {
    InputOptions chosen = input;
    const auto source = openSound(chosen, "spectrogram");
    const std::size_t channels =
        chosen.channels.use == Channels::Use::each ? source->channels() : 1;
    if (picture.output.empty()) print(*source, chosen.channels, channels, picture, page);
    else draw(*source, chosen.channels, channels, picture);
}

}   // namespace kfm::tool
