// The script of a spectrogram.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

#include "pictures/gnuplot.h"
#include "pictures/plot_layout.h"
#include "spectrum/page_text.h"
#include "spectrum/time_ticks.h"

namespace kfm::tool {
namespace {

// From what is least to what is most: as bright as it is loud, also without colours.
constexpr const char* palette =
    "set palette defined (0 '#04040f', 1 '#141b45', 2 '#3a1e78', 3 '#7a1f84', 4 '#b52f74', "
    "5 '#e2514f', 6 '#f68b2c', 7 '#fbc93d', 8 '#fdf8c4')\n";

constexpr double shownRange = 90;   // dB
constexpr int right = PlotLayout::width - 114;
constexpr int gap = 34;   // between panels

int panelHeight(std::size_t channels) { return channels == 1 ? 500 : 300; }

Pixels panel(std::size_t channel, std::size_t channels) {
    const int height = panelHeight(channels);
    const int first = PlotLayout::top + (channels > 1 ? gap / 2 : 0);
    const int top = first + static_cast<int>(channel) * (height + gap);
    return {PlotLayout::left, right, top, top + height};
}

// With words only below the last panel.
std::string timeAxis(double seconds, bool words) {
    const TimeTicks ticks(seconds, 12);
    std::string list;
    for (int tick = 0; tick * ticks.step() <= seconds * (1 + 1e-9); ++tick)
        list += format("%s'%s' %.9g", tick > 0 ? ", " : "", words ? ticks.label(tick).c_str() : "",
                       tick * ticks.step());
    return format("set xrange [0:%.9g]\nset xtics (%s)\n", seconds, list.c_str()) +
           (words ? "set xlabel 'Time in " + ticks.unit() + "' offset 0,0.2\n" : "");
}

std::string colourBar(const PlotLayout& layout, const Pixels& first, const Pixels& last,
                      const DecibelRange& range) {
    const double height = layout.y(first.top) - layout.y(last.bottom);
    return palette +
           format("set colorbox vertical user origin screen %.6f,%.6f size screen %.6f,%.6f\n",
                  layout.x(right + 20), layout.y(last.bottom), layout.x(18), height) +
           format("set cbrange [%.9g:%.9g]\n", range.least, range.most) +
           "set cblabel 'Level in dB, 0 dB = full-scale sine' offset 0.6,0\n"
           "set cbtics out scale 0.7\n";
}

// Row after row from the lowest frequency, as gnuplot reads them: floats of this machine.
std::string binary(const Spectrogram& spectrogram) {
    std::string bytes;
    bytes.reserve(sizeof(float) * spectrogram.rows() * spectrogram.columns());
    for (std::size_t row = 0; row < spectrogram.rows(); ++row)
        for (std::size_t column = 0; column < spectrogram.columns(); ++column) {
            const float level = spectrogram.level(row, column);
            bytes.append(reinterpret_cast<const char*>(&level), sizeof level);
        }
    return bytes;
}

// Pixels are given by their middles.
std::string image(const Spectrogram& spectrogram, double highest) {
    const double dx = spectrogram.columnSeconds();
    const double dy = highest / static_cast<double>(spectrogram.rows());
    return format("plot '-' binary array=(%zu,%zu) format='%%float32' dx=%.9g dy=%.9g "
                  "origin=(%.9g,%.9g) with image notitle\n",
                  spectrogram.columns(), spectrogram.rows(), dx, dy, dx / 2, dy / 2) +
           binary(spectrogram) + "\n";
}

}   // namespace

std::string spectrogramScript(PictureKind kind, const Caption& caption,
                              std::span<const Spectrogram* const> channels, double highest,
                              const std::optional<DecibelRange>& range) {
    const Spectrogram& first = *channels.front();
    float loudest = static_cast<float>(silence);
    for (const Spectrogram* channel : channels) loudest = std::max(loudest, channel->loudest());
    const std::size_t last = channels.size() - 1;
    const PlotLayout layout(panel(last, channels.size()).bottom + PlotLayout::bottom);
    const double seconds = first.columnSeconds() * static_cast<double>(first.columns());
    const double unit = highest < 2000 ? 1 : 1000;

    std::string script = layout.head(kind, caption) + "set multiplot\n" +
                         colourBar(layout, panel(0, channels.size()), panel(last, channels.size()),
                                   range.value_or(rangeBelow(loudest, shownRange)));
    script += format("set yrange [0:%.9g]\nset ylabel 'Frequency in %s' offset 0.4,0\n",
                     highest / unit, unit == 1 ? "Hz" : "kHz");
    for (std::size_t channel = 0; channel <= last; ++channel) {
        const Pixels place = panel(channel, channels.size());
        script += layout.place(place) + timeAxis(seconds, channel == last);
        if (last > 0)
            script += format("set label 3 %s at screen %.6f,%.6f\n",
                             scriptText(caption.channels[channel]).c_str(), layout.x(place.left),
                             layout.y(place.top - 12));
        script += image(*channels[channel], highest / unit);
        script += "unset colorbox\nunset label 1\nunset label 2\n";
    }
    return script + "unset multiplot\n";
}

}   // namespace kfm::tool
