// The definition of each transform summed term by term in binary128, and the exact scale factors.
// Shares nothing with the library: no constant, no algorithm.
#pragma once

#include <vector>

#include "support/binary128.h"
#include "support/signal.h"

namespace kfm::tests {

// exp(2 pi i numerator / denominator); the angle is reduced to an octant on integers.
struct UnitRoot {
    Quad re, im;
};
UnitRoot unitRoot(long numerator, long denominator);

// The transform of `source` without scaling, in the destination's layout.
std::vector<Quad> definition(const Transform& transform, const Signal& source);

// Whether the flag divides by N when it comes to this transform.
bool dividesByN(const Transform& transform, int flag);

// The factor that `flag` selects, not yet rounded to an element type.
Quad scaleFactor(const Transform& transform, int flag);

// The factor that outputs are multiplied by, a value of the element type.
double roundedScaleFactor(const Transform& transform, int flag);

// The largest error of a real or imaginary part over the largest magnitude of an output (of a whole
// bin where the parts of a spectrum are stored), in units of 2^-24 or 2^-53, by the element type.
double errorInUnits(const Transform& transform, const Signal& actual,
                    const std::vector<Quad>& expected);

}   // namespace kfm::tests
