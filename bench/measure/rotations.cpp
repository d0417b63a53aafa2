#include "rotations.h"

namespace kfm::bench {

template <class Real>
void rotateInputs(const Real* __restrict source, const Real* __restrict roots,
                  Real* __restrict spectrum, std::size_t m) {
    for (std::size_t k = 0; k < m; ++k) {
        const Real re = source[2 * k], im = source[2 * m - 1 - 2 * k];
        const Real c = roots[2 * k], s = roots[2 * k + 1];
        spectrum[2 * k] = re * c + im * s;
        spectrum[2 * k + 1] = im * c - re * s;
    }
}

template <class Real>
void rotateOutputs(const Real* __restrict spectrum, const Real* __restrict roots,
                   Real* __restrict destination, std::size_t m) {
    for (std::size_t k = 0; k < m; ++k) {
        const Real re = spectrum[2 * k], im = spectrum[2 * k + 1];
        const Real c = roots[2 * k], s = roots[2 * k + 1];
        destination[2 * k] = re * c + im * s;
        destination[2 * m - 1 - 2 * k] = re * s - im * c;
    }
}

template void rotateInputs(const float*, const float*, float*, std::size_t);
template void rotateInputs(const double*, const double*, double*, std::size_t);
template void rotateOutputs(const float*, const float*, float*, std::size_t);
template void rotateOutputs(const double*, const double*, double*, std::size_t);

}   // namespace kfm::bench
