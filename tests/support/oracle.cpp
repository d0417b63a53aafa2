#include "support/oracle.h"

#include <cmath>

namespace kfm::tests {
namespace {

kfm::definition::Transform defined(const Transform& transform) {
    return {*transform.family, *transform.element, transform.length};
}

}   // namespace

std::vector<Quad> definition(const Transform& transform, const Signal& source) {
    return defined(transform)(source);
}

bool dividesByN(const Transform& transform, int flag) {
    return (flag == kfmScaleFwdByN && !transform.inverse()) ||
           (flag == kfmScaleInvByN && (transform.inverse() || transform.selfInverse()));
}

Quad scaleFactor(const Transform& transform, int flag) {
    const Quad length = transform.length;
    if (flag == kfmScaleBySqrtN) return 1 / quad::sqrt(length);
    return dividesByN(transform, flag) ? 1 / length : Quad(1);
}

// The nearest value to the true factor; but the real DFT takes the root first, rounded, and then
// the quotient.
double roundedScaleFactor(const Transform& transform, int flag) {
    const Quad exact = scaleFactor(transform, flag);
    if (!transform.element->doublePrecision) return static_cast<double>(static_cast<float>(exact));
    const bool realDft = !transform.element->complex && !transform.selfInverse();
    if (realDft && flag == kfmScaleBySqrtN) return 1 / std::sqrt(double(transform.length));
    return static_cast<double>(exact);
}

double errorInUnits(const Transform& transform, const Signal& actual,
                    const std::vector<Quad>& expected) {
    return kfm::definition::errorInUnits(actual, expected, defined(transform).largest(expected),
                                         transform.element->doublePrecision);
}

}   // namespace kfm::tests
