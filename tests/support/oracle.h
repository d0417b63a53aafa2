// What the outputs of a function under test have to be: the definition of its transform, and the
// exact scale factors.
#pragma once

#include <vector>

#include "definition/definition.h"
#include "support/signal.h"

namespace kfm::tests {

using definition::UnitRoot, definition::unitRoot;

// The transform of `source` without scaling, in the destination's layout.
std::vector<Quad> definition(const Transform& transform, const Signal& source);

// Whether the flag divides by N when it comes to this transform.
bool dividesByN(const Transform& transform, int flag);

// The factor that `flag` selects, not yet rounded to an element type.
Quad scaleFactor(const Transform& transform, int flag);

// The factor that outputs are multiplied by, a value of the element type.
double roundedScaleFactor(const Transform& transform, int flag);

// The largest error over the largest output, in units of the element type's last place.
double errorInUnits(const Transform& transform, const Signal& actual,
                    const std::vector<Quad>& expected);

}   // namespace kfm::tests
