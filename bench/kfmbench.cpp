// Times the functions of the registry, each next to FFTW's best plan or a plain loop for the
// same transform.
#include <CLI/CLI.hpp>
#include <memory>
#include <optional>

#include "ours.h"
#include "result.h"
#include "run.h"
#include "selection.h"
#include "sides.h"
#include "timer.h"

namespace kfm::bench {
namespace {

struct Options {
    Selection selection;
    Run run;
    Sides sides;
    Manner manner;
};

void addOptions(CLI::App& app, Options& options) {
    options.selection.addFamily(app);
    options.selection.addElement(app);
    options.selection.addLengths(app);
    options.run.addOptions(app);
    app.add_flag("--unaligned", options.manner.unaligned, "start our arrays 8 bytes off alignment");
    app.add_flag("--in-place", options.manner.inPlace, "let our destination be our source");
    app.add_flag("--no-buffer", options.manner.noBuffer,
                 "let functions allocate their work buffers");
    options.sides.addOptions(app);
}

KfmStatus doNothing(const void*, void*, int) { return kfmOk; }

void measureInPlace(Result& result, void (*other)(), const Options& options) {
    Manner manner = options.manner;
    manner.inPlace = true;
    const Arrays arrays(*result.function, manner);
    Subject mine(arrays.repeat(result.function->address)), theirs(arrays.repeat(other));
    Subject* const both[] = {&mine, &theirs};
    runAgainst(theirs, both, options.run.batches);
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
        runAgainst(*other, subjects, options.run.batches);
        result.otherNs = other->minimum();
        measureInPlace(result, address, options);
    } else {
        runInterleaved(subjects, options.run.batches);
    }
    result.ns = mine.minimum();
    result.medianNs = mine.median();
    result.cycleNs = cycle.minimum();
    if (peer) result.peerNs = peer->minimum();
    return result;
}

std::vector<Result> measureAll(const OtherLibrary* other, const Options& options) {
    const OpCountTable counts = readOpCounts(KFM_OP_COUNTS);
    std::vector<Result> results = options.run.measureAll(
        options.selection.functions(),
        [&](const registry::Function& function) { return measure(function, other, options); });
    for (Result& result : results) {
        const registry::Function& function = *result.function;
        const registry::Family& family = *registry::findFamily(function.family);
        const std::string kernels(family.kernelSource);
        const auto row = counts.find({kernels, function.length, function.element});
        if (family.byOrder)
            result.counts =
                countsOfOrder(function.length, *registry::findElement(function.element));
        if (row != counts.end()) result.counts = row->second;
    }
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

}   // namespace
}   // namespace kfm::bench

int main(int argc, char** argv) try {
    using namespace kfm::bench;
    Options options;
    CLI::App app("Times the transforms against FFTW's.");
    addOptions(app, options);
    CLI11_PARSE(app, argc, argv);
    const auto other = options.sides.open();
    const PinnedToCore pinned(options.run.core);
    printClock();
    options.run.report(measureAll(other.get(), options));
} catch (const std::exception& error) {
    std::fprintf(stderr, "kfmbench: %s\n", error.what());
    return 1;
}
