// CCS is all bins in order. Pack leaves out what is always zero. Perm is Pack with the last bin of
// an even length, which is real, moved to the second place.
#include "definition/packed_spectrum.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>

namespace kfm::definition {

Contents contentsOf(std::string_view family) {
    static const std::map<std::string_view, Content> words = {{"C", Content::complexSignal},
                                                              {"R", Content::realSignal},
                                                              {"CCS", Content::ccs},
                                                              {"Pack", Content::pack},
                                                              {"Perm", Content::perm}};
    if (family == "Hartley" || family == "WHT") return {Content::realSignal, Content::realSignal};
    const std::size_t from = family.find('_') + 1, to = family.find("To", from);
    if (from == 0 || to == family.npos)
        throw std::logic_error("arrays of " + std::string(family) + " are not known");
    return {words.at(family.substr(from, to - from)), words.at(family.substr(to + 2))};
}

std::vector<Slot> slots(Content array, int length) {
    std::vector<Slot> result;
    if (array == Content::complexSignal || array == Content::realSignal) return result;
    for (int bin = 0; bin <= length / 2; ++bin)
        for (bool imaginary : {false, true}) result.push_back({bin, imaginary});
    if (array == Content::ccs) return result;
    std::erase_if(result, [&](const Slot& slot) { return slot.alwaysZero(length); });
    if (array == Content::perm && length % 2 == 0)
        std::rotate(result.begin() + 1, result.end() - 1, result.end());
    return result;
}

std::size_t reals(Content array, int length) {
    const auto n = static_cast<std::size_t>(length);
    if (array == Content::complexSignal) return 2 * n;
    return array == Content::realSignal ? n : slots(array, length).size();
}

}   // namespace kfm::definition
