// Times the DCT-IV of every planned length next to FFTW's best plan for the same transform, the
// transform by FFTW's complex one of half the length, and another file of the library; and the
// making of its own plan. Ratios below 1 mean that the library measured is faster.
#include <CLI/CLI.hpp>
#include <cmath>
#include <cstdio>
#include <limits>
#include <list>
#include <memory>
#include <optional>

#include "selection.h"
#include "sides.h"
#include "signals.h"
#include "timer.h"

namespace kfm::bench {
namespace {

struct Options {
    Selection selection;
    Sides sides;
    int batches = 60;
};

template <class Spec>
struct Calls {
    KfmStatus (*size)(int, int*);
    KfmStatus (*init)(Spec**, int, Kfm8u*);
    KfmStatus (*transform)(const void*, void*, const Spec*);
};

// A plan in memory of its own, as the timed calls use it.
template <class Spec>
class Plan {
public:
    Plan(const Calls<Spec>& calls, int length) : calls_(calls), length_(length) {
        int bytes = 0;
        if (calls.size(length, &bytes) != kfmOk) return;
        block_.reset(static_cast<Kfm8u*>(std::aligned_alloc(64, (bytes + 63) / 64 * 64)));
        calls.init(&spec_, length, block_.get());
    }
    explicit operator bool() const { return spec_ != nullptr; }

    void transform(const void* source, void* destination) const {
        calls_.transform(source, destination, spec_);
    }
    std::function<void(long)> making() {
        return [this](long count) {
            for (long i = 0; i < count; ++i) calls_.init(&spec_, length_, block_.get());
        };
    }
    std::function<void(long)> transforming(const registry::Element& element) const {
        return repeatOn(std::make_shared<Signals>(length_, element),
                        [this](const void* source, void* destination) {
                            calls_.transform(source, destination, spec_);
                        });
    }

private:
    struct Release {
        void operator()(Kfm8u* block) const { std::free(block); }
    };
    Calls<Spec> calls_;
    int length_;
    std::unique_ptr<Kfm8u, Release> block_;
    Spec* spec_ = nullptr;
};

// One precision: the library's calls, and the other file's where there is one.
template <class Real, class Spec>
class Bench {
public:
    Bench(const Calls<Spec>& ours, std::string_view suffix, const OtherLibrary* other)
        : element_(*registry::findElement(suffix)), ours_(ours) {
        if (!other) return;
        const std::string tail = "_" + std::string(suffix);
        others_ = {other->find<KfmStatus(int, int*)>("kfmgDCT4GetSize" + tail),
                   other->find<KfmStatus(Spec**, int, Kfm8u*)>("kfmgDCT4Init" + tail),
                   other->find<KfmStatus(const void*, void*, const Spec*)>("kfmgDCT4" + tail)};
    }

    // Prints the row of a length and tells whether there is a plan for it.
    bool measure(int length, const Options& options) const {
        Plan<Spec> plan(ours_, length);
        if (!plan) return false;
        std::vector<std::function<void(long)>> compared(3);   // in the order of the columns
        if (!options.sides.withoutPeers) {
            compared[0] = peer(fftwDct4Plan(length, element_), 2, plan, length);
            compared[1] = peer(halfLengthDct4Plan(length, element_), 1, plan, length);
        }
        std::optional<Plan<Spec>> otherPlan;
        if (others_.init) compared[2] = otherPlan.emplace(others_, length).transforming(element_);

        Subject mine(plan.transforming(element_)), making(plan.making());
        std::list<Subject> others;
        std::vector<Subject*> subjects = {&mine};
        for (const auto& repeat : compared)
            if (repeat) subjects.push_back(&others.emplace_back(repeat));
        if (compared.back()) runAgainst(others.back(), subjects, options.batches);
        else runInterleaved(subjects, options.batches);
        making.runBatch();

        const double ns = mine.minimum();
        std::printf("%s,%d,%.1f,%.4f", std::string(element_.suffix).c_str(), length, ns,
                    ns / length / std::log2(length));
        for (const auto& repeat : compared) {
            if (repeat) {
                std::printf(",%.1f,%.3f", others.front().minimum(), ns / others.front().minimum());
                others.pop_front();
            } else {
                std::printf(",,");
            }
        }
        std::printf(",%.2f\n", making.minimum() / 1e3);
        std::fflush(stdout);
        return true;
    }

private:
    // Throws unless the peer computes the same transform, times a factor. That ours is right is for
    // tests to show; here a wrong index or root of the peer's shows.
    std::function<void(long)> peer(const PeerPlan& peer, double factor, const Plan<Spec>& plan,
                                   int length) const {
        if (!peer) return {};
        const Signals mine(length, element_), theirs(length, element_);   // may be overwritten
        plan.transform(mine.source(), mine.destination());
        peer.execute(theirs.source(), theirs.destination());
        const auto* const expected = static_cast<const Real*>(mine.destination());
        const auto* const actual = static_cast<const Real*>(theirs.destination());
        double largest = 0, error = 0;
        for (int i = 0; i < length; ++i) {
            largest = std::max(largest, std::abs(factor * expected[i]));
            error = std::max(error, std::abs(factor * expected[i] - actual[i]));
        }
        if (!(error < 100 * std::numeric_limits<Real>::epsilon() * largest))
            throw std::runtime_error("a peer's transform of length " + std::to_string(length) +
                                     " is another one");
        return peer.repeat;
    }

    const registry::Element& element_;
    Calls<Spec> ours_, others_{};
};

template <class Spec, class Transform>
Calls<Spec> callsOf(KfmStatus (*size)(int, int*), KfmStatus (*init)(Spec**, int, Kfm8u*),
                    Transform transform) {
    return {size, init, reinterpret_cast<decltype(Calls<Spec>::transform)>(transform)};
}

void measureAll(const Options& options, const OtherLibrary* other) {
    const Bench<float, KfmDCT4Spec_32f> single(
        callsOf(kfmgDCT4GetSize_32f, kfmgDCT4Init_32f, kfmgDCT4_32f), "32f", other);
    const Bench<double, KfmDCT4Spec_64f> twice(
        callsOf(kfmgDCT4GetSize_64f, kfmgDCT4Init_64f, kfmgDCT4_64f), "64f", other);
    const Selection& selection = options.selection;
    std::puts("element,length,ns,ns_per_nlogn,fftw_ns,fftw_ratio,half_length_ns,half_length_ratio,"
              "other_ns,other_ratio,planning_us");
    bool some = false;
    for (int power = 2; power <= selection.last; power *= 2) {
        if (!selection.hasLength(power)) continue;
        if (selection.hasElement("32f")) some |= single.measure(power, options);
        if (selection.hasElement("64f")) some |= twice.measure(power, options);
    }
    Selection::require(some);
}

}   // namespace
}   // namespace kfm::bench

int main(int argc, char** argv) try {
    using namespace kfm::bench;
    CLI::App app("Times the DCT-IV against FFTW's; one CSV row for each length.");
    Options options;
    options.selection.last = 1 << 20;
    options.selection.addElement(app);
    options.selection.addLengths(app);
    options.sides.addOptions(app);
    app.add_option("--batches", options.batches, "timed batches of each length")
        ->check(CLI::Range(1, 100000))
        ->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    const auto other = options.sides.open();
    const PinnedToCore pinned(lastCore());
    measureAll(options, other.get());
} catch (const std::exception& error) {
    std::fprintf(stderr, "dct4bench: %s\n", error.what());
    return 1;
}
