// The command line of `kfmgen transform`.
#include <limits>
#include <memory>

#include "commands.h"
#include "kfmgen.h"
#include "options.h"
#include "transform.h"

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

}   // namespace

void addTransform(CLI::App& app) {
    CLI::App& command =
        *app.add_subcommand("transform", "Transform successive frames of a signal; CSV out");
    const auto options = std::make_shared<TransformOptions>();
    addInput(command, options->input,
             "sound, or text with a sample per line; standard input if not given or -. The inverse "
             "real DFT takes bins 0 to length/2 of each frame");
    command
        .add_option("-o,--output", options->output,
                    "CSV file, replaced when all is done; standard output if not given or -")
        ->type_name("FILE");
    addTransformChoice(command, options->choice);
    addNumber(command, "--hop", options->hop, 1, most,
              "samples (bins, if bins come in) from frame to frame; the whole frame if not given");
    addChoice<Tail>(command, "--tail", options->tail, {{"pad", Tail::pad}, {"drop", Tail::drop}},
                    "last samples that do not fill a frame: pad with zeros (default) or drop");
    command.callback([options] { runTransform(*options); });
}

}   // namespace kfm::tool
