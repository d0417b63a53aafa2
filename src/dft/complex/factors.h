// How each length of the complex DFT is computed: one table per precision, a row per length.
#pragma once

#include "dft/complex/lane_mapping.h"
#include "kernelgen/plan.h"

namespace kfm::dft::complex {

kernelgen::Plan doublePrecisionPlan(int n);

struct SinglePrecisionRow {
    kernelgen::Plan plan;
    LaneMapping lanes;
};
SinglePrecisionRow singlePrecisionRow(int n);

}   // namespace kfm::dft::complex
