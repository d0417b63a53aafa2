// The command lines of `kfmgen bench` and `kfmgen accuracy`.
#include <climits>
#include <memory>

#include "commands/commands.h"
#include "commands/options.h"
#include "measure/accuracy.h"
#include "measure/report.h"
#include "measure/speed.h"
#include "numbers.h"

namespace kfm::tool {
namespace {

std::pair<int, int> lengthsNamed(const std::string& text) {
    const std::size_t dash = text.find('-');
    const auto first = wholeNumber(std::string_view(text).substr(0, dash));
    const auto last =
        dash == text.npos ? first : wholeNumber(std::string_view(text).substr(dash + 1));
    if (first.trouble || last.trouble || first.value < 1 || last.value < first.value ||
        last.value > INT_MAX)
        throw UsageError("--lengths: " + inQuotes(text) +
                         " is no length and no range such as 8-16");
    return {static_cast<int>(first.value), static_cast<int>(last.value)};
}

// Of the planned lengths, which have no end.
SubjectChoice upTo(int longestPlanned) {
    SubjectChoice choice;
    choice.longestPlanned = longestPlanned;
    return choice;
}

// What both commands take.
void addReport(CLI::App& command, SubjectChoice& choice, ReportOptions& report) {
    std::map<std::string, std::string> families;
    for (const std::string& name : measuredFamilies()) families[name] = name;
    addChoice<std::string>(command, "--family", choice.family, families,
                           "one family, length by length; a summary of all if not given")
        ->type_name("FAMILY");
    addChoice<bool>(command, "--precision", choice.doublePrecision,
                    {{"single", false}, {"double", true}}, "both if not given");
    command
        .add_option_function<std::string>(
            "--lengths",
            [&choice](const std::string& text) { choice.lengths = lengthsNamed(text); },
            "one length or a range such as 8-16; all if not given")
        ->type_name("FROM-TO");
    addChoice<Format>(command, "--format", report.format,
                      {{"csv", Format::csv}, {"json", Format::json}},
                      "a row for each function, in place of the page");
    command
        .add_option("-o,--output", report.picture,
                    "picture to draw by gnuplot as well, NAME.png or NAME.svg")
        ->type_name("FILE");
    command
        .add_option(
            "--fftw-folder", report.peerFolders,
            "where libfftw3.so.3 and libfftw3f.so.3 are; as the system searches them if not "
            "given. Of several folders the faster plan counts")
        ->type_name("FOLDER")
        ->allow_extra_args(false);
}

}   // namespace

void addBench(CLI::App& app, std::ostream& page) {
    struct Options {
        SubjectChoice choice = upTo(8192);
        ReportOptions report;
        int batches = 20, rounds = 2;
    };
    CLI::App& command =
        *app.add_subcommand("bench", "Measure times of the transforms, beside FFTW's");
    const auto options = std::make_shared<Options>();
    addReport(command, options->choice, options->report);
    addNumber(command, "--batches", options->batches, 1, 100000,
              "of calls to a function, of which the fastest counts; 20 if not given");
    addNumber(command, "--rounds", options->rounds, 1, 1000,
              "through all functions, of which the faster one counts; 2 if not given");
    command.callback([options, &page] {
        report(options->report, speedMeasure, page, [&] {
            return measureSpeed(subjects(options->choice), options->batches, options->rounds);
        });
    });
}

void addAccuracy(CLI::App& app, std::ostream& page) {
    struct Options {
        SubjectChoice choice = upTo(1024);
        ReportOptions report;
        int signals = 50;
    };
    CLI::App& command =
        *app.add_subcommand("accuracy", "Measure errors of the transforms, beside FFTW's");
    const auto options = std::make_shared<Options>();
    addReport(command, options->choice, options->report);
    addNumber(command, "--signals", options->signals, 1, 1000000,
              "random signals for each function, fewer for lengths above 64; 50 if not given");
    command.callback([options, &page] {
        report(options->report, accuracyMeasure, page,
               [&] { return measureAccuracy(subjects(options->choice), options->signals); });
    });
}

}   // namespace kfm::tool
