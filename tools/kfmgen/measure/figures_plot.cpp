// The picture of figures as a script for gnuplot.
#include <algorithm>

#include "measure/figures.h"
#include "pictures/gnuplot.h"
#include "pictures/plot_layout.h"
#include "spectrum/page_text.h"

namespace kfm::tool {
namespace {

constexpr int panelHeight = 440, keyHeight = 72, gap = 96;
constexpr int right = PlotLayout::width - 36;
constexpr int middle = (PlotLayout::left + right - gap) / 2;
constexpr std::string_view shownOfSeveral[] = {"DFTFwd_CToC", "DFTFwd_RToCCS", "Hartley"};

std::vector<FigureGroup> shown(Figures figures) {
    std::vector<FigureGroup> groups = grouped(figures);
    const auto isShown = [](const FigureGroup& group) {
        return std::ranges::find(shownOfSeveral, group.front()->family) != std::end(shownOfSeveral);
    };
    if (std::ranges::any_of(groups, isShown) &&
        groups.back().front()->family != groups.front().front()->family)
        std::erase_if(groups, std::not_fn(isShown));
    return groups;
}

bool isCompared(const FigureGroup& group) {
    return std::ranges::any_of(group,
                               [](const Figure* figure) { return figure->ratio().has_value(); });
}

std::optional<double> ours(const Figure& figure) { return figure.ours; }
std::optional<double> peer(const Figure& figure) { return figure.peer; }
std::optional<double> ratio(const Figure& figure) { return figure.ratio(); }

// One panel: marks over the lengths, whose neighbours have nothing to do with each other.
class Panel {
public:
    void add(const FigureGroup& group, std::size_t colour, const std::string& title,
             std::optional<double> (*valueOf)(const Figure&)) {
        const std::string name = format("$values%zu", ++count_);
        data_ += name + " << END\n";
        for (const Figure* figure : group)
            if (const std::optional<double> value = valueOf(*figure); value && *value > 0) {
                data_ += format("%d %.6g\n", figure->length, *value);
                least_ = std::min(least_, *value);
                most_ = std::max(most_, *value);
                longest_ = std::max(longest_, figure->length);
            }
        data_ += "END\n";
        const bool theirs = valueOf == peer;
        plot_ += format("%s%s using 1:2 with points pt %d lc rgb '%s' title %s",
                        plot_.empty() ? "plot " : ", ", name.c_str(), theirs ? 6 : 7,
                        lineColour(colour), scriptText(title).c_str());
    }

    std::string script(const std::string& title) const {
        return data_ + "set ylabel " + scriptText(title) + " offset 0.4,0\n" +
               (longest_ > 64 ? format("set logscale x 2\nset xrange [1.7:%d]\n", longest_ * 6 / 5)
                              : format("set xtics 8\nset xrange [0:%d]\n", longest_ + 2)) +
               format("set yrange [%.6g:%.6g]\n", least_ / 1.2, most_ * 1.2) + plot_ + "\n";
    }

private:
    std::string data_, plot_;
    std::size_t count_ = 0;
    double least_ = 1, most_ = 1;
    int longest_ = 0;
};

}   // namespace

std::string figuresScript(PictureKind kind, const Caption& caption, const Measure& measure,
                          Figures figures) {
    const std::vector<FigureGroup> groups = shown(figures);
    Panel values, ratios;
    bool compared = false;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const Figure& first = *groups[i].front();
        const std::string name = first.family + " " + std::string(first.element->suffix);
        values.add(groups[i], i, name, ours);
        if (!isCompared(groups[i])) continue;
        compared = true;
        if (groups.size() <= 2)
            values.add(groups[i], i, name + (isFftw(first) ? ", FFTW" : ", plain loop"), peer);
        ratios.add(groups[i], i, name, ratio);
    }
    const PlotLayout layout(PlotLayout::top + panelHeight + PlotLayout::bottom + keyHeight);
    const auto place = [&](int from, int to) {
        return layout.place({from, to, PlotLayout::top, PlotLayout::top + panelHeight}) +
               format("set key at screen %.6f,%.6f\n", layout.x((from + to) / 2),
                      layout.y(PlotLayout::top + panelHeight + PlotLayout::bottom + keyHeight / 2));
    };
    std::string script = layout.head(kind, caption) +
                         format("set pointsize %g\n", kind == PictureKind::png ? 0.8 : 0.5) +
                         "set multiplot\nset xlabel 'Length'\nset logscale y\n"
                         "set ytics add (0.2, 0.3, 0.5, 0.7, 1, 1.5, 2, 3, 5, 20, 50, 200, 500)\n"
                         "set grid xtics ytics lc rgb '#d8d8d8' lw 1 lt 1\n"
                         "set key horizontal center maxrows 3 samplen 1\n" +
                         place(PlotLayout::left, compared ? middle : right) +
                         values.script(measure.title);
    if (compared)
        script += "unset label 1\nunset label 2\n" + place(middle + gap, right) +
                  "set arrow 1 from graph 0,first 1 to graph 1,first 1 nohead lc rgb '#303030' "
                  "lw 1.5 dt 2\n" +
                  ratios.script("Ratio to FFTW: below 1 is better");
    return script + "unset multiplot\n";
}

}   // namespace kfm::tool
