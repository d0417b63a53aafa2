// The definition of each transform summed term by term in binary128: what the library is measured
// against. Shares nothing with it: no constant, no algorithm.
#pragma once

#include <span>
#include <vector>

#include "binary128/binary128.h"
#include "registry/registry.h"

namespace kfm::definition {

// exp(2 pi i numerator / denominator); the angle is reduced to an octant on integers.
struct UnitRoot {
    Quad re, im;
};
UnitRoot unitRoot(long numerator, long denominator);

// A transform of the registry on so many samples.
struct Transform {
    const registry::Family& family;
    const registry::Element& element;
    int length;

    // Without scaling, in the destination's layout; complex values are pairs.
    std::vector<Quad> operator()(std::span<const double> source) const;

    // The largest magnitude of an output, of a whole bin where the parts of a spectrum are stored.
    Quad largest(std::span<const Quad> outputs) const;
};

// The sum of x[i] cos(pi (2i + 1)(2k + 1) / 4N) for every k.
std::vector<Quad> dct4(std::span<const double> source);

// The largest error of a real or imaginary part over the largest magnitude of an output, in units of
// 2^-53, in single precision of 2^-24.
double errorInUnits(std::span<const double> actual, std::span<const Quad> expected, Quad largest,
                    bool doublePrecision);

}   // namespace kfm::definition
