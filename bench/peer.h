// FFTW, the peer that every function is measured against. Its libraries are opened at run time, so
// the benchmark also builds and runs where they are missing.
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
std::function<void(long)> peerOf(const registry::Function& function);

// The same for the DCT-IV of a length. Beyond 8192 the plan is FFTW_MEASURE's.
std::function<void(long)> dct4Peer(int length, const registry::Element& element);

}   // namespace kfm::bench
