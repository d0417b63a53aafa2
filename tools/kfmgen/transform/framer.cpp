#include "transform/framer.h"

#include <algorithm>

namespace kfm::tool {

Framer::Framer(SampleSource& source, const Framing& framing, std::size_t width)
    : source_(source), framing_(framing), width_(width), frame_(framing.length * width),
      kept_(framing.lead), held_(framing.lead) {}

std::span<const double> Framer::next() {
    if (began_ && !advance()) return {};
    const std::span<double> rest = std::span(frame_).subspan(kept_ * width_);
    const std::size_t fresh = source_.read(rest);
    if (fresh == 0 && (framing_.tail != Tail::cover || held_ == 0)) return {};
    const std::size_t filled = kept_ + fresh;
    if (fresh > 0) held_ = filled;
    samples_ += fresh;
    if (filled < framing_.length && framing_.tail == Tail::drop) {
        if (began_) return {};
        throw InputError(source_.name() + ": " + std::to_string(filled) +
                         " samples do not fill one frame of " + std::to_string(framing_.length));
    }
    std::ranges::fill(rest.subspan(fresh * width_), 0.0);
    began_ = true;
    return frame_;
}

// Keeps what the frames share, or passes over what lies between them; false at the end.
bool Framer::advance() {
    if (framing_.hop < framing_.length) {
        kept_ = framing_.length - framing_.hop;
        std::copy(frame_.end() - kept_ * width_, frame_.end(), frame_.begin());
        held_ -= std::min(held_, framing_.hop);
        return true;
    }
    kept_ = 0;
    for (std::size_t gap = framing_.hop - framing_.length; gap > 0;) {
        const std::size_t part = std::min(gap, framing_.length);
        if (source_.read(std::span(frame_).first(part * width_)) < part) return false;
        gap -= part;
    }
    return true;
}

}   // namespace kfm::tool
