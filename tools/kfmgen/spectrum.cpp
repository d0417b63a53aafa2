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

void showSpectrum(const InputOptions& input, double sliceSeconds, std::ostream& out) {
    InputOptions mixed = input;
    if (input.channels.use == Channels::Use::unset) mixed.channels.use = Channels::Use::mix;
    const auto source = openSamples(mixed, {.taker = "spectrum"});
    if (source->rate() == 0) throw InputError(source->name() + ": is text, not a sound");
    Sound sound{source->rate(), source->channels(), {}};
    std::vector<double> block(4096);
    while (const std::size_t count = source->read(block))
        sound.samples.insert(sound.samples.end(), block.begin(), block.begin() + count);
    const double duration = static_cast<double>(sound.samples.size()) / sound.rate;
    const BandPower power =
        bandPower(sound, sliceSeconds > 0 ? sliceSeconds : fittingSlice(duration));
    printSubject(source->name(), sound, duration, power, out);
    printPage(power, out);
}

}   // namespace kfm::tool
