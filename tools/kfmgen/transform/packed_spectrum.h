// Where the half spectrum of a real signal of length N lies in an array of reals: the packed
// layouts of the real DFT. Bins run from 0 to N/2; the imaginary part is always zero at bin 0 and,
// for even N, at bin N/2.
#pragma once

#include <optional>

#include "registry/registry.h"

namespace kfm::tool {

enum class SpectrumLayout { ccs, pack, perm };

// The layout of the family's spectrum arrays; none outside the real DFT.
std::optional<SpectrumLayout> spectrumLayout(const registry::Family& family);

// Where the two parts of a complex value lie in an array; -1 for a part that is not stored.
struct Slots {
    int re, im;
};

Slots binSlots(SpectrumLayout layout, int length, int bin);

}   // namespace kfm::tool
