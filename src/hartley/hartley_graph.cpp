#include <algorithm>

#include "hartley/factors.h"
#include "hartley/fixed_sums.h"
#include "hartley/hartley_kernels.h"
#include "kernelgen/algorithms.h"
#include "kernelgen/real_lanes.h"

namespace kfm::hartley {

using namespace kernelgen;

namespace {

// The bins of the last step, two at a time where there are two lanes; bins whose parts stand side
// by side already come together.
class LastSums {
public:
    LastSums(Graph& g, int n, std::vector<ComplexLanes> bins)
        : g_(g), n_(n), bins_(std::move(bins)) {}

    std::vector<LaneOutput> run() {
        ends();
        for (int k = 1; 2 * k < n_; ++k) waiting_.push_back(k);
        pairNeighbours();
        while (waiting_.size() > 1 && g_.lanes() == 2) pair(waiting_[0], waiting_[1]);
        for (const int k : waiting_) single(k);
        return std::move(outputs_);
    }

private:
    void ends() {
        for (const int k : {0, n_ / 2})
            if (2 * k % n_ == 0)
                outputs_.push_back(
                    {k, {g_.settle(bins_[k].re.vector, Border::result), bins_[k].re.index}});
    }

    void pairNeighbours() {
        const std::vector<int> all = waiting_;
        for (const int k : all)
            for (const int l : all)
                if (waits(k) && waits(l) && neighbours(bins_[k].re, bins_[l].re) &&
                    neighbours(bins_[k].im, bins_[l].im))
                    pair(k, l);
        for (const int k : all)
            for (const int l : all)
                if (k != l && waits(k) && waits(l) && sameVector(bins_[k].re, bins_[l].im) &&
                    sameVector(bins_[k].im, bins_[l].re))
                    pair(k, l);
    }

    bool waits(int k) const { return std::ranges::find(waiting_, k) != waiting_.end(); }
    static bool sameVector(Lane a, Lane b) { return a.magnitude().vector == b.magnitude().vector; }
    static bool neighbours(Lane a, Lane b) {
        return sameVector(a, b) && a.index == 0 && b.index == 1;
    }

    void pair(int k, int l) {
        const ComplexLanes a = bins_[k], b = bins_[l];
        const Ref im = pack(g_, a.im.magnitude(), b.im.magnitude());
        sums(pack(g_, a.re, b.re), im, {k, l});
        std::erase(waiting_, k);
        std::erase(waiting_, l);
    }

    void single(int k) {
        const Ref im = alone(g_, bins_[k].im.magnitude());
        sums(alone(g_, bins_[k].re), im, {k});
    }

    // re - im and re + im; `im` comes with either sign.
    void sums(Ref re, Ref im, const std::vector<int>& bins) {
        re = g_.settle(re, Border::result);
        im = g_.settle(im, Border::result);
        const Ref sum = g_.add(re, im), difference = g_.sub(re, im);
        for (int lane = 0; lane < static_cast<int>(bins.size()); ++lane) {
            const int k = bins[lane];
            const bool negative = bins_[k].im.negative();
            outputs_.push_back({k, {negative ? sum : difference, lane}});
            outputs_.push_back({n_ - k, {negative ? difference : sum, lane}});
        }
    }

    Graph& g_;
    int n_;
    std::vector<ComplexLanes> bins_;
    std::vector<int> waiting_;
    std::vector<LaneOutput> outputs_;
};

std::vector<LaneOutput> outputs(Graph& g, const Plan& plan, std::span<const Lane> x) {
    if (plan.n == 8) return eightPoints(g, x);
    if (plan.n == 16) return sixteenPoints(g, x);
    // C + S with S from +0.0, as formed from a transform with the positive exponent.
    const bool direct = plan.kind == Plan::Kind::direct && plan.n > 4;
    std::vector<ComplexLanes> bins =
        direct ? symmetricPairs(g, x, Sign::plus) : realDftInLanes(g, plan, x);
    if (direct)
        for (ComplexLanes& bin : bins) bin.im = -bin.im;
    return LastSums(g, plan.n, std::move(bins)).run();
}

}   // namespace

Graph hartleyGraph(const RealRow& row, bool singlePrecision) {
    const int n = row.plan.n;
    Graph g(row.lanes, arithmetic(n, singlePrecision));
    std::vector<Lane> x;
    for (int i = 0; i < n; ++i) x.push_back({g.load(i), 0});
    storeLanes(g, outputs(g, row.plan, x));
    return g;
}

Graph hartleyGraph(int n, bool singlePrecision) { return hartleyGraph(row(n), singlePrecision); }

}   // namespace kfm::hartley
