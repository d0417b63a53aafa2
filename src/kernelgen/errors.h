// How exact a graph computes: its values in the arithmetic of the element type against those in
// binary128, on random signals and on single impulses. The scale factor is left out.
#pragma once

#include "kernelgen/graph.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

// In units of 2^-53, in single precision 2^-24.
struct ErrorFigures {
    double mean = 0;             // root of the mean square error over that of the outputs
    double worst = 0;            // the largest error over the largest output, of all signals
    double worstOfImpulses = 0;  // the same of all single impulses
};

ErrorFigures measureErrors(const Graph& g, const registry::Element& element, int elements,
                           int signals);

}   // namespace kfm::kernelgen
