// kfmgen: the library at the command line. Exit status 0, 2 when what the user gave is wrong (one
// line on standard error says what), 1 when the output cannot be written.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <limits>

#include "kfmgen.h"
#include "listing.h"
#include "spectrum.h"
#include "transform.h"

namespace kfm::tool {
namespace {

struct TransformOptions {
    std::string input = "-";
    std::string output = "-";
    Choice choice{"", {}, 0, false, kfmScaleNone};
    int hop = 0;   // 0: the length
    Tail tail = Tail::pad;
};

struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

void finish(std::ostream& out, const std::string& name) {
    if (!out.flush()) throw OutputError("cannot write " + name);
}

void runTransform(const TransformOptions& options) {
    const auto transform = makeTransform(options.choice);
    const Samples samples = readSamples(options.input);
    const std::size_t length = transform->frameLength();
    const Framing framing{length, options.hop > 0 ? options.hop : length, options.tail};
    if (options.output == "-") {
        transformFrames(samples, *transform, framing, std::cout);
        return;
    }
    std::ofstream file(options.output);
    if (!file) throw InputError("cannot write " + options.output);
    transformFrames(samples, *transform, framing, file);
    finish(file, options.output);
}

// An option whose value is one of a few words.
template <class Value, class Variable>
void addChoice(CLI::App& command, const std::string& name, Variable& value,
               const std::map<std::string, Value>& words, const std::string& help) {
    std::string list;
    for (const auto& [word, meaning] : words) list += (list.empty() ? "" : "|") + word;
    const auto choose = [&value, words, list](const std::string& word) {
        const auto found = words.find(word);
        if (found == words.end())
            throw CLI::ValidationError("'" + word + "' is none of " + list);
        value = found->second;
    };
    command.add_option_function<std::string>(name, choose, help)->type_name(list);
}

void addTransform(CLI::App& app, TransformOptions& options) {
    CLI::App& command = *app.add_subcommand(
        "transform", "Apply a transform to successive frames of a signal; CSV out");
    command.add_option("input", options.input,
                       "sound file (mono: real, stereo: real and imaginary), text file with a "
                       "sample per line, or - for text on standard input; the inverse real DFT "
                       "takes bins 0 to length/2 of each frame");
    command.add_option("-o,--output", options.output, "CSV file; standard output if not given");
    command.add_option("--family", options.choice.family,
                       "family, see `kfmgen list`; DFTFwd_CToC if not given. With --layout the "
                       "direction of the real DFT: DFTFwd (default) or DFTInv");
    addChoice<SpectrumLayout>(command, "--layout", options.choice.layout,
                                        {{"ccs", SpectrumLayout::ccs},
                                         {"pack", SpectrumLayout::pack},
                                         {"perm", SpectrumLayout::perm}},
                                        "real DFT by the functions for this packed layout");
    command.add_option("--length", options.choice.length, "length of the transform")->required();
    command.add_option("--hop", options.hop,
                       "samples (bins, if bins come in) from frame to frame; the whole frame if "
                       "not given")
        ->check(CLI::Range(1, std::numeric_limits<int>::max()));
    addChoice<int>(command, "--flag", options.choice.flag,
                   {{"none", kfmScaleNone},
                    {"fwd-by-n", kfmScaleFwdByN},
                    {"inv-by-n", kfmScaleInvByN},
                    {"by-sqrt-n", kfmScaleBySqrtN}},
                   "scaling; none if not given");
    addChoice<bool>(command, "--precision", options.choice.doublePrecision,
                    {{"single", false}, {"double", true}}, "single if not given");
    addChoice<Tail>(command, "--tail", options.tail, {{"pad", Tail::pad}, {"drop", Tail::drop}},
                    "last samples that do not fill a frame: pad with zeros (default) or drop");
    command.callback([&options] { runTransform(options); });
}

void addSpectrum(CLI::App& app, std::string& path, double& slice) {
    CLI::App& command =
        *app.add_subcommand("spectrum", "Show the strongest frequencies of a sound over time");
    command.add_option("file", path, "sound file")->required();
    command.add_option("--slice", slice, "seconds per row; fits a screen if not given")
        ->check(CLI::Range(0.01, 3600.0));
    command.callback([&] { showSpectrum(path, slice, std::cout); });
}

void addListings(CLI::App& app, bool& names) {
    app.add_subcommand("info", "Show which build of the library this is")->callback([] {
        printInfo(std::cout);
    });
    CLI::App& list = *app.add_subcommand("list", "Show families, lengths and element types");
    list.add_flag("--names", names, "names of all functions instead");
    list.callback([&names] { names ? printFunctionNames(std::cout) : printFamilies(std::cout); });
}

int complain(std::string message, int status) {
    std::ranges::replace(message, '\n', ' ');
    std::cerr << "kfmgen: " << message << '\n';
    return status;
}

int run(int argc, char** argv) {
    CLI::App app("Signal transforms of short fixed length", "kfmgen");
    TransformOptions transform;
    std::string path;
    double slice = 0;
    bool names = false;
    addListings(app, names);
    addTransform(app, transform);
    addSpectrum(app, path, slice);
    try {
        app.parse(argc, argv);
        if (app.get_subcommands().empty())
            throw InputError("no command; `kfmgen --help` lists them");
        finish(std::cout, "standard output");
        return 0;
    } catch (const CLI::Success& request) {
        return app.exit(request);
    } catch (const CLI::ParseError& error) {
        return complain(error.what(), 2);
    } catch (const InputError& error) {
        return complain(error.what(), 2);
    } catch (const std::exception& error) {
        return complain(error.what(), 1);
    }
}

}   // namespace
}   // namespace kfm::tool

int main(int argc, char** argv) { return kfm::tool::run(argc, argv); }
