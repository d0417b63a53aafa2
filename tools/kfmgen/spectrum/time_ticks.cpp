#include "time_ticks.h"

#include <algorithm>
#include <cmath>

#include "page_text.h"

namespace kfm::tool {
namespace {

constexpr double colons = 300;   // longer times are said in minutes
constexpr double hour = 3600;

}   // namespace

TimeTicks::TimeTicks(double seconds, int most) : seconds_(seconds) {
    const double least = seconds / most;
    if (seconds > colons)
        for (const double round : {60., 120., 300., 600., 1200., 1800., hour, 2 * hour, 6 * hour})
            if (round >= least) {
                step_ = round;
                return;
            }
    const double decade = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1, 2, 5, 10})
        if ((step_ = factor * decade) >= least * (1 - 1e-9)) return;
}

std::string TimeTicks::label(int tick) const {
    const double time = tick * step_;
    if (seconds_ <= colons)
        return format("%.*f", std::max(0, static_cast<int>(std::ceil(-std::log10(step_) - 1e-9))),
                      time);
    const auto total = static_cast<long>(std::lround(time));
    if (seconds_ <= 2 * hour) return format("%ld:%02ld", total / 60, total % 60);
    return format("%ld:%02ld", total / 3600, total / 60 % 60);
}

std::string TimeTicks::unit() const {
    return seconds_ <= colons ? "s" : seconds_ <= 2 * hour ? "min:s" : "h:min";
}

}   // namespace kfm::tool
