// Times the DCT-IV of every planned length next to FFTW's best plan for the same transform, and the
// making of its own plan.
#include <CLI/CLI.hpp>
#include <cmath>
#include <cstdio>
#include <memory>
#include <optional>

#include "peer.h"
#include "selection.h"
#include "signals.h"
#include "timer.h"

namespace kfm::bench {
namespace {

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

    std::function<void(long)> making() {
        return [this](long count) {
            for (long i = 0; i < count; ++i) calls_.init(&spec_, length_, block_.get());
        };
    }
    std::function<void(long)> transforming(const registry::Element& element) const {
        return [this, batch = 0, signals = std::make_shared<Signals>(length_, element)](
                   long count) mutable {
            const int placement = batch++ % Signals::placements;
            const void* source = signals->source(placement);
            void* destination = signals->destination(placement);
            for (long i = 0; i < count; ++i) calls_.transform(source, destination, spec_);
        };
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

// Whether there is a plan for this length.
template <class Spec>
bool measure(const Calls<Spec>& calls, int length, std::string_view suffix, int batches) {
    const registry::Element& element = *registry::findElement(suffix);
    Plan<Spec> plan(calls, length);
    if (!plan) return false;
    Subject mine(plan.transforming(element)), making(plan.making());
    std::vector<Subject*> subjects = {&mine};
    std::optional<Subject> peer;
    if (auto repeat = fftwDct4Plan(length, element).repeat) subjects.push_back(&peer.emplace(repeat));
    runInterleaved(subjects, batches);
    making.runBatch();
    const double ns = mine.minimum();
    std::printf("%s,%d,%.1f,%.4f,", std::string(suffix).c_str(), length, ns,
                ns / length / std::log2(length));
    if (peer) std::printf("%.1f,%.2f", peer->minimum(), peer->minimum() / ns);
    else std::printf(",");
    std::printf(",%.2f\n", making.minimum() / 1e3);
    std::fflush(stdout);
    return true;
}

template <class Spec, class Transform>
Calls<Spec> callsOf(KfmStatus (*size)(int, int*), KfmStatus (*init)(Spec**, int, Kfm8u*),
                    Transform transform) {
    return {size, init, reinterpret_cast<decltype(Calls<Spec>::transform)>(transform)};
}

}   // namespace
}   // namespace kfm::bench

int main(int argc, char** argv) try {
    using namespace kfm::bench;
    CLI::App app("Times the DCT-IV against FFTW's; one CSV row for each length.");
    Selection selection;
    selection.last = 1 << 20;
    int batches = 60;
    std::string folder;
    selection.addElement(app);
    selection.addLengths(app);
    app.add_option("--batches", batches, "timed batches of each length")
        ->check(CLI::Range(1, 100000))->capture_default_str();
    app.add_option("--fftw-folder", folder, "folder of the FFTW libraries");
    CLI11_PARSE(app, argc, argv);
    setPeerFolder(folder);
    const PinnedToCore pinned(lastCore());
    const auto single = callsOf(kfmgDCT4GetSize_32f, kfmgDCT4Init_32f, kfmgDCT4_32f);
    const auto twice = callsOf(kfmgDCT4GetSize_64f, kfmgDCT4Init_64f, kfmgDCT4_64f);
    std::printf("element,length,ns,ns_per_nlogn,fftw_ns,times_as_fast,planning_us\n");
    bool some = false;
    for (int power = 2; power <= selection.last; power *= 2) {
        if (!selection.hasLength(power)) continue;
        if (selection.hasElement("32f")) some |= measure(single, power, "32f", batches);
        if (selection.hasElement("64f")) some |= measure(twice, power, "64f", batches);
    }
    Selection::require(some);
} catch (const std::exception& error) {
    std::fprintf(stderr, "dct4bench: %s\n", error.what());
    return 1;
}
