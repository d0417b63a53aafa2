// What the pictures have in common: paper, type, margins and caption.
#pragma once

#include <iterator>
#include <string>

#include "pictures/plots.h"

namespace kfm::tool {

struct Pixels {
    int left, right, top, bottom;   // of a panel, from the left and from the top of the picture
};

class PlotLayout {
public:
    static constexpr int width = 1200;
    static constexpr int left = 86, top = 76, bottom = 70;   // margins
    static constexpr const char* grey = "#5a5a5a";

    explicit PlotLayout(int height) : height_(height) {}

    // What a script begins with.
    std::string head(PictureKind kind, const Caption& caption) const;
    // Where the next plot goes.
    std::string place(const Pixels& panel) const;

    double x(int pixel) const { return static_cast<double>(pixel) / width; }
    double y(int pixel) const { return 1 - static_cast<double>(pixel) / height_; }

private:
    int height_;
};

// Told apart also by those who do not see all colours.
inline const char* lineColour(std::size_t i) {
    constexpr const char* colours[] = {"#1f5fa8", "#d9541e", "#2a8a4a", "#8a3fa0",
                                       "#b08a00", "#3aa6b9", "#c23b6d", "#5a5a5a"};
    return colours[i % std::size(colours)];
}

// Levels between round numbers of decibels, with room for `loudest` at the top.
DecibelRange rangeBelow(double loudest, double span);

}   // namespace kfm::tool
