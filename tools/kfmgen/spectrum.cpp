#include "spectrum.h"

#include <cmath>
#include <iomanip>

#include "spectrum_page.h"

namespace kfm::tool {
namespace {

// The shortest of 0.1, 0.2, 0.5, 1, 2, 5 ... seconds that makes no more than 20 slices.
double fittingSlice(double duration) {
    for (double decade = 0.1;; decade *= 10)
        for (const double step : {1.0, 2.0, 5.0})
            if (duration <= 20 * decade * step) return decade * step;
}

void printSubject(const std::string& path, const Sound& sound, double duration,
                  const BandPower& power, std::ostream& out) {
    out << std::fixed << std::setprecision(2) << path << ": " << duration << " s, " << sound.rate
        << " Hz, " << (sound.channels == 1 ? "mono" : "stereo, mixed to mono") << "\n"
        << std::setprecision(0) << "analysed at " << power.rate << " Hz by the "
        << bandTransformLength << "-point real DFT: one band per " << power.bandWidth
        << " Hz\n\n";
}

}   // namespace

void showSpectrum(const std::string& path, double sliceSeconds, std::ostream& out) {
    const auto sound = readSound(path);
    if (!sound) throw InputError(path + ": not a sound file that can be read");
    if (sound->samples.empty()) throw InputError(path + ": no samples");
    const double duration = static_cast<double>(sound->samples.size()) / sound->rate;
    const BandPower power =
        bandPower(*sound, sliceSeconds > 0 ? sliceSeconds : fittingSlice(duration));
    printSubject(path, *sound, duration, power, out);
    printPage(power, out);
}

}   // namespace kfm::tool
