// kfmgen: the library at the command line. failure.h tells how a command ends that cannot be done.
#include <signal.h>

#include <iostream>
#include <new>
#include <sstream>

#include "commands/commands.h"
#include "commands/documentation.h"
#include "commands/options.h"
#include "descriptor.h"
#include "kfmgen.h"
#include "output/output_file.h"

namespace kfm::tool {
namespace {

std::string version() {
    const KfmLibraryVersion& library = *kfmgenGetLibVersion();
    return "kfmgen " + std::to_string(library.versionMajor) + "." +
           std::to_string(library.versionMinor);
}

// For those who build and install the program, so not in its help.
void addDocumentation(CLI::App& app, std::ostream& page) {
    CLI::App& command = *app.add_subcommand("documentation")->group("");
    command.add_flag_callback("--man", [&] { printManual(app, version(), page); });
    command.add_flag_callback("--bash", [&] { printBashCompletion(app, page); });
    command.add_flag_callback("--zsh", [&] { printZshCompletion(app, page); });
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
    addListings(app, page);
    addTransform(app);
    addSpectrum(app, page);
    addSpectrogram(app, page);
    addBench(app, page);
    addAccuracy(app, page);
    addDocumentation(app, page);
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
