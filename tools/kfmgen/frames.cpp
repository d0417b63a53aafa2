#include "frames.h"

#include <algorithm>

namespace kfm::tool {

std::size_t forEachFrame(std::span<const Sample> signal, const Framing& framing,
                         const std::function<void(std::span<const Sample>)>& visit) {
    std::size_t count = 0;
    for (std::size_t start = 0; start < signal.size(); start += framing.hop) {
        const std::span<const Sample> rest = signal.subspan(start);
        if (rest.size() >= framing.length) {
            visit(rest.first(framing.length));
        } else {
            if (framing.tail == Tail::drop) break;
            Samples padded(framing.length);
            std::ranges::copy(rest, padded.begin());
            visit(padded);
        }
        ++count;
        if (rest.size() <= framing.length) break;
    }
    return count;
}

}   // namespace kfm::tool
