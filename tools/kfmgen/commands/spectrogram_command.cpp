// The command line of `kfmgen spectrogram`.
#include <memory>

#include "commands/commands.h"
#include "commands/options.h"
#include "spectrogram.h"

namespace kfm::tool {

void addSpectrogram(CLI::App& app, std::ostream& page) {
    struct Options {
        InputOptions input;
        PictureOptions picture;
    };
    CLI::App& command =
        *app.add_subcommand("spectrogram", "Show the levels of a sound over time and frequency");
    const auto options = std::make_shared<Options>();
    addInput(command, options->input, "sound; standard input if not given or -");
    addPicture(command, options->picture, true);
    command.callback([options, &page] { showSpectrogram(options->input, options->picture, page); });
}

}   // namespace kfm::tool
