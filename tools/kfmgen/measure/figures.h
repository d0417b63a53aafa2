// What is measured of a transform, and how it is reported: pages for a terminal, tables for programs,
// pictures.
#pragma once

#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "measure/subjects.h"
#include "output/result_writer.h"
#include "pictures/plots.h"

namespace kfm::tool {

struct Figure {
    std::string name, family;
    const registry::Element* element;
    int length;
    double ours;
    std::optional<double> peer;      // of what it is measured beside
    std::string peerName;            // FFTW's version, "plain loop"
    std::optional<double> largest;   // of an error that is a mean

    std::optional<double> ratio() const {
        return peer && *peer > 0 ? std::optional(ours / *peer) : std::nullopt;
    }
};
inline bool isFftw(const Figure& figure) { return figure.peerName != "plain loop"; }
using Figures = std::span<const Figure>;

// Of what is not measured yet.
Figure figureOf(const Subject& subject);

// Which figures these are, in words.
struct Measure {
    std::string title;
    std::string ours;     // over a column
    std::string member;   // of rows for programs
    bool hasLargest;
};

// Of one family and element type each, in the order of the figures.
using FigureGroup = std::vector<const Figure*>;
std::vector<FigureGroup> grouped(Figures figures);

// One family: a row for each length. Several: a row for each family and element type.
void printPage(std::ostream& out, const Measure& measure, Figures figures);

// CSV or JSON lines, a row for each function.
void printRows(std::ostream& out, const Measure& measure, Format format, Figures figures);

// Figures over lengths, and ratios beside them where there are any. Of several families those of the
// complex and the real DFT and of the Hartley transform are drawn.
std::string figuresScript(PictureKind kind, const Caption& caption, const Measure& measure,
                          Figures figures);

}   // namespace kfm::tool
