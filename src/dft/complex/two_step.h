// The index maps of a transform in two steps: transforms of length first.n over the columns i of
// each row, twiddle factors if there are any, transforms of length second.n over the rows r of
// each column k1.
#pragma once

#include "kernelgen/plan.h"

namespace kfm::dft::complex {

class TwoStep {
public:
    // The steps of the plan's outermost node; `joined`: of the twiddled node below it, which one
    // factor joins without twiddle factors: pfa(c, ct(a, b)) has rows of length c*a, and
    // pfa(ct(a, b), c) has b*c rows.
    explicit TwoStep(const kernelgen::Plan& plan, bool joined = false);

    int input(int r, int i) const;
    int output(int k1, int k2) const;
    // The twiddle factor is exp(-+ 2 pi i exponent / order()).
    long exponent(int r, int k1) const;
    int order() const { return core_.n; }

    kernelgen::Plan first, second;
    int rows, columns;

private:
    kernelgen::Plan core_;   // the node that is split between rows and columns
    int outside_ = 1;        // the length of the factor that joins one side
    bool outsideFirst_ = false;
};

}   // namespace kfm::dft::complex
