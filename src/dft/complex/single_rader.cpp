#include "dft/complex/single_rader.h"

namespace kfm::dft::complex {

using namespace kernelgen;

std::vector<Complex> sumsAndDifferences(Graph& g, std::span<const MirroredPair> pairs) {
    std::vector<Complex> result;
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        const bool two = i + 1 < pairs.size();
        const auto elements = [&](std::array<int, 2> MirroredPair::*side) {
            const auto [e0, e1] = pairs[i].*side;
            if (!two) return Elements{e0, e1, -1, -1};
            const auto [e2, e3] = pairs[i + 1].*side;
            return Elements{e0, e1, e2, e3};
        };
        const Complex z = load4(g, elements(&MirroredPair::z));
        const Complex mirror = load4(g, elements(&MirroredPair::mirror));
        splitMirrored(g, z, mirror, two, result);
    }
    return result;
}

namespace {

LaneConstant laneConstants(const std::array<ComplexConstant, 4>& lanes,
                           Constant ComplexConstant::*part) {
    LaneConstant result;
    for (const ComplexConstant& lane : lanes) result.push_back(lane.*part);
    return result;
}

// Here real and imaginary mean those of a bin.
Complex scaleBin(Graph& g, Complex bin, const std::array<ComplexConstant, 4>& lanes) {
    return scaleLanes(g, bin, laneConstants(lanes, &ComplexConstant::re),
                      laneConstants(lanes, &ComplexConstant::im));
}

bool isZero(const std::array<ComplexConstant, 4>& lanes) {
    for (const ComplexConstant& lane : lanes)
        if (!lane.re.isZero() || !lane.im.isZero()) return false;
    return true;
}

Complex multiplyBin(Graph& g, Complex bin, const BinConstants& constants) {
    const Complex own = scaleBin(g, bin, constants.own);
    if (isZero(constants.other)) return own;
    const auto swapped = [&](Ref value) {
        return value.isZero() ? value : g.select(value, neighbours);
    };
    return add(g, own, scaleBin(g, {swapped(bin.re), swapped(bin.im)}, constants.other));
}

std::vector<Ref> convolveReal(Graph& g, const Plan& plan, std::vector<Ref> inputs,
                              const std::function<BinConstants(int)>& constants, Ref x0, Ref& sum) {
    inputs.resize(plan.n);
    HalfSpectrum spectrum = realDft(g, plan, inputs);
    sum = spectrum[0].re;
    for (int k = 0; 2 * k <= plan.n; ++k) spectrum[k] = multiplyBin(g, spectrum[k], constants(k));
    spectrum[0].re = g.add(spectrum[0].re, x0);
    return realSynthesis(g, plan, spectrum);
}

}   // namespace

std::vector<Complex> convolve(Graph& g, const Plan& plan, std::span<const Complex> inputs,
                              const std::function<BinConstants(int)>& constants, Complex x0,
                              Complex& sums) {
    std::vector<Ref> re, im;
    for (const Complex& input : inputs) re.push_back(input.re), im.push_back(input.im);
    const std::vector<Ref> r = convolveReal(g, plan, re, constants, x0.re, sums.re);
    const std::vector<Ref> i = convolveReal(g, plan, im, constants, x0.im, sums.im);
    std::vector<Complex> result;
    for (std::size_t k = 0; k < r.size(); ++k) result.push_back({r[k], i[k]});
    return result;
}

}   // namespace kfm::dft::complex
