// The transform that undoes another.
#pragma once

#include "transform/frame_transform.h"

namespace kfm::tool {

struct InverseChoice {
    Choice choice;
    double factor;   // what its results still have to be multiplied by
};

// Throws UsageError for a family that takes spectra.
InverseChoice inverseOf(const Choice& forward);

}   // namespace kfm::tool
