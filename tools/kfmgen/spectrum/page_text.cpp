#include "page_text.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "power_spectrum.h"

namespace kfm::tool {
namespace {

constexpr std::string_view ramp = " .:-=+*#%@";

}   // namespace

std::string hertz(double frequency, int decimals) {
    if (frequency < 99999) return format("%.*f", decimals, frequency);
    if (frequency < 99999e3) return format("%.1fk", frequency / 1e3);
    return format("%.1fM", frequency / 1e6);
}

std::string roundHertz(double frequency) {
    return frequency < 1e3   ? format("%.0f", frequency)
           : frequency < 1e6 ? format("%.0fk", frequency / 1e3)
                             : format("%.0fM", frequency / 1e6);
}

std::string difference(double frequency) {
    return frequency < 1e3   ? format("%.3g", frequency)
           : frequency < 1e6 ? format("%.3gk", frequency / 1e3)
                             : format("%.3gM", frequency / 1e6);
}

std::string samples(std::uint64_t count) {
    return std::to_string(count) + (count == 1 ? " sample" : " samples");
}

std::string level(double decibels) {
    if (decibels < silence) return "    silent";
    return format("%7.1f dB", std::round(10 * decibels) / 10 + 0.0);   // no negative zero
}

int decimals(double step) {
    return std::clamp(static_cast<int>(std::ceil(-std::log10(step) - 1e-9)), 0, 5);
}

std::string cut(const std::string& name) {
    if (name.size() <= pageWidth) return name;
    return "..." + name.substr(name.size() - (pageWidth - 3));
}

char shade(double level, double loudest) {
    if (level < silence) return ramp.front();
    const double steps = (loudest - level) / dbPerShade;
    const std::size_t top = ramp.size() - 1;
    return ramp[top - static_cast<std::size_t>(std::min<double>(top, steps))];
}

std::string shadesFromLoudest() { return std::string(ramp.rbegin(), ramp.rend() - 1); }

}   // namespace kfm::tool
