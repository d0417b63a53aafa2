#include "pictures/picture.h"

#include <bit>
#include <cmath>
#include <filesystem>

#include "commands/options.h"
#include "numbers.h"
#include "spectrum/page_text.h"

namespace kfm::tool {
namespace {

constexpr int shortest = 64, longest = 65536;   // frames
constexpr int mostChannels = 8;
constexpr std::size_t blockSamples = 4096;

DecibelRange rangeNamed(const std::string& name, const std::string& text) {
    const std::size_t colon = text.find(':');
    const auto least = realNumber(std::string_view(text).substr(0, colon));
    const auto most =
        realNumber(colon == text.npos ? "" : std::string_view(text).substr(colon + 1));
    if (least.trouble || most.trouble || !(least.value < most.value) ||
        most.value - least.value < 1 || std::abs(least.value) > 1000 || most.value > 1000)
        throw UsageError(name + ": " + inQuotes(text) +
                         " is not two levels, at least 1 dB apart, such as -90:0");
    return {least.value, most.value};
}

}   // namespace

void addPicture(CLI::App& command, PictureOptions& options, bool framesWithoutPicture) {
    CLI::Option* output = command.add_option("-o,--output", options.output,
                                             "picture to draw by gnuplot, NAME.png or NAME.svg; "
                                             "without it a page for the terminal");
    output->type_name("FILE");
    const std::string defaultWindow =
        std::string_view(options.window.name) == window::hann.name ? "hann" : "blackman-harris";
    const auto frames = {
        addChoice<window::Shape>(command, "--window", options.window,
                                 {{"hann", window::hann},
                                  {"blackman-harris", window::blackmanHarris},
                                  {"none", window::none}},
                                 "window of the frames; " + defaultWindow + " if not given"),
        addNumber(command, "--length", options.length, shortest, longest,
                  "samples in a frame, a power of two; as fits the rate if not given"),
        command
            .add_option_function<std::string>(
                "--overlap",
                [&options](const std::string& text) {
                    const auto percent = realNumber(text);
                    if (percent.trouble || !(percent.value >= 0 && percent.value <= 99))
                        throw UsageError("--overlap: " + inQuotes(text) + " is not from 0 to 99");
                    options.overlapPercent = percent.value;
                },
                "how much of a frame the next one shares; 75 or more if not given")
            ->type_name("PERCENT")};
    const auto pictureOnly = {
        command
            .add_option_function<std::string>(
                "--range",
                [&options](const std::string& text) {
                    options.range = rangeNamed("--range", text);
                },
                "levels in dB from which to which the picture reaches, such as -90:0; as fits "
                "the sound if not given")
            ->type_name("FROM:TO"),
        command
            .add_option_function<std::string>(
                "--title", [&options](const std::string& text) { options.title = text; },
                "of the picture; the name of the file if not given")
            ->type_name("TEXT")};
    for (CLI::Option* option : pictureOnly) option->needs(output);
    if (!framesWithoutPicture)
        for (CLI::Option* option : frames) option->needs(output);
}

PictureKind pictureKind(const std::string& output) {
    const std::string suffix = std::filesystem::path(output).extension();
    if (suffix == ".png") return PictureKind::png;
    if (suffix == ".svg") return PictureKind::svg;
    throw UsageError(displayed(output) + ": the name of a picture ends in .png or .svg");
}

std::unique_ptr<SampleSource> openSound(InputOptions& input, const std::string& taker) {
    if (input.channels.use == Channels::Use::unset) input.channels.use = Channels::Use::each;
    auto source = openSamples(input, {.taker = taker});
    if (source->rate() == 0) throw InputError(source->name() + ": is text, not a sound");
    if (input.channels.use == Channels::Use::each && source->channels() > mostChannels)
        throw InputError(source->name() + ": " + std::to_string(source->channels()) +
                         " channels are more than can be shown together: choose one by --channel");
    source->showProgress();
    return source;
}

std::string channelWords(const SampleSource& source, const Channels& chosen) {
    if (source.channels() == 1) return "one channel";
    const std::string all = std::to_string(source.channels());
    if (chosen.use == Channels::Use::mix) return "mean of " + all + " channels";
    if (chosen.use == Channels::Use::each) return all + " channels";
    return "channel " + std::to_string(chosen.number) + " of " + all;
}

FrameShape frameShape(const PictureOptions& options, const SampleSource& source, std::size_t frame,
                      std::size_t columns) {
    const std::size_t length = options.length > 0 ? options.length : frame;
    if (!std::has_single_bit(length))
        throw UsageError("--length: " + std::to_string(length) + " is no power of two such as " +
                         std::to_string(std::bit_floor(length)) + " or " +
                         std::to_string(std::bit_ceil(length)));
    if (!options.overlapPercent)
        return {length, pictureHop(source.count().value_or(0), length, columns), options.window};
    const double step = (1 - *options.overlapPercent / 100) * static_cast<double>(length);
    return {length, static_cast<std::size_t>(std::max(1L, std::lround(step))), options.window};
}

std::string frameWords(const FrameShape& shape, double rate) {
    return format("%s window, %s (%.3g ms), every %.3g ms", shape.window.name,
                  samples(shape.length).c_str(), 1e3 * static_cast<double>(shape.length) / rate,
                  1e3 * static_cast<double>(shape.hop) / rate);
}

Caption captionOf(const PictureOptions& options, const SampleSource& source, const Channels& chosen,
                  const FrameShape& shape, std::size_t channels, double seconds) {
    Caption caption;
    const std::string file = std::filesystem::path(source.name()).filename();
    caption.title = options.title.value_or(file);
    caption.details = format("%.*f s at %d Hz, ", decimals(seconds) + 2, seconds, source.rate()) +
                      channelWords(source, chosen) + "; " + frameWords(shape, source.rate());
    for (std::size_t i = 1; i <= channels; ++i)
        caption.channels.push_back("Channel " + std::to_string(i));
    return caption;
}

std::uint64_t readChannels(SampleSource& source, std::size_t channels, const TakeBlock& take) {
    std::vector<double> block(blockSamples * channels), one(blockSamples);
    std::uint64_t total = 0;
    while (const std::size_t count = source.read(block)) {
        for (std::size_t channel = 0; channel < channels; ++channel) {
            for (std::size_t n = 0; n < count; ++n) one[n] = block[n * channels + channel];
            take(channel, std::span(one).first(count));
        }
        total += count;
    }
    return total;
}

}   // namespace kfm::tool
