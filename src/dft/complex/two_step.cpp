#include "dft/complex/two_step.h"

#include <stdexcept>

namespace kfm::dft::complex {

using kernelgen::chineseRemainder;
using kernelgen::Plan;

namespace {

// The x below n with a * x = value modulo n.
int divideModulo(int value, int a, int n) {
    for (int x = 0; x < n; ++x)
        if (a * x % n == value % n) return x;
    throw std::logic_error("no inverse");
}

// Good-Thomas with factors of length a and b: position of (i, j), and i of a position.
int join(int i, int a, int j, int b) { return (b * i + a * j) % (a * b); }
int part(int position, int a, int b) { return divideModulo(position, b, a); }

}   // namespace

TwoStep::TwoStep(const Plan& plan, bool joined)
    : first(plan.first()), second(plan.second()), core_(plan) {
    if (joined) {
        outsideFirst_ = plan.second().kind == Plan::Kind::ct;
        core_ = outsideFirst_ ? plan.second() : plan.first();
        outside_ = plan.n / core_.n;
        first = outsideFirst_ ? pfa(plan.first(), core_.first()) : core_.first();
        second = outsideFirst_ ? core_.second() : pfa(core_.second(), plan.second());
    }
    rows = second.n;
    columns = first.n;
}

int TwoStep::input(int r, int i) const {
    const int a = core_.first().n, b = core_.second().n, c = outside_;
    const int outsidePart = outsideFirst_ ? part(i, c, a) : part(r, c, b);
    if (outsideFirst_) i = part(i, a, c);
    else r = part(r, b, c);
    const int inside = core_.kind == Plan::Kind::ct ? r + b * i : join(i, a, r, b);
    return join(outsidePart, c, inside, core_.n);
}

int TwoStep::output(int k1, int k2) const {
    const int a = core_.first().n, b = core_.second().n, c = outside_;
    const int outsidePart = (outsideFirst_ ? k1 : k2) % c;
    const int inside = core_.kind == Plan::Kind::ct ? k1 % a + a * (k2 % b)
                                                    : chineseRemainder(k1 % a, a, k2 % b, b);
    return chineseRemainder(outsidePart, c, inside, core_.n);
}

long TwoStep::exponent(int r, int k1) const {
    if (core_.kind != Plan::Kind::ct) return 0;
    const int a = core_.first().n, b = core_.second().n;
    return long(outsideFirst_ ? r : part(r, b, outside_)) * (k1 % a);
}

}   // namespace kfm::dft::complex
