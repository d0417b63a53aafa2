// The FFTW plan that does the same work as a function of the library.
#include "peer.h"

#include <dlfcn.h>
#include <fftw3.h>

#include <cstdio>
#include <memory>

#include "signals.h"

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

// The part of FFTW's interface in use, for one precision.
template <class Plan, class Complex>
struct Api {
    Plan (*planDft)(int, Complex*, Complex*, int, unsigned) = nullptr;
    void (*executeDft)(Plan, Complex*, Complex*) = nullptr;

    Api(const std::string& libraryName, const std::string& prefix) {
        void* library = openLibrary(libraryName);
        find(library, prefix + "plan_dft_1d", planDft);
        find(library, prefix + "execute_dft", executeDft);
    }

    std::function<void(long)> complexDft(int length, const registry::Element& element,
                                         bool inverse) const {
        if (!planDft || !executeDft) return {};
        const auto signals = std::make_shared<Signals>(length, element);
        // Planning overwrites its arrays; the timed calls work on fresh ones.
        const Signals scratch(length, element);
        const Plan plan = planDft(length, static_cast<Complex*>(scratch.source()),
                                  static_cast<Complex*>(scratch.destination()),
                                  inverse ? FFTW_BACKWARD : FFTW_FORWARD, FFTW_PATIENT);
        return [signals, plan, execute = executeDft, batch = 0](long calls) mutable {
            const int placement = batch++ % Signals::placements;
            const auto source = static_cast<Complex*>(signals->source(placement));
            const auto destination = static_cast<Complex*>(signals->destination(placement));
            for (long i = 0; i < calls; ++i) execute(plan, source, destination);
        };
    }
};

}   // namespace

void setPeerFolder(const std::string& folder) { peerFolder = folder; }

std::function<void(long)> peerOf(const registry::Function& function) {
    static const Api<fftw_plan, fftw_complex> doubleApi("libfftw3.so.3", "fftw_");
    static const Api<fftwf_plan, fftwf_complex> singleApi("libfftw3f.so.3", "fftwf_");
    const registry::Element& element = *registry::findElement(function.element);
    const registry::Family& family = *registry::findFamily(function.family);
    if (family.kernelSource != "DFT_CToC") return {};
    if (element.doublePrecision)
        return doubleApi.complexDft(function.length, element, family.inverse());
    return singleApi.complexDft(function.length, element, family.inverse());
}

}   // namespace kfm::bench
