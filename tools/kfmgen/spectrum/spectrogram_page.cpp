#include "spectrogram_page.h"

#include <cmath>

#include "page_text.h"
#include "time_ticks.h"

namespace kfm::tool {
namespace {

constexpr std::size_t margin = 8;

// The frequency that a row is labelled with; 0 for none.
double labelled(double lower, double upper) {
    for (double decade = 1; decade < upper; decade *= 10)
        for (const int factor : {1, 2, 5})
            if (lower <= factor * decade && factor * decade < upper) return factor * decade;
    return 0;
}

void printTimes(double seconds, std::ostream& out) {
    const double columnSeconds = seconds / pageColumns;
    const std::size_t columns = pageColumns;
    const TimeTicks ticks(seconds, 8);
    std::string marks(margin + columns, ' '), labels;
    for (int tick = 0;; ++tick) {
        const auto column = static_cast<std::size_t>(tick * ticks.step() / columnSeconds + 1e-6);
        if (column >= columns) break;
        marks[margin + column] = '|';
        const std::string label = ticks.label(tick);
        const std::size_t begin = margin + column;
        if (begin + label.size() > pageWidth - ticks.unit().size() - 1) break;
        if (begin < labels.size() + 1) continue;   // no room between them
        labels.resize(std::max(labels.size(), begin), ' ');
        labels.replace(begin, std::string::npos, label);
    }
    out << marks.substr(0, marks.find_last_not_of(' ') + 1) << '\n'
        << labels << ' ' << ticks.unit() << '\n';
}

}   // namespace

std::vector<double> pageBands(double rate, std::size_t frame) {
    const FrequencyGrid grid{rate, frame, frame};
    return proportionalBands(grid.lowest(),
                             std::pow(grid.highest() / grid.lowest(), 1.0 / pageRows), pageRows);
}

void printSpectrogram(const Spectrogram& spectrogram, std::span<const double> edges,
                      std::ostream& out) {
    for (std::size_t row = spectrogram.rows(); row-- > 0;) {
        const double frequency = labelled(edges[row], edges[row + 1]);
        const std::string label = frequency > 0 ? roundHertz(frequency) : "";
        const bool top = row + 1 == spectrogram.rows();
        out << format("%*s |", static_cast<int>(margin) - 2, top ? "Hz" : label.c_str());
        for (std::size_t column = 0; column < pageColumns; ++column)   // stretched to the page
            out << shade(spectrogram.level(row, column * spectrogram.columns() / pageColumns),
                         spectrogram.loudest());
        out << "|\n";
    }
    printTimes(spectrogram.columnSeconds() * static_cast<double>(spectrogram.columns()), out);
}

}   // namespace kfm::tool
