// Times the functions of rows, each next to the function of a single row called for one row after
// the other, and to FFTW's best plan for all of them.
#include <CLI/CLI.hpp>
#include <dlfcn.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "rows_result.h"
#include "run.h"
#include "selection.h"
#include "sides.h"
#include "signals.h"
#include "timer.h"

namespace kfm::bench {
namespace {

struct Options {
    Selection selection;
    Sides sides;
    Run run;
    Rows rows{64};
};

void addOptions(CLI::App& app, Options& options) {
    options.selection.addFamily(app);
    options.selection.addElement(app);
    options.selection.addLengths(app);
    app.add_option("--rows", options.rows.count, "rows of a call")
        ->check(CLI::Range(1, 1 << 20))
        ->capture_default_str();
    app.add_option_function<std::string>(
           "--layout",
           [&options](const std::string& layout) { options.rows.columns = layout == "columns"; },
           "how the rows stand in their array: contiguous, which is the default, or columns")
        ->check(CLI::IsMember({"contiguous", "columns"}));
    options.run.addOptions(app);
    options.sides.addPeerOptions(app);
}

// Every function of rows, whatever its element type.
using RowsFunction = KfmStatus (*)(const void*, std::ptrdiff_t, std::ptrdiff_t, void*,
                                   std::ptrdiff_t, std::ptrdiff_t, int, std::ptrdiff_t, int);

RowsFunction rowsFunction(const registry::Function& function) {
    const std::string name = registry::rowsName(*registry::findFamily(function.family),
                                                *registry::findElement(function.element));
    void* const address = dlsym(RTLD_DEFAULT, name.c_str());
    if (address == nullptr) throw std::runtime_error(dlerror());
    return reinterpret_cast<RowsFunction>(address);
}

// The transforms of all rows by calls of the function for one. Columns are no rows to it: a user
// copies each out and back.
template <class Value>
class SingleCalls {
public:
    SingleCalls(const registry::Function& function, const Rows& rows)
        : transform(reinterpret_cast<Transform>(function.address)), rows(rows),
          widths(function.family, function.length),
          one(std::make_shared<Signals>(function.length,
                                        *registry::findElement(function.element))) {}

    void operator()(const void* source, void* destination) const {
        const auto* const from = static_cast<const Value*>(source);
        auto* const to = static_cast<Value*>(destination);
        if (rows.columns)
            for (int column = 0; column < rows.count; ++column)
                transformColumn(from + column, to + column);
        else
            for (std::ptrdiff_t row = 0; row < rows.count; ++row)
                transform(from + row * widths.source, to + row * widths.destination, kfmScaleNone);
    }

private:
    void transformColumn(const Value* from, Value* to) const {
        auto* const row = static_cast<Value*>(one->source());
        auto* const result = static_cast<Value*>(one->destination());
        for (std::ptrdiff_t k = 0; k < widths.source; ++k) row[k] = from[k * rows.count];
        transform(row, result, kfmScaleNone);
        for (std::ptrdiff_t k = 0; k < widths.destination; ++k) to[k * rows.count] = result[k];
    }

    Transform transform;
    Rows rows;
    Widths widths;
    std::shared_ptr<const Signals> one;
};

// Both must give the same bits: a call with wrong strides would be timed in vain.
template <class ByRows, class BySingle>
void requireSame(const registry::Function& function, const Signals& mine, const Signals& single,
                 std::size_t bytes, ByRows byRows, BySingle bySingle) {
    if (byRows(mine.source(), mine.destination()) != kfmOk)
        throw std::runtime_error(std::string(function.name) + " fails for rows");
    bySingle(single.source(), single.destination());
    if (std::memcmp(mine.destination(), single.destination(), bytes) != 0)
        throw std::runtime_error(std::string(function.name) + " has other results for rows");
}

template <class Value>
RowsResult measure(const registry::Function& function, const registry::Element& element,
                   const Options& options) {
    const Rows& rows = options.rows;
    const Widths widths(function.family, function.length);
    const auto byRows = [=, address = rowsFunction(function),
                         length = function.length](const void* source, void* destination) {
        return address(source, rows.stride(), rows.distance(widths.source), destination,
                       rows.stride(), rows.distance(widths.destination), length, rows.count,
                       kfmScaleNone);
    };
    const SingleCalls<Value> bySingle(function, rows);
    const auto arrays = Signals::ofRows(rows.count, function.length, element);
    const auto singleArrays = Signals::ofRows(rows.count, function.length, element);
    requireSame(function, *arrays, *singleArrays, sizeof(Value) * widths.destination * rows.count,
                byRows, bySingle);

    Subject mine(repeatOn(arrays, byRows)), single(repeatOn(singleArrays, bySingle));
    std::vector<Subject*> subjects = {&mine, &single};
    std::optional<Subject> peer;
    RowsResult result;
    result.function = &function;
    result.rows = rows;
    if (const PeerPlan plan =
            options.sides.withoutPeers ? PeerPlan() : fftwRowsPlan(function, rows)) {
        subjects.push_back(&peer.emplace(plan.repeat));
        result.peer = plan.name;
    }
    runInterleaved(subjects, options.run.batches);
    result.ns = mine.minimum() / rows.count;
    result.singleNs = single.minimum() / rows.count;
    if (peer) result.peerNs = peer->minimum() / rows.count;
    return result;
}

RowsResult measureAny(const registry::Function& function, const Options& options) {
    const registry::Element& element = *registry::findElement(function.element);
    const auto chosen = element.complex
                            ? (element.doublePrecision ? measure<Kfm64fc> : measure<Kfm32fc>)
                            : (element.doublePrecision ? measure<Kfm64f> : measure<Kfm32f>);
    return chosen(function, element, options);
}

// The Walsh-Hadamard transform of rows takes a buffer, and FFTW has none.
std::vector<const registry::Function*> selected(const Selection& selection) {
    std::vector<const registry::Function*> functions = selection.functions();
    std::erase_if(functions, [](const registry::Function* function) {
        return registry::findFamily(function->family)->byOrder;
    });
    Selection::require(!functions.empty());
    return functions;
}

void tellRowsLibrary(const registry::Function& some) {
    const RowsFunction address = rowsFunction(some);
    Sides::tell("rows", registry::libraryOf(reinterpret_cast<const void*>(address)));
}

}   // namespace
}   // namespace kfm::bench

int main(int argc, char** argv) try {
    using namespace kfm::bench;
    Options options;
    CLI::App app("Times transforms of rows against those of single rows and FFTW's.");
    addOptions(app, options);
    CLI11_PARSE(app, argc, argv);
    const auto functions = selected(options.selection);
    options.sides.open();
    tellRowsLibrary(*functions.front());
    const PinnedToCore pinned(options.run.core);
    options.run.report(options.run.measureAll(functions, [&](const auto& function) {
        return measureAny(function, options);
    }));
} catch (const std::exception& error) {
    std::fprintf(stderr, "rowsbench: %s\n", error.what());
    return 1;
}
