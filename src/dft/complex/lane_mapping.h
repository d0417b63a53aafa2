// How the single-precision kernels fill the four lanes of a vector.
#pragma once

#include <string>

namespace kfm::dft::complex {

struct LaneMapping {
    enum class Kind {
        element,   // one complex element in the lower half of a vector: the smallest lengths
        rows       // four rows of the first step, a transpose, four columns of the second
    };
    Kind kind;
    std::string text() const { return kind == Kind::element ? "one element" : "rows"; }
};

}   // namespace kfm::dft::complex
