// A vector of two doubles is one complex element and is taken as a formal real: the real DFT
// network runs on whole elements, and only Y[k] = P + iQ, Y[N-k] = P - iQ at its end exchanges the
// halves of a vector.
#include "dft/complex/complex_kernels.h"
#include "kernelgen/algorithms.h"

namespace kfm::dft::complex {

using namespace kernelgen;

Graph doubleGraph(const Plan& plan, bool inverse) {
    const int n = plan.n;
    Graph g(2);
    std::vector<Ref> x(n);
    for (int i = 0; i < n; ++i) x[i] = g.load(i);
    const HalfSpectrum spectrum = realDft(g, plan, x);
    for (int k = 0; 2 * k <= n; ++k) {
        const auto [p, q] = spectrum[k];
        if (q.isZero()) {
            g.store(k, -1, p);
            continue;
        }
        const Ref iq = g.flip(g.select(q, {1, 0}), {1, 0});
        g.store(inverse ? n - k : k, -1, g.add(p, iq));
        g.store(inverse ? k : n - k, -1, g.sub(p, iq));
    }
    return g;
}

}   // namespace kfm::dft::complex
