#include "transform/packed_spectrum.h"

namespace kfm::tool {

std::optional<SpectrumLayout> spectrumLayout(const registry::Family& family) {
    const auto names = [&](std::string_view word) {
        return family.name.find(word) != family.name.npos;
    };
    if (names("CCS")) return SpectrumLayout::ccs;
    if (names("Pack")) return SpectrumLayout::pack;
    if (names("Perm")) return SpectrumLayout::perm;
    return std::nullopt;
}

Slots binSlots(SpectrumLayout layout, int length, int bin) {
    if (layout == SpectrumLayout::ccs) return {2 * bin, 2 * bin + 1};
    if (bin == 0) return {0, -1};
    const bool perm = layout == SpectrumLayout::perm && length % 2 == 0;
    if (2 * bin == length) return {perm ? 1 : length - 1, -1};
    const int re = perm ? 2 * bin : 2 * bin - 1;
    return {re, re + 1};
}

}   // namespace kfm::tool
