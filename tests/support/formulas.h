// The real transforms of the shortest lengths, written out operation by operation: sums and
// differences are of the element type, products by constants in double precision; a value is
// rounded to the element type before it is scaled, or scaled in double and rounded once.
#pragma once

#include "support/signal.h"

namespace kfm::tests {

// What a function gives, in the CCS layout where it reads or writes a spectrum. Primes have their
// general formulas; of the other lengths there are 2, 4 and 8, for the Hartley transform no others;
// for the forward real DFT also 6, 9, 10, 14 and 22.
Signal formulaOutput(const Transform& transform, const Signal& source, int flag);

}   // namespace kfm::tests
