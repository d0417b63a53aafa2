// Plans of the DCT-IV, made once for each length and thread: a plan serves one thread at a time.
#pragma once

#include "kfmgen.h"

namespace kfm::python {

// kfmErrSize, or another status where memory is exhausted. The plan is valid until the calling thread
// asks for other lengths, of which it keeps the last few, or ends.
KfmStatus dct4Plan(int length, const KfmDCT4Spec_32f*& plan);
KfmStatus dct4Plan(int length, const KfmDCT4Spec_64f*& plan);

// What making a plan would say of the length: kfmOk or kfmErrSize.
template <class Spec>
KfmStatus dct4LengthStatus(int length);

}   // namespace kfm::python
