// Times the functions of the registry, each next to FFTW's best plan or a plain loop for the
// same transform.
#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>

#include "peer.h"
#include "registry/loaded_library.h"
#include "result.h"
#include "selection.h"
#include "signals.h"
#include "timer.h"

namespace kfm::bench {
namespace {

struct Options {
    Selection selection;
    int batches = 100;
    bool unaligned = false, inPlace = false, noBuffer = false, summary = false;
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
    app.add_flag("--no-buffer", options.noBuffer, "let functions allocate their work buffers");
    app.add_option("--csv", options.csv, "write the CSV to this file");
    app.add_flag("--summary", options.summary, "print a summary; without --csv, instead of it");
    app.add_option("--fftw-folder", options.peerFolder, "folder of the FFTW libraries");
    app.add_option("--core", options.core, "processor to run on")->capture_default_str();
}

KfmStatus doNothing(const void*, void*, int) { return kfmOk; }

// In place every call transforms the last result. Unscaled it grows to infinity, which costs
// nothing, and never vanishes into denormal numbers, which would.
template <class... Further>
std::function<void(long)> repeatUnscaled(const registry::Function& function,
                                         std::shared_ptr<const Signals> signals,
                                         Further... further) {
    const auto transform =
        reinterpret_cast<KfmStatus (*)(const void*, void*, int, Further...)>(function.address);
    if (transform(signals->source(), signals->destination(), kfmScaleNone, further...) != kfmOk)
        throw std::runtime_error(std::string(function.name) + " fails");
    return repeatCall(transform, signals, kfmScaleNone, further...);
}

std::function<void(long)> ours(const registry::Function& function, const Options& options) {
    const registry::Family& family = *registry::findFamily(function.family);
    const registry::Element& element = *registry::findElement(function.element);
    const int samples = static_cast<int>(family.samples(function.length));
    const auto signals = std::make_shared<Signals>(samples, element, options.unaligned,
                                                   options.inPlace);
    if (!family.byOrder) return repeatUnscaled(function, signals);
    if (options.noBuffer) return repeatUnscaled(function, signals, static_cast<Kfm8u*>(nullptr));
    // Twice the signal is more than any order asks for.
    const std::shared_ptr<void> buffer(std::aligned_alloc(64, (2 * samples + 8) * sizeof(double)),
                                       &std::free);
    return [buffer, repeat = repeatUnscaled(function, signals, static_cast<Kfm8u*>(buffer.get()))](
               long calls) { repeat(calls); };
}

// The clock takes its turns too: its rate may differ from one function to the next.
Result measure(const registry::Function& function, const Options& options) {
    Subject mine(ours(function, options)), cycle = cycleSubject();
    std::vector<Subject*> subjects = {&mine, &cycle};
    std::optional<Subject> peer;
    const bool byOrder = registry::findFamily(function.family)->byOrder;
    if (auto repeat = byOrder ? plainLoop(function) : fftwPlan(function).repeat)
        subjects.push_back(&peer.emplace(std::move(repeat)));
    runInterleaved(subjects, options.batches);
    Result result{&function, mine.minimum(), mine.median(), {}, {}, cycle.minimum()};
    if (peer) result.peerNs = peer->minimum();
    return result;
}

std::vector<Result> measureAll(const Options& options) {
    const OpCountTable counts = readOpCounts(KFM_OP_COUNTS);
    std::vector<Result> results;
    for (const registry::Function* function : options.selection.functions()) {
        Result& result = results.emplace_back(measure(*function, options));
        const registry::Family& family = *registry::findFamily(function->family);
        const std::string kernels(family.kernelSource);
        const auto row = counts.find({kernels, function->length, function->element});
        if (family.byOrder)
            result.counts = countsOfOrder(function->length,
                                          *registry::findElement(function->element));
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
    const registry::LoadedLibrary& library = registry::loadedLibrary();
    std::fprintf(stderr, "%s: vectors of %d bits\nclock %.3f GHz, empty call %.2f ns\n",
                 library.file.c_str(), library.vectorBits, 1 / cycle.minimum(), call.minimum());
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
