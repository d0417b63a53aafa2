// The FFTW plan that does the same work as a function of the library.
#include "peer.h"

#include <dlfcn.h>
#include <fftw3.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include "signals.h"
#include "timer.h"

namespace kfm::bench {
namespace {

std::string peerFolder;

void* openLibrary(const std::string& name) {
    const std::string path = peerFolder.empty() ? name : peerFolder + "/" + name;
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) std::fprintf(stderr, "no comparison with FFTW: %s\n", dlerror());
    return handle;
}

template <class Address>
void find(void* library, const std::string& name, Address& address) {
    if (library) address = reinterpret_cast<Address>(dlsym(library, name.c_str()));
}

// The fastest of several plans, timed as everything here is.
PeerPlan fastest(const std::vector<PeerPlan>& plans) {
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
const SourceRules keepSource = {FFTW_PRESERVE_INPUT};
const SourceRules anyRule = {FFTW_PRESERVE_INPUT, FFTW_DESTROY_INPUT};

// The part of FFTW's interface in use, for one precision.
template <class Plan, class Complex, class Real>
class Api {
public:
    Api(const std::string& libraryName, const std::string& prefix) {
        void* library = openLibrary(libraryName);
        find(library, prefix + "plan_dft_1d", planDft);
        find(library, prefix + "execute_dft", executeDft);
        find(library, prefix + "plan_dft_r2c_1d", planForward);
        find(library, prefix + "execute_dft_r2c", executeForward);
        find(library, prefix + "plan_dft_c2r_1d", planInverse);
        find(library, prefix + "execute_dft_c2r", executeInverse);
        find(library, prefix + "plan_r2r_1d", planReal);
        find(library, prefix + "execute_r2r", executeReal);
        complete = planDft && executeDft && planForward && executeForward && planInverse &&
                   executeInverse && planReal && executeReal;
    }

    PeerPlan like(const registry::Family& family, int length,
                                   const registry::Element& element) const {
        if (!complete) return {};
        const auto complexPlan = [&](Complex* from, Complex* to, unsigned flags) {
            return planDft(length, from, to, family.inverse() ? FFTW_BACKWARD : FFTW_FORWARD,
                           flags);
        };
        const auto hartleyPlan = [&](Real* from, Real* to, unsigned flags) {
            return planReal(length, from, to, FFTW_DHT, flags);
        };
        const auto forwardPlan = [&](Real* from, Complex* to, unsigned flags) {
            return planForward(length, from, to, flags);
        };
        const auto inversePlan = [&](Complex* from, Real* to, unsigned flags) {
            return planInverse(length, from, to, flags);
        };
        if (element.complex) return best(length, element, executeDft, complexPlan, keepSource);
        if (family.name == "Hartley")
            return best(length, element, executeReal, hartleyPlan, anyRule);
        if (!family.name.starts_with("DFT")) return {};
        return family.inverse() ? best(length, element, executeInverse, inversePlan, anyRule)
                                : best(length, element, executeForward, forwardPlan, anyRule);
    }

    PeerPlan dct4(int length, const registry::Element& element) const {
        if (!complete) return {};
        const auto plan = [&](Real* from, Real* to, unsigned flags) {
            return planReal(length, from, to, FFTW_REDFT11, flags);
        };
        // A patient search takes minutes for a length of millions.
        const unsigned effort = length > 8192 ? FFTW_MEASURE : FFTW_PATIENT;
        return best(length, element, executeReal, plan, anyRule, effort);
    }

private:
    template <class Source, class Destination, class MakePlan>
    static PeerPlan best(int length, const registry::Element& element,
                         void (*execute)(Plan, Source*, Destination*), MakePlan makePlan,
                         const SourceRules& rules, unsigned effort = FFTW_PATIENT) {
        // Planning overwrites its arrays; the timed calls work on fresh ones.
        const Signals scratch(length, element);
        std::vector<PeerPlan> plans;
        for (const unsigned rule : rules) {
            const Plan plan =
                makePlan(static_cast<Source*>(scratch.source()),
                         static_cast<Destination*>(scratch.destination()), effort | rule);
            if (plan == nullptr) continue;
            const auto signals = std::make_shared<Signals>(length, element);
            const auto repeat = [=, batch = 0](long calls) mutable {
                const int placement = batch++ % Signals::placements;
                const auto source = static_cast<Source*>(signals->source(placement));
                const auto destination = static_cast<Destination*>(signals->destination(placement));
                for (long i = 0; i < calls; ++i) execute(plan, source, destination);
            };
            plans.push_back({repeat, [=](void* source, void* destination) {
                                 execute(plan, static_cast<Source*>(source),
                                         static_cast<Destination*>(destination));
                             }});
        }
        return plans.empty() ? PeerPlan() : fastest(plans);
    }

    Plan (*planDft)(int, Complex*, Complex*, int, unsigned) = nullptr;
    void (*executeDft)(Plan, Complex*, Complex*) = nullptr;
    Plan (*planForward)(int, Real*, Complex*, unsigned) = nullptr;
    void (*executeForward)(Plan, Real*, Complex*) = nullptr;
    Plan (*planInverse)(int, Complex*, Real*, unsigned) = nullptr;
    void (*executeInverse)(Plan, Complex*, Real*) = nullptr;
    Plan (*planReal)(int, Real*, Real*, fftw_r2r_kind, unsigned) = nullptr;
    void (*executeReal)(Plan, Real*, Real*) = nullptr;
    bool complete;
};

}   // namespace

void setPeerFolder(const std::string& folder) { peerFolder = folder; }

namespace {

const Api<fftw_plan, fftw_complex, double>& doubleApi() {
    static const Api<fftw_plan, fftw_complex, double> api("libfftw3.so.3", "fftw_");
    return api;
}

const Api<fftwf_plan, fftwf_complex, float>& singleApi() {
    static const Api<fftwf_plan, fftwf_complex, float> api("libfftw3f.so.3", "fftwf_");
    return api;
}

}   // namespace

PeerPlan fftwPlan(const registry::Function& function) {
    const registry::Element& element = *registry::findElement(function.element);
    const registry::Family& family = *registry::findFamily(function.family);
    return element.doublePrecision ? doubleApi().like(family, function.length, element)
                                   : singleApi().like(family, function.length, element);
}

PeerPlan fftwDct4Plan(int length, const registry::Element& element) {
    return element.doublePrecision ? doubleApi().dct4(length, element)
                                   : singleApi().dct4(length, element);
}

}   // namespace kfm::bench
