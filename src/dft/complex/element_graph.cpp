// One complex element in the first two lanes of a vector, taken as a formal real: the real DFT
// network runs on whole elements, and only Y[k] = P + iQ, Y[N-k] = P - iQ at its end exchanges the
// halves of an element. In double precision the element fills the vector.
#include "dft/complex/complex_kernels.h"
#include "dft/complex/single_graphs.h"
#include "kernelgen/algorithms.h"

namespace kfm::dft::complex {

using namespace kernelgen;

void elementGraph(Graph& g, const Plan& plan, Sign sign) {
    LanePattern exchanged(g.lanes()), realPart(g.lanes());
    for (int lane = 0; lane < g.lanes(); ++lane) exchanged[lane] = lane ^ 1;
    realPart[0] = 1;
    std::vector<Ref> x;
    for (int i = 0; i < plan.n; ++i) x.push_back(g.load(i));
    const HalfSpectrum spectrum = realDft(g, plan, x);
    for (int k = 0; 2 * k <= plan.n; ++k) {
        const auto [p, q] = spectrum[k];
        if (q.isZero()) {
            g.store(k, -1, p);
            continue;
        }
        const Ref iq = g.flip(g.select(q, exchanged), realPart);
        g.store(sign == Sign::minus ? k : plan.n - k, -1, g.add(p, iq));
        g.store(sign == Sign::minus ? plan.n - k : k, -1, g.sub(p, iq));
    }
}

Graph doubleGraph(const Plan& plan, bool inverse) {
    Graph g(2, {}, 2);
    elementGraph(g, plan, inverse ? Sign::plus : Sign::minus);
    return g;
}

}   // namespace kfm::dft::complex
