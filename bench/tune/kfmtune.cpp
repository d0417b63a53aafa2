// The off-line choice of schedules. For every kernel: make all candidates, make sure that they
// compute the same bits, time them, and put the fastest into the committed table, from where every
// build takes it. Building and timing never overlap.
#include <CLI/CLI.hpp>
#include <cstring>
#include <set>

#include "contest.h"
#include "schedule_table.h"
#include "selection.h"
#include "signals.h"
#include "timer.h"
#include "workshop.h"

namespace kfm::tune {
namespace {

struct Options {
    bench::Selection selection;
    std::string target = KFM_TARGET;
    std::filesystem::path sources = KFM_SOURCES;
    int batches = 10;
    int core = bench::lastCore();
};

void requireSameBits(const std::vector<Candidate>& candidates, const bench::Signals& signals,
                     std::size_t bytes) {
    const auto output = static_cast<char*>(signals.destination());
    std::vector<char> expected;
    for (const Candidate& candidate : candidates) {
        std::memset(output, 0x99, bytes);
        candidate.function(signals.source(), output, kfmScaleNone);
        if (expected.empty()) expected.assign(output, output + bytes);
        if (std::memcmp(output, expected.data(), bytes) != 0)
            throw std::runtime_error("schedule " + candidate.schedule + " changes results");
    }
}

// The index of a schedule among the candidates, or -1.
int indexOf(const std::vector<Candidate>& candidates, const std::string& schedule) {
    const auto found = std::ranges::find(candidates, schedule, &Candidate::schedule);
    return found == candidates.end() ? -1 : static_cast<int>(found - candidates.begin());
}

std::string fastest(const std::vector<Candidate>& candidates, const std::string& current,
                    std::shared_ptr<const bench::Signals> signals, const Options& options) {
    const bench::PinnedToCore pinned(options.core);
    std::vector<bench::Subject> contestants;
    for (const Candidate& candidate : candidates)
        contestants.emplace_back(bench::repeatCall(candidate.function, signals, kfmScaleNone));
    const int incumbent = indexOf(candidates, current);
    const int winner = findFastest(contestants, incumbent, options.batches);
    const auto times = [&](int i) { return contestants[i].minimum(); };
    std::printf("%-18s %8.2f ns, first candidate %8.2f", candidates[winner].schedule.c_str(),
                times(winner), times(0));
    if (incumbent >= 0) std::printf(", before %8.2f", times(incumbent));
    std::printf(" (%zu candidates)\n", candidates.size());
    return candidates[winner].schedule;
}

std::vector<KernelSource> kernels(const registry::Family& family, const registry::Element& element,
                                  const bench::Selection& selection) {
    std::vector<KernelSource> result;
    for (int length = family.first; length <= family.last; ++length)
        if (selection.hasLength(length))
            result.push_back({std::string(family.kernelSource), std::string(element.suffix), length,
                              std::string(family.name),
                              registry::functionName(family, length, element)});
    return result;
}

void tune(const KernelSource& kernel, const registry::Element& element, const Workshop& workshop,
          ScheduleTable& table, const Options& options) {
    const KernelName name{options.target, kernel.element, kernel.length};
    std::printf("%-18s ", kernel.stem().c_str());
    std::fflush(stdout);
    const std::vector<Candidate> candidates = workshop.make(kernel);
    const auto signals = std::make_shared<const bench::Signals>(kernel.length, element);
    requireSameBits(candidates, *signals, kernel.length * element.bytes);
    table.choose(name, fastest(candidates, table.find(name), signals, options));
    // At once, so that an interrupted run keeps what it has found.
    table.write();
}

void tuneAll(const Options& options) {
    const Workshop workshop(KFM_KERNELGEN, options.target, KFM_COMPILE_COMMANDS, KFM_WORK_FOLDER);
    std::set<std::string_view> seen;
    bool some = false;
    for (const registry::Family& family : registry::families()) {
        // Kernels of orders are templates without schedules.
        if (family.byOrder || !options.selection.hasFamily(family.name)) continue;
        if (!seen.insert(family.kernelSource).second) continue;
        ScheduleTable table(options.sources / family.folder /
                            (std::string(family.kernelSource) + "_schedules.def"));
        for (const registry::Element* element : family.elements)
            if (options.selection.hasElement(element->suffix))
                for (const KernelSource& kernel : kernels(family, *element, options.selection)) {
                    tune(kernel, *element, workshop, table, options);
                    some = true;
                }
    }
    bench::Selection::require(some);
}

}   // namespace
}   // namespace kfm::tune

int main(int argc, char** argv) try {
    kfm::tune::Options options;
    CLI::App app("Chooses each kernel's schedule by measurement and writes it into its table.");
    options.selection.addFamily(app);
    options.selection.addElement(app);
    options.selection.addLengths(app);
    app.add_option("--target", options.target, "row of the table")->capture_default_str();
    app.add_option("--sources", options.sources, "source tree whose tables are rewritten");
    app.add_option("--batches", options.batches, "timed batches of every candidate")
        ->check(CLI::Range(1, 10000))->capture_default_str();
    app.add_option("--core", options.core, "processor to measure on")->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    kfm::tune::tuneAll(options);
} catch (const std::exception& error) {
    std::fprintf(stderr, "kfmtune: %s\n", error.what());
    return 1;
}
