// The off-line choice of schedules. For every kernel: make all candidates, make sure that they
// compute the same bits, time them, and put the fastest into the committed table, from where every
// build takes it. Building and timing never overlap.
#include <CLI/CLI.hpp>
#include <cstring>
#include <functional>
#include <set>
#include <sstream>

#include "codelets.h"
#include "contest.h"
#include "rows.h"
#include "schedule_table.h"
#include "selection.h"
#include "signals.h"
#include "timer.h"
#include "workshop.h"

namespace kfm::tune {
namespace {

struct Options {
    bench::Selection selection;
    std::string target = KFM_TARGET, generated = "generated";
    std::filesystem::path sources = KFM_SOURCES, work = KFM_WORK_FOLDER;
    int batches = 10;
    int core = bench::lastCore();
    bool rows = false;
};

void requireSameBits(const std::vector<Candidate>& candidates, const bench::Signals& signals,
                     std::size_t bytes) {
    const auto output = static_cast<char*>(signals.destination());
    std::vector<char> expected;
    for (std::size_t i = 0; i < candidates.front().functions.size(); ++i) {
        expected.clear();
        for (const Candidate& candidate : candidates) {
            std::memset(output, 0x99, bytes);
            candidate.functions[i](signals.source(), output, kfmScaleNone);
            if (expected.empty()) expected.assign(output, output + bytes);
            if (std::memcmp(output, expected.data(), bytes) != 0)
                throw std::runtime_error("schedule " + candidate.schedule + " changes results");
        }
    }
}

// The index of a schedule among the candidates, or -1.
int indexOf(const std::vector<Candidate>& candidates, const std::string& schedule) {
    const auto found = std::ranges::find(candidates, schedule, &Candidate::schedule);
    return found == candidates.end() ? -1 : static_cast<int>(found - candidates.begin());
}

// Calls from one array to another, and calls in place that wait for each other's results.
struct CallPatterns {
    std::vector<std::shared_ptr<const bench::Signals>> signals;

    // Rows are not transformed in place: that takes the same kernels between buffers.
    CallPatterns(const KernelSource& kernel, const registry::Element& element) {
        if (kernel.rows > 1) {
            signals = {bench::Signals::ofRows(kernel.rows, kernel.length, element)};
            return;
        }
        for (const bool inPlace : {false, true})
            signals.push_back(std::make_shared<const bench::Signals>(kernel.arrayLength, element,
                                                                     false, inPlace));
    }

    // Of every function in either pattern.
    std::vector<std::function<void(long)>> calls(const Candidate& candidate) const {
        std::vector<std::function<void(long)>> result;
        for (const bench::Transform function : candidate.functions)
            for (const auto& each : signals)
                result.push_back(bench::repeatCall(function, each, kfmScaleNone));
        return result;
    }

    bench::Subject all(const Candidate& candidate) const {
        return bench::Subject([calls = calls(candidate)](long times) {
            for (const auto& call : calls) call(times);
        });
    }

    // Whether no function is slower than its like, in either pattern.
    bool worthwhile(const Candidate& candidate, const Candidate& reference, int batches) const {
        constexpr double tolerance = 1.03;
        const auto candidates = calls(candidate), references = calls(reference);
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            bench::Subject ours(candidates[i]), theirs(references[i]);
            bench::Subject* const turns[] = {&ours, &theirs};
            bench::runInterleaved(turns, batches);
            if (ours.minimum() > tolerance * theirs.minimum()) return false;
        }
        return true;
    }
};

bool isPaired(const Candidate& candidate) {
    return candidate.schedule.find('/') != std::string::npos;
}

// The fastest over all functions and both patterns.
Candidate fastest(const std::vector<Candidate>& field, const std::string& current,
                  const CallPatterns& patterns, int batches) {
    std::vector<bench::Subject> contestants;
    for (const Candidate& candidate : field) contestants.push_back(patterns.all(candidate));
    const int winner = findFastest(contestants, indexOf(field, current), batches);
    std::printf("%-24s %8.2f ns, first %8.2f; ", field[winner].schedule.c_str(),
                contestants[winner].minimum(), contestants[0].minimum());
    return field[winner];
}

// With its operations in pairs only where that costs nowhere.
Candidate choose(std::vector<Candidate> field, const std::string& current,
                 const CallPatterns& patterns, const Options& options) {
    const bench::PinnedToCore pinned(options.core);
    std::vector<Candidate> alone;
    std::ranges::copy_if(field, std::back_inserter(alone), std::not_fn(isPaired));
    const Candidate reference = fastest(alone, current, patterns, options.batches);
    constexpr int batches = 40;
    while (field.size() > alone.size()) {
        const Candidate winner = fastest(field, current, patterns, options.batches);
        if (!isPaired(winner) || patterns.worthwhile(winner, reference, batches)) return winner;
        std::erase_if(field,
                      [&](const Candidate& each) { return each.schedule == winner.schedule; });
    }
    return reference;
}

// What calls a kernel of rows.
void addRowsCalls(KernelSource& kernel, const registry::Family& family,
                  const registry::Element& element) {
    const std::string function = registry::transformName(family, kernel.length, element);
    const bench::Widths widths(family.name, kernel.length);
    std::ostringstream text;
    text << "KFM_CALL_ROWS(" << function << ", weak "
         << registry::functionName(family, kernel.length, element) << ", " << element.type << ", "
         << kernel.rows << ", " << widths.source << ", " << widths.destination << ")\n";
    kernel.furtherText += text.str();
    for (const char* spacing : {"contiguous_", "columns_"})
        kernel.functions.push_back(spacing + function);
}

std::vector<KernelSource> kernels(const registry::Family& family, const registry::Element& element,
                                  const Options& options) {
    std::vector<KernelSource> result;
    for (int length = family.first; length <= family.last; ++length) {
        if (!options.selection.hasLength(length)) continue;
        KernelSource kernel{std::string(family.kernelSource), std::string(element.suffix), length,
                            length};
        if (options.rows) {
            kernel.rows = 64;
            kernel.furtherText = "#include \"" KFM_TUNE_FOLDER "/rows_calls.h\"\n";
        }
        for (const registry::Family* member : registry::familiesOf(family.kernelSource))
            if (options.rows) addRowsCalls(kernel, *member, element);
            else kernel.functions.push_back(registry::functionName(*member, length, element));
        result.push_back(std::move(kernel));
    }
    return result;
}

void tune(const KernelSource& kernel, const registry::Element& element, const Workshop& workshop,
          ScheduleTable& table, const Options& options) {
    const KernelName name{options.target, kernel.element, kernel.length,
                          kernel.sharesTable() ? kernel.source : ""};
    std::printf("%-18s ", kernel.stem().c_str());
    std::fflush(stdout);
    const CallPatterns patterns(kernel, element);
    std::vector<Candidate> candidates;
    const auto winnerWith = [&](const std::vector<std::string>& schedules) {
        std::ranges::move(workshop.make(kernel, schedules), std::back_inserter(candidates));
        requireSameBits(candidates, *patterns.signals.front(),
                        kernel.rows * bench::Signals::mostElements(kernel.arrayLength, element) *
                            element.bytes);
        return choose(candidates, table.find(name), patterns, options).schedule;
    };
    std::string winner = winnerWith(workshop.schedules(kernel));
    const std::vector<std::string> further = workshop.schedules(kernel, winner);
    if (!further.empty()) winner = winnerWith(further);
    std::printf("%s of %zu\n", winner.c_str(), candidates.size());
    table.choose(name, winner);
    // At once, so that an interrupted run keeps what it has found.
    table.write();
}

bool tuneCodelets(const Workshop& workshop, const Options& options) {
    ScheduleTable table(options.sources / "dct4/networks/schedules.def");
    bool some = false;
    for (const std::string& function : codeletFunctions())
        for (const char* suffix : {"32f", "64f"}) {
            if (!options.selection.hasFamily(function) || !options.selection.hasElement(suffix))
                continue;
            const registry::Element& element = *registry::findElement(suffix);
            for (const KernelSource& codelet : codelets(function, element, options.selection)) {
                tune(codelet, element, workshop, table, options);
                some = true;
            }
        }
    return some;
}

std::string tableOf(const registry::Family& family) {
    return std::string(family.folder) + "/" + std::string(family.kernelSource) + "_schedules.def";
}

void tuneAll(const Options& options) {
    const Workshop workshop(KFM_KERNELGEN, options.target, options.generated, KFM_COMPILE_COMMANDS,
                            options.work);
    std::set<std::string_view> seen;
    bool some = !options.rows && tuneCodelets(workshop, options);
    for (const registry::Family& family : registry::families()) {
        // Kernels of orders are templates without schedules.
        if (family.byOrder || !options.selection.hasFamily(family.name)) continue;
        if (!seen.insert(family.kernelSource).second) continue;
        ScheduleTable table(options.sources /
                            (options.rows ? "rows/schedules.def" : tableOf(family)));
        for (const registry::Element* element : family.elements)
            if (options.selection.hasElement(element->suffix))
                for (const KernelSource& kernel : kernels(family, *element, options)) {
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
    options.selection.addFamily(app, kfm::tune::codeletFunctions());
    options.selection.addElement(app);
    options.selection.addLengths(app);
    app.add_option("--target", options.target, "row of the table")->capture_default_str();
    app.add_flag("--rows", options.rows,
                 "tune the kernels of rows, not those of single transforms");
    app.add_option("--generated", options.generated, "folder of its sources in the build folder")
        ->capture_default_str();
    app.add_option("--work", options.work, "folder for candidates")->capture_default_str();
    app.add_option("--sources", options.sources, "source tree whose tables are rewritten");
    app.add_option("--batches", options.batches, "timed batches of every candidate")
        ->check(CLI::Range(1, 10000))
        ->capture_default_str();
    app.add_option("--core", options.core, "processor to measure on")->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    kfm::tune::tuneAll(options);
} catch (const std::exception& error) {
    std::fprintf(stderr, "kfmtune: %s\n", error.what());
    return 1;
}
