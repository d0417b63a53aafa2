// kfmgen: the library at the command line. failure.h tells how a command ends that cannot be done.
#include <signal.h>

#include <iostream>
#include <limits>
#include <new>
#include <sstream>

#include "descriptor.h"
#include "kfmgen.h"
#include "listing.h"
#include "options.h"
#include "output_file.h"
#include "spectrum.h"
#include "transform.h"

namespace kfm::tool {
namespace {

void addTransform(CLI::App& app, TransformOptions& options) {
    CLI::App& command =
        *app.add_subcommand("transform", "Transform successive frames of a signal; CSV out");
    addInput(command, options.input,
             "sound, or text with a sample per line; standard input if not given or -. The inverse "
             "real DFT takes bins 0 to length/2 of each frame");
    command
        .add_option("-o,--output", options.output,
                    "CSV file, replaced when all is done; standard output if not given or -")
        ->type_name("FILE");
    command
        .add_option("--family", options.choice.family,
                    "family, see `kfmgen list`; DFTFwd_CToC if not given. With --layout the "
                    "direction of the real DFT: DFTFwd (default) or DFTInv")
        ->type_name("NAME");
    addChoice<SpectrumLayout>(command, "--layout", options.choice.layout,
                              {{"ccs", SpectrumLayout::ccs},
                               {"pack", SpectrumLayout::pack},
                               {"perm", SpectrumLayout::perm}},
                              "real DFT by the functions for this packed layout");
    constexpr int most = std::numeric_limits<int>::max();
    addNumber(command, "--length", options.choice.length, -most, most, "length of the transform")
        ->required();
    addNumber(command, "--hop", options.hop, 1, most,
              "samples (bins, if bins come in) from frame to frame; the whole frame if not given");
    addChoice<int>(command, "--flag", options.choice.flag,
                   {{"none", kfmScaleNone},
                    {"fwd-by-n", kfmScaleFwdByN},
                    {"inv-by-n", kfmScaleInvByN},
                    {"by-sqrt-n", kfmScaleBySqrtN}},
                   "scaling; none if not given");
    addChoice<bool>(command, "--precision", options.choice.doublePrecision,
                    {{"single", false}, {"double", true}},
                    "single if not given; results that are too large for it are an error");
    addChoice<Tail>(command, "--tail", options.tail, {{"pad", Tail::pad}, {"drop", Tail::drop}},
                    "last samples that do not fill a frame: pad with zeros (default) or drop");
    command.callback([&options] { runTransform(options); });
}

void addSpectrum(CLI::App& app, InputOptions& input, double& slice, std::ostream& out) {
    CLI::App& command =
        *app.add_subcommand("spectrum", "Show the strongest tones of a sound over time");
    addInput(command, input, "sound; standard input if not given or -");
    addNumber(command, "--slice", slice, 0.01, 3600, "seconds per row; fits a screen if not given");
    command.callback([&] { showSpectrum(input, slice, out); });
}

void addListings(CLI::App& app, bool& names, std::ostream& out) {
    app.add_subcommand("info", "Show which build of the library this is")->callback([&out] {
        printInfo(out);
    });
    CLI::App& list = *app.add_subcommand("list", "Show families, lengths and element types");
    list.add_flag("--names", names, "names of all functions instead");
    list.callback([&names, &out] { names ? printFunctionNames(out) : printFamilies(out); });
}

std::string version() {
    const KfmLibraryVersion& library = *kfmgenGetLibVersion();
    return "kfmgen " + std::to_string(library.versionMajor) + "." +
           std::to_string(library.versionMinor);
}

void parse(CLI::App& app, int argc, char** argv, std::ostream& out) {
    try {
        app.parse(argc, argv);
        if (app.get_subcommands().empty())
            throw UsageError("no command; `kfmgen --help` lists them");
    } catch (const CLI::Success& request) {
        app.exit(request, out);
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
}

void run(int argc, char** argv) {
    CLI::App app("Signal transforms of short fixed length", "kfmgen");
    app.require_subcommand(0, 1);   // a file may have the name of a command
    app.set_version_flag("--version", version(), "Show the version and exit");
    app.footer(exitStatusHelp());
    std::ostringstream page;
    TransformOptions transform;
    InputOptions sound;
    double slice = 0;
    bool names = false;
    addListings(app, names, page);
    addTransform(app, transform);
    addSpectrum(app, sound, slice, page);
    for (CLI::App* command : app.get_subcommands({})) foldHelp(*command);
    parse(app, argc, argv, page);

    OutputFile out("-");
    out.write(page.str());
    out.complete();
}

int complain(ExitStatus status, std::string_view message) {
    std::cerr << "kfmgen: " << oneLine(message) << '\n';
    return static_cast<int>(status);
}

int guarded(int argc, char** argv) {
    occupyStandardDescriptors();
    ::signal(SIGXFSZ, SIG_IGN);   // writing fails, which is told
    try {
        run(argc, argv);
        return static_cast<int>(ExitStatus::done);
    } catch (const Failure& failure) {
        return complain(failure.status, failure.what());
    } catch (const std::bad_alloc&) {
        return complain(ExitStatus::tool, "not enough memory");
    } catch (const std::exception& error) {
        return complain(ExitStatus::tool, error.what());
    }
}

}   // namespace
}   // namespace kfm::tool

int main(int argc, char** argv) { return kfm::tool::guarded(argc, argv); }
