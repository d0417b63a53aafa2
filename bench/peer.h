// The peers that the functions are measured against: FFTW, and a plain loop for the transform that
// FFTW does not have. FFTW's libraries are opened at run time, so the benchmark also builds and runs
// where they are missing.
#pragma once

#include <functional>
#include <string>

#include "registry/functions.h"

namespace kfm::bench {

// Where libfftw3.so.3 and libfftw3f.so.3 are searched; empty: the system's folders.
void setPeerFolder(const std::string& folder);

// A plan as a subject of the timer, and as a call on arrays aligned to 64 bytes.
struct PeerPlan {
    std::function<void(long)> repeat;
    std::function<void(void* source, void* destination)> execute;

    explicit operator bool() const { return static_cast<bool>(repeat); }
};

// The best plan for the function's transform, out of place and unscaled; empty without a library or
// without a like transform in it. Where a plan may overwrite its source, it does so if that is
// faster.
PeerPlan fftwPlan(const registry::Function& function);

// The same for the DCT-IV of a length. Beyond 8192 it is what FFTW_MEASURE finds.
PeerPlan fftwDct4Plan(int length, const registry::Element& element);

// The function's Walsh-Hadamard transform by the plain loop, unscaled: a copy of the source, then
// in place.
std::function<void(long)> plainLoop(const registry::Function& function);

}   // namespace kfm::bench
