// The single-precision lane mappings, one function each. All of them build the complete graph of a
// kernel, loads and stores included.
#pragma once

#include <functional>
#include <vector>

#include "dft/complex/lanes.h"
#include "dft/complex/two_step.h"

namespace kfm::dft::complex {

using kernelgen::Plan;

// Where the samples of a transform stand among the elements of the source.
using ElementMap = std::function<int(int)>;

// One transform in vectors whose elements are output numbers, not yet stored.
std::vector<LaneVector> rowTransform(Graph& g, const TwoStep& step, Sign sign,
                                     const ElementMap& input);
// Twiddle factors of row r with columns in the lanes; unused lanes take those of the last column.
Complex twiddleColumns(Graph& g, const TwoStep& step, Sign sign, Complex z, int r,
                       const Elements& columns);

std::vector<LaneVector> raderRowTransform(Graph& g, const Plan& plan, Sign sign,
                                          const ElementMap& input);
std::vector<LaneVector> raderPairTransform(Graph& g, const Plan& plan, Sign sign,
                                           const ElementMap& input);

void elementGraph(Graph& g, const Plan& plan, Sign sign);
void rowPairGraph(Graph& g, const Plan& plan, Sign sign);
void twoColumnGraph(Graph& g, const Plan& plan, Sign sign);
void raderMirrorGraph(Graph& g, const Plan& plan, Sign sign);
void raderHalfGraph(Graph& g, const Plan& plan, Sign sign);

}   // namespace kfm::dft::complex
