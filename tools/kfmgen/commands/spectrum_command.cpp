// The command line of `kfmgen spectrum`.
#include <memory>

#include "commands/commands.h"
#include "commands/options.h"
#include "spectrum.h"

namespace kfm::tool {

void addSpectrum(CLI::App& app, std::ostream& page) {
    struct Options {
        InputOptions input;
        SpectrumOptions spectrum;
    };
    CLI::App& command =
        *app.add_subcommand("spectrum", "Show the tones of a sound, or draw its spectrum");
    const auto options = std::make_shared<Options>();
    options->spectrum.picture.window = window::blackmanHarris;
    addInput(command, options->input, "sound; standard input if not given or -");
    CLI::Option* slice = addNumber(command, "--slice", options->spectrum.sliceSeconds, 0.01, 3600,
                                   "seconds per row of the page; fits a screen if not given");
    addPicture(command, options->spectrum.picture, false);
    CLI::Option* output = command.get_option("--output")->excludes(slice);
    addChoice<bool>(command, "--frequency", options->spectrum.logarithmic,
                    {{"log", true}, {"linear", false}},
                    "frequency axis of the picture; log if not given")
        ->needs(output);
    command.callback([options, &page] {
        const SpectrumOptions& spectrum = options->spectrum;
        if (spectrum.picture.output.empty())
            showSpectrum(options->input, spectrum.sliceSeconds, page);
        else drawSpectrum(options->input, spectrum);
    });
}

}   // namespace kfm::tool
