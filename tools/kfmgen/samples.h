// What the commands pass to one another: samples, complex also where the imaginary part is zero,
// and the error that ends a command.
#pragma once

#include <complex>
#include <stdexcept>
#include <vector>

namespace kfm::tool {

using Sample = std::complex<double>;
using Samples = std::vector<Sample>;

// Something is wrong with what the user gave: one line that says what, exit status 2.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}   // namespace kfm::tool
