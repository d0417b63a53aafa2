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

// The best plan for the function's transform, out of place and unscaled, as a subject of the
// timer; empty without a library or without a like transform in it. Where a plan may overwrite its
// source, it does so if that is faster.
std::function<void(long)> fftwPlan(const registry::Function& function);

// The function's Walsh-Hadamard transform by the plain loop, unscaled: a copy of the source, then
// in place.
std::function<void(long)> plainLoop(const registry::Function& function);

}   // namespace kfm::bench
