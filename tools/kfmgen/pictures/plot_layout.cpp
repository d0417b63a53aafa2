#include "pictures/plot_layout.h"

#include <algorithm>
#include <cmath>

#include "pictures/gnuplot.h"
#include "spectrum/page_text.h"

namespace kfm::tool {

// Only a standalone SVG has its images inside, not in files beside it.
std::string PlotLayout::head(PictureKind kind, const Caption& caption) const {
    const bool png = kind == PictureKind::png;
    std::string text = "set encoding utf8\n";
    text += format("set terminal %s noenhanced size %d,%d font '%s' background rgb '#ffffff'\n",
                   png ? "pngcairo" : "svg standalone", width, height_,
                   png ? "Sans,11" : "sans-serif,14");
    text += "set border 15 lw 1 lc rgb '#303030'\nset tics nomirror out scale 0.7\n";
    text += format("set label 1 %s at screen %.6f,%.6f font '%s'\n",
                   scriptText(caption.title).c_str(), x(left), y(26), png ? "Sans:Bold,15" : ",20");
    text += format("set label 2 %s at screen %.6f,%.6f textcolor rgb '%s'\n",
                   scriptText(caption.details).c_str(), x(left), y(54), grey);
    return text;
}

std::string PlotLayout::place(const Pixels& panel) const {
    return format("set lmargin at screen %.6f\nset rmargin at screen %.6f\n"
                  "set tmargin at screen %.6f\nset bmargin at screen %.6f\n",
                  x(panel.left), x(panel.right), y(panel.top), y(panel.bottom));
}

DecibelRange rangeBelow(double loudest, double span) {
    const double most = std::max(silence + span, 10 * std::ceil(loudest / 10));
    return {most - span, most};
}

}   // namespace kfm::tool
