// Times the functions of the registry, each next to FFTW's best plan for the same transform.
#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>

#include "peer.h"
#include "result.h"
#include "selection.h"
#include "signals.h"
#include "timer.h"

namespace kfm::bench {
namespace {

struct Options {
    Selection selection;
    int batches = 100;
    bool unaligned = false, inPlace = false, summary = false;
    std::string csv, peerFolder;
    int core = lastCore();
};

void addOptions(CLI::App& app, Options& options) {
    options.selection.addFamily(app);
    options.selection.addElement(app);
    options.selection.addLengths(app);
    app.add_option("--batches", options.batches, "timed batches of each function")
        ->check(CLI::Range(1, 100000))->capture_default_str();
    app.add_flag("--unaligned", options.unaligned, "start our arrays 8 bytes off alignment");
    app.add_flag("--in-place", options.inPlace, "let our destination be our source");
    app.add_option("--csv", options.csv, "write the CSV to this file");
    app.add_flag("--summary", options.summary, "print a summary; without --csv, instead of it");
    app.add_option("--fftw-folder", options.peerFolder, "folder of the FFTW libraries");
    app.add_option("--core", options.core, "processor to run on")->capture_default_str();
}

KfmStatus doNothing(const void*, void*, int) { return kfmOk; }

std::function<void(long)> ours(const registry::Function& function, const Options& options) {
    const auto transform = reinterpret_cast<Transform>(function.address);
    const auto signals = std::make_shared<Signals>(
        function.length, *registry::findElement(function.element), options.unaligned,
        options.inPlace);
    // In place every call transforms the last result. Unscaled it grows to infinity, which costs
    // nothing, and never vanishes into denormal numbers, which would.
    if (transform(signals->source(), signals->destination(), kfmScaleNone) != kfmOk)
        throw std::runtime_error(std::string(function.name) + " fails");
    return repeatCall(transform, signals, kfmScaleNone);
}

// The clock takes its turns too: its rate may differ from one function to the next.
Result measure(const registry::Function& function, const Options& options) {
    Subject mine(ours(function, options)), cycle = cycleSubject();
    std::vector<Subject*> subjects = {&mine, &cycle};
    std::optional<Subject> peer;
    if (auto repeat = peerOf(function)) subjects.push_back(&peer.emplace(std::move(repeat)));
    runInterleaved(subjects, options.batches);
    Result result{&function, mine.minimum(), mine.median(), {}, {}, cycle.minimum()};
    if (peer) result.peerNs = peer->minimum();
    return result;
}

std::vector<Result> measureAll(const Options& options) {
    const OpCountTable counts = readOpCounts(KFM_OP_COUNTS);
    std::vector<Result> results;
    for (const registry::Function& function : registry::functions()) {
        if (function.length == 0 || !options.selection.hasFamily(function.family) ||
            !options.selection.hasElement(function.element) ||
            !options.selection.hasLength(function.length))
            continue;
        Result& result = results.emplace_back(measure(function, options));
        const std::string kernels(registry::findFamily(function.family)->kernelSource);
        const auto row = counts.find({kernels, function.length, function.element});
        if (row != counts.end()) result.counts = row->second;
    }
    return results;
}

void printConditions() {
    // Through a variable, as the functions are called; nothing of it is subtracted anywhere.
    const volatile Transform empty = doNothing;
    Subject call(repeatCall(empty, std::make_shared<Signals>(2, *registry::findElement("64fc")),
                            kfmScaleNone));
    Subject cycle = cycleSubject();
    Subject* const both[] = {&call, &cycle};
    runInterleaved(both, 20);
    std::fprintf(stderr, "clock %.3f GHz, empty call %.2f ns\n", 1 / cycle.minimum(),
                 call.minimum());
}

void report(const Options& options, const std::vector<Result>& results) {
    if (!options.csv.empty()) {
        std::ofstream file(options.csv);
        writeCsv(file, results);
        if (!file.flush()) throw std::runtime_error("cannot write " + options.csv);
    } else if (!options.summary) {
        writeCsv(std::cout, results);
    }
    if (options.summary) writeSummary(std::cout, results);
}

}   // namespace
}   // namespace kfm::bench

int main(int argc, char** argv) try {
    using namespace kfm::bench;
    Options options;
    CLI::App app("Times the transforms against FFTW's.");
    addOptions(app, options);
    CLI11_PARSE(app, argc, argv);
    setPeerFolder(options.peerFolder);
    const PinnedToCore pinned(options.core);
    printConditions();
    report(options, measureAll(options));
} catch (const std::exception& error) {
    std::fprintf(stderr, "kfmbench: %s\n", error.what());
    return 1;
}
