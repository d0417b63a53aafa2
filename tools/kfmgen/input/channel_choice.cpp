#include "input/channel_choice.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <numeric>

namespace kfm::tool {
namespace {

// The largest double that is rounded to a float and not to infinity.
constexpr double singleMost = double{FLT_MAX} * (1 + double{FLT_EPSILON} / 4);

constexpr const char* notFinite = "not a finite number";

std::string counted(const ChannelsThere& there) {
    return std::to_string(there.count) + " " + there.word + (there.count == 1 ? "" : "s");
}

}   // namespace

ChannelChoice::ChannelChoice(const Channels& wanted, const Demand& demand,
                             const ChannelsThere& there)
    : demand_(demand), width_(demand.complex ? 2 : 1) {
    using Use = Channels::Use;
    const Use use = wanted.use == Use::unset && there.complex ? Use::complex : wanted.use;
    const auto refuse = [&](const std::string& what) {
        throw InputError(there.file + ": " + counted(there) + what + there.hint);
    };
    if (use == Use::unset && there.count != 1)
        refuse(": choose one by --channel 1 to " + std::to_string(there.count) +
               ", their mean by --channel mix, or two as a complex signal by --complex");
    if (use == Use::complex && there.count != 2) refuse(", but --complex takes two");
    if (use == Use::one && wanted.number > there.count)
        refuse(", none of them is number " + std::to_string(wanted.number));
    if (use == Use::each) {
        each_ = true;
        width_ = there.count;
    }
    if (use == Use::one) re_ = wanted.number - 1;
    if (use == Use::mix) re_ = all;
    if (use == Use::complex) im_ = 1;
}

std::string ChannelChoice::make(std::span<const double> channels, double* sample) const {
    if (each_) {
        std::ranges::copy(channels, sample);
        const bool finite =
            std::ranges::all_of(channels, [](double value) { return std::isfinite(value); });
        return finite ? std::string() : notFinite;
    }
    const double re = re_ == all ? std::accumulate(channels.begin(), channels.end(), 0.0) /
                                       static_cast<double>(channels.size())
                                 : channels[re_];
    const double im = im_ == none ? 0 : channels[im_];
    sample[0] = re;
    if (demand_.complex) sample[1] = im;
    const double most = demand_.single ? singleMost : DBL_MAX;
    const bool fits = std::fabs(re) <= most && std::fabs(im) <= most;
    return fits && (demand_.complex || im == 0) ? std::string() : objection(re, im);
}

std::string ChannelChoice::objection(double re, double im) const {
    if (!std::isfinite(re) || !std::isfinite(im)) return notFinite;
    if (!demand_.complex && im != 0) return demand_.taker + " takes real samples, not complex ones";
    return "too large for single precision; see --precision";
}

}   // namespace kfm::tool
