// Plans of the DCT-IV, made once for each length and thread: a plan serves one thread at a time.
#pragma once

#include "kfmgen.h"

namespace kfm::python {

enum class PlanStatus { found, badLength, noMemory };

// Valid until the calling thread asks for other lengths, of which it keeps the last few, or ends.
PlanStatus dct4Plan(int length, const KfmDCT4Spec_32f*& plan);
PlanStatus dct4Plan(int length, const KfmDCT4Spec_64f*& plan);

// Without making a plan.
bool isDct4Length(int length, bool doublePrecision);

}   // namespace kfm::python
