// How exact a graph computes: its values in the arithmetic of the element type against those in
// binary128, in units of 2^-53, in single precision 2^-24.
#pragma once

#include "kernelgen/graph.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

struct ErrorFigures {
    double mean = 0;    // root of the mean square error over that of the outputs, unscaled
    double worst = 0;   // the largest error over the largest output of a signal, of all signals,
                        // unscaled and scaled by 1/sqrt(n)
};

// On so many random signals of so many elements.
ErrorFigures errorsOnSignals(const Graph& g, const registry::Element& element, int elements,
                             int signals);
// On single impulses at every position, or at every so many of them.
ErrorFigures errorsOnImpulses(const Graph& g, const registry::Element& element, int elements,
                              int step = 1);

}   // namespace kfm::kernelgen
