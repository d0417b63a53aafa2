// What the plans use of FFTW 3's documented binary interface, so that its headers need not be there
// for the libraries to be measured against where they are.
#pragma once

namespace kfm::bench::fftw {

using Plan = struct OpaquePlan*;

// How a plan is searched, and what it may do with its source.
enum Flag : unsigned { measure = 0, destroyInput = 1, preserveInput = 1 << 4, patient = 1 << 5 };

enum Sign : int { forward = -1, backward = +1 };

// Transforms from real numbers to real numbers.
enum Kind : int { dht = 2, redft11 = 6 };

}   // namespace kfm::bench::fftw
