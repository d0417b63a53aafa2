// The command line of `kfmgen transform`.
#include <limits>
#include <memory>

#include "commands/commands.h"
#include "commands/options.h"
#include "kfmgen.h"
#include "transform/transform.h"

namespace kfm::tool {
namespace {

constexpr int most = std::numeric_limits<int>::max();

void addTransformChoice(CLI::App& command, Choice& choice) {
    command
        .add_option("--family", choice.family,
                    "family, see `kfmgen list`; DFTFwd_CToC if not given. With --layout the "
                    "direction of the real DFT: DFTFwd (default) or DFTInv")
        ->type_name("NAME");
    addChoice<SpectrumLayout>(command, "--layout", choice.layout,
                              {{"ccs", SpectrumLayout::ccs},
                               {"pack", SpectrumLayout::pack},
                               {"perm", SpectrumLayout::perm}},
                              "real DFT by the functions for this packed layout");
    addNumber(command, "--length", choice.length, -most, most, "length of the transform")
        ->required();
    addChoice<int>(command, "--flag", choice.flag,
                   {{"none", kfmScaleNone},
                    {"fwd-by-n", kfmScaleFwdByN},
                    {"inv-by-n", kfmScaleInvByN},
                    {"by-sqrt-n", kfmScaleBySqrtN}},
                   "scaling; none if not given");
    addChoice<bool>(command, "--precision", choice.doublePrecision,
                    {{"single", false}, {"double", true}},
                    "single if not given; results that are too large for it are an error");
}

void addFormat(CLI::App& command, TransformOptions& options) {
    addChoice<Format>(command, "--format", options.format,
                      {{"csv", Format::csv}, {"json", Format::json}, {"raw", Format::raw}},
                      "csv (default): a row per value; json: a line per frame; raw: only the "
                      "values, float or double as --precision says");
    command.add_flag("--times", options.times, "a column with the second at which a frame starts");
    command.add_flag("--frequencies", options.frequencies,
                     "a column with the frequency of a result in Hz");
    addNumber(command, "--rate", options.rate, 1, most,
              "samples per second, for who does not know it from the input");
    addChoice<window::Shape>(command, "--window", options.window,
                             {{"hann", window::hann},
                              {"sqrt-hann", window::rootHann},
                              {"blackman-harris", window::blackmanHarris}},
                             "weighs the samples of a frame. With a hop shorter than the frame "
                             "there are frames before the first sample and behind the last, "
                             "filled with zeros, so that every sample is under as many");
    command.add_flag("--restorable", options.restorable,
                     "with remarks from which --inverse knows the rate and how many samples there "
                     "were; CSV only");
}

// The way back takes what the way there was given.
void addInverse(CLI::App& command, const std::shared_ptr<TransformOptions>& options) {
    CLI::Option* inverse =
        command.add_flag("--inverse")
            ->description(
                "the signal that the input was made of, given the same options; frames that overlap are "
                "added, the window is divided out. Exact but for rounding");
    addNumber(command, "--samples", options->samples, 1, most,
              "how many there were; as the input remarks, or all in the frames, if not given")
        ->needs(inverse);
    command.add_flag("--real", options->realPart, "only the real part of a complex signal")
        ->needs(inverse);
    for (const char* forward : {"--times", "--frequencies", "--restorable", "--tail"})
        inverse->excludes(command.get_option(forward));
    command.callback([options, inverse] {
        inverse->count() > 0 ? runInverse(*options) : runTransform(*options);
    });
}

}   // namespace

void addTransform(CLI::App& app) {
    CLI::App& command =
        *app.add_subcommand("transform", "Transform successive frames of a signal, or back");
    const auto options = std::make_shared<TransformOptions>();
    addInput(command, options->input,
             "sound, or text with a sample per line; standard input if not given or -. The inverse "
             "real DFT takes bins 0 to length/2 of each frame");
    command
        .add_option("-o,--output", options->output,
                    "file, replaced when all is done; standard output if not given or -. "
                    "With --inverse NAME.wav, .aiff, .au or .caf is a sound")
        ->type_name("FILE");
    addTransformChoice(command, options->choice);
    addNumber(command, "--hop", options->hop, 1, most,
              "samples (bins, if bins come in) from frame to frame; the whole frame if not given");
    addChoice<Tail>(command, "--tail", options->tail, {{"pad", Tail::pad}, {"drop", Tail::drop}},
                    "last samples that do not fill a frame: pad with zeros (default) or drop");
    addFormat(command, *options);
    addInverse(command, options);
}

}   // namespace kfm::tool
