#include "measure/accuracy.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "progress.h"
#include "signals.h"

namespace kfm::tool {

const Measure accuracyMeasure = {.title = "Mean error in units of the last place",
                                 .ours = "mean",
                                 .member = "error",
                                 .hasLargest = true};

namespace {

// Of errors and of exact outputs.
struct Squares {
    Quad errors = 0, outputs = 0;

    void add(std::span<const double> actual, std::span<const Quad> exact) {
        for (std::size_t i = 0; i < exact.size(); ++i) {
            const Quad error = actual[i] - exact[i];
            errors += error * error;
            outputs += exact[i] * exact[i];
        }
    }
    double relative() const { return std::sqrt(static_cast<double>(errors / outputs)); }
};

// Values with all bits of their own exponents: no sum is exact by chance.
template <class Real>
void fill(Real* source, const Subject& subject, std::mt19937_64& random) {
    std::normal_distribution<Real> normal;
    std::generate_n(source, subject.reals, [&] { return normal(random); });
    for (const std::size_t zero : subject.zeros) source[zero] = 0;
}

template <class Real>
Figure measure(const Subject& subject, int signals) {
    const bench::PeerPlan peer = subject.peerFactor != 0 ? subject.peer() : bench::PeerPlan();
    std::mt19937_64 random(1);
    bench::Signals arrays(subject.length, *subject.element);
    const auto source = static_cast<Real*>(arrays.source());
    const auto destination = static_cast<Real*>(arrays.destination());
    Squares ours, theirs;
    double largest = 0;
    for (int i = 0; i < signals; ++i) {
        fill(source, subject, random);
        const auto exact = subject.definition(std::vector<double>(source, source + subject.reals));
        const auto outputs = [&] {
            return std::vector<double>(destination, destination + exact.size());
        };
        subject.call(source, destination);
        const std::vector<double> mine = outputs();
        ours.add(mine, exact);
        largest = std::max(largest, definition::errorInUnits(mine, exact, subject.largest(exact),
                                                             sizeof(Real) == sizeof(double)));
        if (!peer) continue;
        peer.execute(source, destination);   // the last use of a source that it may overwrite
        std::vector<double> others = outputs();
        for (double& output : others) output /= subject.peerFactor;
        theirs.add(others, exact);
    }
    const double unit = std::ldexp(1, sizeof(Real) == sizeof(double) ? -53 : -24);
    Figure figure = figureOf(subject);
    figure.ours = ours.relative() / unit;
    figure.largest = largest;
    if (peer) {
        figure.peer = theirs.relative() / unit;
        figure.peerName = peer.name;
    }
    return figure;
}

// The sums of a definition are as many as the square of the length.
int signalsFor(const Subject& subject, int most) {
    const double longest = 64, share = longest / subject.length;
    return std::clamp(static_cast<int>(most * share * share), 1, most);
}

}   // namespace

std::vector<Figure> measureAccuracy(std::span<const Subject> subjects, int signals) {
    Progress progress;
    std::vector<Figure> figures;
    for (const Subject& subject : subjects) {
        const int count = signalsFor(subject, signals);
        figures.push_back(subject.element->doublePrecision ? measure<double>(subject, count)
                                                           : measure<float>(subject, count));
        progress.update(static_cast<double>(figures.size()) / subjects.size(), figures.size());
    }
    return figures;
}

}   // namespace kfm::tool
