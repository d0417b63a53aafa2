#include "kernelgen/rader.h"

namespace kfm::kernelgen {

ComplexConstant scaled(ComplexConstant c, const Constant& weight) {
    return {c.re * weight, c.im * weight};
}

ComplexConstant constantBin(std::span<const Constant> sequence, int k) {
    Constant::Wide re = 0, im = 0;
    const long n = static_cast<long>(sequence.size());
    for (long t = 0; t < n; ++t) {
        re += sequence[t].value() * Constant::cosTurn(k * t, n).value();
        im -= sequence[t].value() * Constant::sinTurn(k * t, n).value();
    }
    return {Constant::settled(re), Constant::settled(im)};
}

Constant binWeight(int k, int n) { return Constant::ratio(k == 0 || 2 * k == n ? 1 : 2, n); }

ComplexConstant weightedBin(std::span<const Constant> sequence, int k) {
    return scaled(constantBin(sequence, k), binWeight(k, static_cast<int>(sequence.size())));
}

RaderOrder::RaderOrder(const Plan& plan)
    : prime(plan.n), input(plan.n - 1), output(plan.n - 1), cosines(plan.n - 1), sines(plan.n - 1) {
    const int p = prime;
    for (int m = 0; m < p - 1; ++m) {
        input[m] = powerModulo(plan.root, m + plan.shift, p);
        output[(p - 1 - m) % (p - 1)] = powerModulo(plan.root, m, p);
    }
    for (int t = 0; t < p - 1; ++t) {
        const long root = long(output[t]) * input[0] % p;
        cosines[t] = Constant::cosTurn(root, p);
        sines[t] = Constant::sinTurn(root, p);
    }
}

OddRader::OddRader(const Plan& plan)
    : prime(plan.n), q((plan.n - 1) / 2), order_(plan),
      cosines_(order_.cosines.begin(), order_.cosines.begin() + q) {
    for (int m = 0; m < q; ++m) sines_.push_back(m % 2 == 0 ? order_.sines[m] : -order_.sines[m]);
}

}   // namespace kfm::kernelgen
