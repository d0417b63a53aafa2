// Errors of the outputs against the definition summed in binary128, beside those of FFTW's plans on
// the same random signals.
#pragma once

#include <vector>

#include "measure/figures.h"

namespace kfm::tool {

extern const Measure accuracyMeasure;

// In units of the last place, 2^-24 in single and 2^-53 in double precision: the root of the mean
// square error over that of the outputs, and the largest error over the largest output of its signal.
std::vector<Figure> measureAccuracy(std::span<const Subject> subjects, int signals);

}   // namespace kfm::tool
