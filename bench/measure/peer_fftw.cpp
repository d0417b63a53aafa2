// The FFTW plan that does the same work as a function of the library.
#include "peer.h"

#include <dlfcn.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

#include "fftw_interface.h"
#include "rotations.h"
#include "signals.h"
#include "timer.h"

namespace kfm::bench {
namespace {

std::vector<std::string> peerFolders;

template <class Address>
void find(void* library, const std::string& name, Address& address) {
    if (library) address = reinterpret_cast<Address>(dlsym(library, name.c_str()));
}

// The fastest of several plans, timed as everything here is.
PeerPlan fastest(const std::vector<PeerPlan>& plans) {
    if (plans.size() < 2) return plans.empty() ? PeerPlan() : plans.front();
    std::vector<Subject> subjects;
    for (const PeerPlan& plan : plans) subjects.emplace_back(plan.repeat);
    std::vector<Subject*> inTurns;
    for (Subject& subject : subjects) inTurns.push_back(&subject);
    runInterleaved(inTurns, 20);
    const auto best = std::ranges::min_element(subjects, {}, &Subject::minimum);
    return plans[best - subjects.begin()];
}

// Whether a plan may overwrite its source. The inverse real DFT of some lengths is faster when it
// may. What it leaves there is the next call's source: values that grow, which costs nothing.
using SourceRules = std::vector<unsigned>;
const SourceRules keepSource = {fftw::preserveInput};
const SourceRules anyRule = {fftw::preserveInput, fftw::destroyInput};

// A patient search for a length of millions takes minutes; for thousands of rows it takes seconds at
// each length.
unsigned effortFor(int length) { return length > 65536 ? fftw::measure : fftw::patient; }
unsigned effortFor(const Rows& rows) { return rows.count > 64 ? fftw::measure : fftw::patient; }

// Planning overwrites its arrays; the timed calls work on fresh ones.
using MakeSignals = std::function<std::shared_ptr<const Signals>()>;

MakeSignals signalsOf(int length, const registry::Element& element) {
    return [=, &element] { return std::make_shared<const Signals>(length, element); };
}

// The roots of rotateInputs and rotateOutputs.
template <class Real>
std::vector<Real> halfLengthRoots(int m) {
    std::vector<Real> roots;
    for (int k = 0; k < m; ++k) {
        const double angle = std::numbers::pi * (8.0 * k + 1) / (16.0 * m);
        roots.insert(roots.end(), {Real(std::cos(angle)), Real(std::sin(angle))});
    }
    return roots;
}

// The part of FFTW's interface in use, for one precision of one build.
template <class Real>
class Api {
    using Plan = fftw::Plan;
    using Complex = Real[2];

public:
    Api(const std::string& path, const std::string& prefix) {
        void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        find(library, prefix + "plan_many_dft", planDft);
        find(library, prefix + "execute_dft", executeDft);
        find(library, prefix + "plan_many_dft_r2c", planForward);
        find(library, prefix + "execute_dft_r2c", executeForward);
        find(library, prefix + "plan_many_dft_c2r", planInverse);
        find(library, prefix + "execute_dft_c2r", executeInverse);
        find(library, prefix + "plan_many_r2r", planReal);
        find(library, prefix + "execute_r2r", executeReal);
        find(library, prefix + "version", version);
    }
    explicit operator bool() const {
        return planDft && executeDft && planForward && executeForward && planInverse &&
               executeInverse && planReal && executeReal && version;
    }

    const char* version = nullptr;   // "fftw-3.3.10-sse2-avx"

    // A function's transform of every row.
    std::vector<PeerPlan> like(const registry::Function& function, const Rows& rows,
                               const MakeSignals& makeSignals) const {
        const registry::Family& family = *registry::findFamily(function.family);
        const int n = function.length, stride = rows.stride(), distance = rows.distance(n);
        const int halfDistance = rows.distance(n / 2 + 1);   // of half spectra
        const unsigned effort = effortFor(rows);
        const auto forwardPlan = [&](Real* from, Complex* to, unsigned flags) {
            return planForward(1, &n, rows.count, from, nullptr, stride, distance, to, nullptr,
                               stride, halfDistance, flags);
        };
        const auto inversePlan = [&](Complex* from, Real* to, unsigned flags) {
            return planInverse(1, &n, rows.count, from, nullptr, stride, halfDistance, to, nullptr,
                               stride, distance, flags);
        };
        if (registry::findElement(function.element)->complex)
            return plans<Complex, Complex>(makeSignals, executeDft,
                                           complexPlan(n, rows, family.inverse()), keepSource,
                                           effort);
        if (family.name == "Hartley")
            return plans<Real, Real>(makeSignals, executeReal, realPlan(n, rows, fftw::dht),
                                     anyRule, effort);
        if (!family.name.starts_with("DFT")) return {};
        if (family.inverse())
            return plans<Complex, Real>(makeSignals, executeInverse, inversePlan, anyRule, effort);
        return plans<Real, Complex>(makeSignals, executeForward, forwardPlan, anyRule, effort);
    }

    std::vector<PeerPlan> dct4(int length, const registry::Element& element) const {
        return plans<Real, Real>(signalsOf(length, element), executeReal,
                                 realPlan(length, {}, fftw::redft11), anyRule, effortFor(length));
    }

    // Between the rotations stand arrays of its own, which the transform may overwrite.
    std::vector<PeerPlan> halfLengthDct4(int length, const registry::Element& element) const {
        const int m = length / 2;
        const char* const complexSuffix = element.doublePrecision ? "64fc" : "32fc";
        const auto between =
            std::make_shared<const Signals>(m, *registry::findElement(complexSuffix));
        const auto roots = std::make_shared<const std::vector<Real>>(halfLengthRoots<Real>(m));
        const auto plan = [&](Real*, Real*, unsigned flags) {
            return complexPlan(m, {}, false)(static_cast<Complex*>(between->source()),
                                             static_cast<Complex*>(between->destination()), flags);
        };
        const auto execute = [=, transform = executeDft](Plan plan, Real* source,
                                                         Real* destination) {
            const auto from = static_cast<Complex*>(between->source());
            const auto to = static_cast<Complex*>(between->destination());
            rotateInputs(source, roots->data(), *from, m);
            transform(plan, from, to);
            rotateOutputs(*to, roots->data(), destination, m);
        };
        return plans<Real, Real>(signalsOf(length, element), execute, plan, {fftw::destroyInput},
                                 effortFor(m));
    }

private:
    auto complexPlan(int length, const Rows& rows, bool inverse) const {
        return [=, this](Complex* from, Complex* to, unsigned flags) {
            const int stride = rows.stride(), distance = rows.distance(length);
            return planDft(1, &length, rows.count, from, nullptr, stride, distance, to, nullptr,
                           stride, distance, inverse ? fftw::backward : fftw::forward, flags);
        };
    }
    auto realPlan(int length, const Rows& rows, fftw::Kind kind) const {
        return [=, this](Real* from, Real* to, unsigned flags) {
            const int stride = rows.stride(), distance = rows.distance(length);
            return planReal(1, &length, rows.count, from, nullptr, stride, distance, to, nullptr,
                            stride, distance, &kind, flags);
        };
    }

    template <class Source, class Destination, class Execute, class MakePlan>
    std::vector<PeerPlan> plans(const MakeSignals& makeSignals, Execute execute, MakePlan makePlan,
                                const SourceRules& rules, unsigned effort) const {
        const auto scratch = makeSignals();
        std::vector<PeerPlan> result;
        for (const unsigned rule : rules) {
            const Plan plan =
                makePlan(static_cast<Source*>(scratch->source()),
                         static_cast<Destination*>(scratch->destination()), effort | rule);
            if (plan == nullptr) continue;
            const auto once = [=](void* source, void* destination) {
                execute(plan, static_cast<Source*>(source), static_cast<Destination*>(destination));
            };
            result.push_back({repeatOn(makeSignals(), once), once, version});
        }
        return result;
    }

    // Of each array its address, outer length, stride and distance.
    Plan (*planDft)(int, const int*, int, Complex*, const int*, int, int, Complex*, const int*, int,
                    int, int, unsigned) = nullptr;
    void (*executeDft)(Plan, Complex*, Complex*) = nullptr;
    Plan (*planForward)(int, const int*, int, Real*, const int*, int, int, Complex*, const int*,
                        int, int, unsigned) = nullptr;
    void (*executeForward)(Plan, Real*, Complex*) = nullptr;
    Plan (*planInverse)(int, const int*, int, Complex*, const int*, int, int, Real*, const int*,
                        int, int, unsigned) = nullptr;
    void (*executeInverse)(Plan, Complex*, Real*) = nullptr;
    Plan (*planReal)(int, const int*, int, Real*, const int*, int, int, Real*, const int*, int, int,
                     const fftw::Kind*, unsigned) = nullptr;
    void (*executeReal)(Plan, Real*, Real*) = nullptr;
};

using DoubleApi = Api<double>;
using SingleApi = Api<float>;

struct Build {
    std::string path;
    DoubleApi twice;
    SingleApi single;
};

const std::vector<Build>& builds() {
    static const std::vector<Build> all = [] {
        std::vector<Build> result;
        std::vector<std::string> paths;
        for (const std::string& folder : peerFolders) paths.push_back(folder + "/");
        if (paths.empty()) paths.push_back("");
        for (const std::string& path : paths)
            result.push_back(
                {path, {path + "libfftw3.so.3", "fftw_"}, {path + "libfftw3f.so.3", "fftwf_"}});
        return result;
    }();
    return all;
}

// Of the plans that the builds have for a transform.
template <class PlansOf>
PeerPlan fastestOf(const registry::Element& element, PlansOf plansOf) {
    std::vector<PeerPlan> all;
    const auto add = [&](const auto& api) {
        if (!api) return;
        for (PeerPlan& plan : plansOf(api)) all.push_back(std::move(plan));
    };
    for (const Build& build : builds())
        if (element.doublePrecision) add(build.twice);
        else add(build.single);
    return fastest(all);
}

}   // namespace

void setPeerFolders(const std::vector<std::string>& folders) { peerFolders = folders; }

std::string describePeers() {
    std::string text;
    const auto describe = [&](const std::string& file, const auto& api) {
        text += file + ": " + (api ? api.version : "no comparison, it cannot be opened") + "\n";
    };
    for (const Build& build : builds()) {
        describe(build.path + "libfftw3.so.3", build.twice);
        describe(build.path + "libfftw3f.so.3", build.single);
    }
    return text;
}

bool findsFftw() {
    return std::ranges::any_of(builds(),
                               [](const Build& build) { return build.twice || build.single; });
}

PeerPlan fftwPlan(const registry::Function& function) {
    const registry::Element& element = *registry::findElement(function.element);
    return fastestOf(element, [&](const auto& api) {
        return api.like(function, {}, signalsOf(function.length, element));
    });
}

PeerPlan fftwRowsPlan(const registry::Function& function, const Rows& rows) {
    const registry::Element& element = *registry::findElement(function.element);
    const auto arrays = [&] { return Signals::ofRows(rows.count, function.length, element); };
    return fastestOf(element, [&](const auto& api) { return api.like(function, rows, arrays); });
}

PeerPlan fftwDct4Plan(int length, const registry::Element& element) {
    return fastestOf(element, [&](const auto& api) { return api.dct4(length, element); });
}

PeerPlan halfLengthDct4Plan(int length, const registry::Element& element) {
#ifndef __aarch64__
    if (!__builtin_cpu_supports("avx2") || !__builtin_cpu_supports("fma")) return {};
#endif
    return fastestOf(element, [&](const auto& api) { return api.halfLengthDct4(length, element); });
}

}   // namespace kfm::bench
