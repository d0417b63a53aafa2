// Times the functions of the registry, each next to FFTW's best plan or a plain loop for the
// same transform.
#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>

#include "ours.h"
#include "result.h"
#include "selection.h"
#include "sides.h"
#include "timer.h"

namespace kfm::bench {
namespace {

struct Options {
    Selection selection;
    int batches = 40, rounds = 3;
    Sides sides;
    Manner manner;
    bool summary = false;
    std::string csv;
    int core = lastCore();
};

void addOptions(CLI::App& app, Options& options) {
    options.selection.addFamily(app);
    options.selection.addElement(app);
    options.selection.addLengths(app);
    app.add_option("--batches", options.batches, "timed batches of each function")
        ->check(CLI::Range(1, 100000))->capture_default_str();
    app.add_option("--rounds", options.rounds,
                   "how often to go through all functions; of each side the fastest round counts")
        ->check(CLI::Range(1, 1000))->capture_default_str();
    app.add_flag("--unaligned", options.manner.unaligned, "start our arrays 8 bytes off alignment");
    app.add_flag("--in-place", options.manner.inPlace, "let our destination be our source");
    app.add_flag("--no-buffer", options.manner.noBuffer,
                 "let functions allocate their work buffers");
    app.add_option("--csv", options.csv, "write the CSV to this file");
    app.add_flag("--summary", options.summary, "print a summary; without --csv, instead of it");
    options.sides.addOptions(app);
    app.add_option("--core", options.core, "processor to run on")->capture_default_str();
}

KfmStatus doNothing(const void*, void*, int) { return kfmOk; }

PeerPlan peerOf(const registry::Function& function) {
    return registry::findFamily(function.family)->byOrder ? plainLoop(function)
                                                          : fftwPlan(function);
}

void measureInPlace(Result& result, void (*other)(), const Options& options) {
    Manner manner = options.manner;
    manner.inPlace = true;
    const Arrays arrays(*result.function, manner);
    Subject mine(arrays.repeat(result.function->address)), theirs(arrays.repeat(other));
    Subject* const both[] = {&mine, &theirs};
    runAgainst(theirs, both, options.batches);
    result.inPlaceNs = mine.minimum();
    result.otherInPlaceNs = theirs.minimum();
}

// The clock takes its turns too: its rate may differ from one function to the next.
Result measure(const registry::Function& function, const OtherLibrary* library,
               const Options& options) {
    const Arrays arrays(function, options.manner);
    Subject mine(arrays.repeat(function.address)), cycle = cycleSubject();
    std::vector<Subject*> subjects = {&mine, &cycle};
    Result result;
    result.function = &function;
    result.vectorBits = registry::loadedLibrary().vectorBits;
    std::optional<Subject> peer, other;
    if (const PeerPlan plan = options.sides.withoutPeers ? PeerPlan() : peerOf(function)) {
        subjects.push_back(&peer.emplace(plan.repeat));
        result.peer = plan.name;
    }
    if (library) {
        const auto address = library->find<void()>(function.name);
        subjects.push_back(&other.emplace(arrays.repeat(address)));
        runAgainst(*other, subjects, options.batches);
        result.otherNs = other->minimum();
        measureInPlace(result, address, options);
    } else {
        runInterleaved(subjects, options.batches);
    }
    result.ns = mine.minimum();
    result.medianNs = mine.median();
    result.cycleNs = cycle.minimum();
    if (peer) result.peerNs = peer->minimum();
    return result;
}

std::vector<Result> measureAll(const OtherLibrary* other, const Options& options) {
    const OpCountTable counts = readOpCounts(KFM_OP_COUNTS);
    std::vector<Result> results;
    for (const registry::Function* function : options.selection.functions()) {
        Result& result = results.emplace_back(measure(*function, other, options));
        const registry::Family& family = *registry::findFamily(function->family);
        const std::string kernels(family.kernelSource);
        const auto row = counts.find({kernels, function->length, function->element});
        if (family.byOrder)
            result.counts = countsOfOrder(function->length,
                                          *registry::findElement(function->element));
        if (row != counts.end()) result.counts = row->second;
    }
    // A neighbour's work can last longer than all batches of a function.
    for (int round = 1; round < options.rounds; ++round)
        for (Result& result : results) result.keepFaster(measure(*result.function, other, options));
    return results;
}

void printClock() {
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
    const auto other = options.sides.open();
    const PinnedToCore pinned(options.core);
    printClock();
    report(options, measureAll(other.get(), options));
} catch (const std::exception& error) {
    std::fprintf(stderr, "kfmbench: %s\n", error.what());
    return 1;
}
