#include "dft/complex/complex_kernels.h"
#include "dft/complex/factors.h"
#include "kernelgen/algorithms.h"

namespace kfm::dft::complex {

using namespace kernelgen;

Graph singleGraph(int n, bool inverse) {
    Graph g(4);
    std::vector<Ref> x(n);
    for (int i = 0; i < n; ++i) x[i] = g.load(i);
    const HalfSpectrum spectrum = realDft(g, singlePrecisionRow(n).plan, x);
    for (int k = 0; 2 * k <= n; ++k) {
        const auto [p, q] = spectrum[k];
        if (q.isZero()) {
            g.store(k, -1, p);
            continue;
        }
        const Ref iq = g.flip(g.select(q, {1, 0, 3, 2}), {1, 0, 0, 0});
        g.store(inverse ? n - k : k, -1, g.add(p, iq));
        g.store(inverse ? k : n - k, -1, g.sub(p, iq));
    }
    return g;
}

}   // namespace kfm::dft::complex
