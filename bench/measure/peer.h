// The peers that the functions are measured against: FFTW, and where it has no like transform or a
// slower way to it than a user would write with it, plain code. FFTW's libraries are opened at run
// time, so the benchmark also builds and runs where they are missing.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "registry/functions.h"
#include "rows.h"

namespace kfm::bench {

// Where libfftw3.so.3 and libfftw3f.so.3 are searched; none: the system's folders. Of several
// builds of FFTW the one that is faster at a transform is the peer there.
void setPeerFolders(const std::vector<std::string>& folders);

// One line for each file of FFTW that was searched: its version, with the instruction sets.
std::string describePeers();

// Whether there is a build of FFTW at all.
bool findsFftw();

// A plan as a subject of the timer, and as a call on arrays aligned to 64 bytes.
struct PeerPlan {
    std::function<void(long)> repeat;
    std::function<void(void* source, void* destination)> execute;
    std::string name;   // FFTW's version

    explicit operator bool() const { return static_cast<bool>(repeat); }
};

// The best plan for the function's transform, out of place and unscaled; empty without a library or
// without a like transform in it. Where a plan may overwrite its source, it does so if that is
// faster.
PeerPlan fftwPlan(const registry::Function& function);

// The same for an array of rows; those of a half spectrum are of complex numbers. Beyond 64 rows it
// is what FFTW_MEASURE finds.
PeerPlan fftwRowsPlan(const registry::Function& function, const Rows& rows);

// The same for the DCT-IV of a length; unscaled it is twice the sum. Beyond 65536 it is what
// FFTW_MEASURE finds.
PeerPlan fftwDct4Plan(int length, const registry::Element& element);

// The DCT-IV by FFTW's complex transform of half the length between two rotations; empty also where
// a processor of x86 has no AVX2, for which the rotations are compiled.
PeerPlan halfLengthDct4Plan(int length, const registry::Element& element);

// The function's Walsh-Hadamard transform by the plain loop, unscaled: a copy of the source, then
// in place.
PeerPlan plainLoop(const registry::Function& function);

// Of these two the one that there is.
inline PeerPlan peerOf(const registry::Function& function) {
    return registry::findFamily(function.family)->byOrder ? plainLoop(function)
                                                          : fftwPlan(function);
}

}   // namespace kfm::bench
