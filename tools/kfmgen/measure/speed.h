// The time of a call, beside FFTW's where it is installed.
#pragma once

#include <vector>

#include "measure/figures.h"

namespace kfm::tool {

extern const Measure speedMeasure;

// ns of a call, each the least over all batches of all rounds, which lie a while apart because a
// neighbour's work lasts longer than the batches of one function.
std::vector<Figure> measureSpeed(std::span<const Subject> subjects, int batches, int rounds);

}   // namespace kfm::tool
