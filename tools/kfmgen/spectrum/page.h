// The spectrum of a sound as a page of text for a terminal of 80 columns: a row per slice with its
// level, its tones and a shade per third of an octave; then the tones of the whole.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "frequency_grid.h"
#include "peaks.h"
#include "slices.h"

namespace kfm::tool {

class SpectrumPage {
public:
    // What is shown, in words.
    struct Subject {
        std::string name;
        std::string channel;
    };

    void addRow(const Slice& slice, const FrequencyGrid& grid);
    void print(const Subject& subject, const Slice& whole, const FrequencyGrid& grid,
               double sliceSeconds, std::ostream& out) const;

private:
    // No more than is shown, so that a page of many rows takes little memory.
    struct Row {
        double start;
        float level;
        std::vector<float> tones;
        std::vector<float> columns;
    };

    void printRows(const FrequencyGrid& grid, double sliceSeconds, std::ostream& out) const;

    std::vector<Row> rows_;
};

}   // namespace kfm::tool
