// The script of a spectrum.
#include <algorithm>
#include <cmath>

#include "pictures/gnuplot.h"
#include "pictures/plot_layout.h"
#include "spectrum/page_text.h"

namespace kfm::tool {
namespace {

constexpr double shownRange = 120;   // dB, at most
constexpr int plotHeight = 500;
constexpr int right = PlotLayout::width - 36;

struct Bins {
    std::size_t first, end;
};

Bins shownBins(const FrequencyGrid& grid, const FrequencyAxis& axis) {
    return {grid.firstBin(axis.lowest), std::min(grid.bins, grid.firstBin(axis.highest))};
}

double levelOf(const PowerSpectrum& spectrum, std::size_t bin) {
    return std::max(silence, spectrum.decibels(spectrum.powers()[bin]));
}

// As far down as there is something to see.
DecibelRange shown(std::span<const PowerSpectrum> channels, const Bins& bins) {
    double loudest = silence, faintest = 0;
    for (const PowerSpectrum& channel : channels)
        for (std::size_t bin = bins.first; bin < bins.end; ++bin) {
            loudest = std::max(loudest, levelOf(channel, bin));
            faintest = std::min(faintest, levelOf(channel, bin));
        }
    const DecibelRange range = rangeBelow(loudest + 2, shownRange);
    return {std::clamp(10 * std::floor(faintest / 10), range.least, range.most - 20), range.most};
}

std::string frequencyAxis(const FrequencyAxis& axis) {
    std::string text = format("set xrange [%.9g:%.9g]\n", axis.lowest, axis.highest);
    if (!axis.logarithmic) {
        const double unit = axis.highest < 2000 ? 1 : 1000;
        return format("set xrange [%.9g:%.9g]\n", axis.lowest / unit, axis.highest / unit) +
               "set xlabel 'Frequency in " + (unit == 1 ? "Hz" : "kHz") + "' offset 0,0.2\n";
    }
    std::string list;
    for (double decade = 1e-3; decade < axis.highest; decade *= 10)
        for (int factor = 1; factor < 10; ++factor) {
            const double frequency = factor * decade;
            if (frequency < axis.lowest || frequency > axis.highest) continue;
            const bool labelled = factor == 1 || factor == 2 || factor == 5;
            const std::string label =
                frequency < 1 ? format("%g", frequency) : roundHertz(frequency);
            list += format("%s'%s' %.9g%s", list.empty() ? "" : ", ", labelled ? label.c_str() : "",
                           frequency, labelled ? "" : " 1");
        }
    return text + "set logscale x 10\nset xtics (" + list +
           ")\nset xlabel 'Frequency in Hz' offset 0,0.2\n";
}

// Rows of frequency and level, by a name that the plot refers to.
std::string data(const PowerSpectrum& spectrum, const FrequencyGrid& grid, const Bins& bins,
                 double unit, std::size_t number) {
    std::string text = format("$channel%zu << END\n", number);
    for (std::size_t bin = bins.first; bin < bins.end; ++bin)
        text += format("%.7g %.6g\n", (static_cast<double>(bin) + 0.5) * grid.step() / unit,
                       levelOf(spectrum, bin));
    return text + "END\n";
}

}   // namespace

std::string spectrumScript(PictureKind kind, const Caption& caption,
                           std::span<const PowerSpectrum> channels, const FrequencyGrid& grid,
                           const FrequencyAxis& axis, const std::optional<DecibelRange>& range) {
    const Bins bins = shownBins(grid, axis);
    const DecibelRange levels = range ? *range : shown(channels, bins);
    const PlotLayout layout(PlotLayout::top + plotHeight + PlotLayout::bottom);
    const double unit = !axis.logarithmic && axis.highest >= 2000 ? 1000 : 1;
    std::string script =
        layout.head(kind, caption) +
        layout.place({PlotLayout::left, right, PlotLayout::top, PlotLayout::top + plotHeight}) +
        frequencyAxis(axis) + format("set yrange [%.9g:%.9g]\n", levels.least, levels.most) +
        "set ylabel 'Level in dB, 0 dB = full-scale sine' offset 0.4,0\n"
        "set grid xtics ytics lc rgb '#d8d8d8' lw 1 lt 1\n"
        "set key top right inside opaque samplen 2\n";
    std::string plot;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        script += data(channels[i], grid, bins, unit, i + 1);
        plot += format("%s$channel%zu using 1:2 with lines lw 1.4 lc rgb '%s' ",
                       i == 0 ? "plot " : ", ", i + 1, lineColour(i));
        plot += channels.size() == 1 ? "notitle" : "title " + scriptText(caption.channels[i]);
    }
    return script + plot + "\n";
}

}   // namespace kfm::tool
