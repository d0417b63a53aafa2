// Mean errors of the functions next to those of FFTW's plans for the same transforms, on the same
// random signals: the root of the mean square error over that of the outputs, against sums of the
// definition in binary128, in units of 2^-24 (single precision) and 2^-53 (double).
#include <quadmath.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <random>
#include <vector>

#include "peer.h"
#include "selection.h"
#include "signals.h"

namespace kfm::bench {
namespace {

__extension__ typedef __float128 Quad;
using Quads = std::vector<Quad>;

// cos and sin of 2 pi i / n, i < n.
struct Roots {
    explicit Roots(int n) : cosines(n), sines(n) {
        const Quad turn = 8 * atanq(1);
        for (int i = 0; i < n; ++i) sincosq(turn * i / n, &sines[i], &cosines[i]);
    }
    Quads cosines, sines;
};

// A half spectrum as n complex bins; a real or complex signal stays what it is.
Quads unpacked(const Quads& x, int n) {
    Quads bins(2 * n);
    for (int k = 0; k < n; ++k) {
        const int from = 2 * k <= n ? k : n - k;
        const bool real = k == 0 || 2 * k == n;
        bins[2 * k] = x[2 * from];
        bins[2 * k + 1] = real ? 0 : 2 * k < n ? x[2 * from + 1] : -x[2 * from + 1];
    }
    return bins;
}

// The outputs by their definition, in the layout of the destination.
Quads definition(const registry::Family& family, bool complex, const Quads& source, int n) {
    const Roots roots(n);
    const bool hartley = family.name == "Hartley", inverse = family.inverse();
    const Quads x = inverse && !complex ? unpacked(source, n) : source;
    const bool complexInput = complex || inverse;
    Quads outputs;
    const int bins = complex || inverse || hartley ? n : n / 2 + 1;
    for (int k = 0; k < bins; ++k) {
        Quad re = 0, im = 0;
        for (int i = 0; i < n; ++i) {
            const int angle = i * k % n;
            const Quad c = roots.cosines[angle];
            const Quad s = inverse || hartley ? roots.sines[angle] : -roots.sines[angle];
            const Quad a = complexInput ? x[2 * i] : x[i], b = complexInput ? x[2 * i + 1] : 0;
            re += a * c - b * s;
            im += a * s + b * c;
        }
        outputs.push_back(hartley ? re + im : re);
        if (complex || (!inverse && !hartley)) outputs.push_back(im);
    }
    return outputs;
}

struct Sums {
    Quad errors = 0, outputs = 0;
};

template <class Real>
struct Comparison {
    const registry::Function& function;
    const registry::Family& family;
    const registry::Element& element;
    PeerPlan peer;
    Sums ours, theirs;

    void add(std::mt19937_64& random) {
        const int n = function.length;
        Signals arrays(n, element);
        const auto source = static_cast<Real*>(arrays.source());
        const auto destination = static_cast<Real*>(arrays.destination());
        const int reals = element.complex ? 2 * n : n + 2;
        // Values with all bits of their own exponents: no sum is exact by chance.
        std::normal_distribution<Real> normal;
        std::generate_n(source, reals, [&] { return normal(random); });
        if (family.inverse() && !element.complex) {
            source[1] = 0;
            if (n % 2 == 0) source[n + 1] = 0;
        }
        const std::vector<Real> kept(source, source + reals);
        const Quads exact = definition(family, element.complex, Quads(kept.begin(), kept.end()), n);
        reinterpret_cast<Transform>(function.address)(source, destination, kfmScaleNone);
        accumulate(ours, destination, exact);
        peer.execute(source, destination);
        accumulate(theirs, destination, exact);
    }

    void print(int signals) {
        std::mt19937_64 random(1);
        for (int i = 0; i < signals; ++i) add(random);
        const double mine = relative(ours), other = relative(theirs);
        std::printf("%s,%.4f,%.4f,%.4f\n", function.name, mine, other, mine / other);
        std::fflush(stdout);
    }

private:
    static void accumulate(Sums& sums, const Real* actual, const Quads& exact) {
        for (std::size_t i = 0; i < exact.size(); ++i) {
            const Quad error = actual[i] - exact[i];
            sums.errors += error * error;
            sums.outputs += exact[i] * exact[i];
        }
    }
    static double relative(const Sums& sums) {
        const double unit = std::ldexp(1, sizeof(Real) == 4 ? -24 : -53);
        return std::sqrt(static_cast<double>(sums.errors / sums.outputs)) / unit;
    }
};

void compareAll(const Selection& selection, int signals) {
    std::puts("function,error,fftwError,ratio");
    bool some = false;
    for (const registry::Function* picked : selection.functions()) {
        const registry::Function& function = *picked;
        const registry::Family& family = *registry::findFamily(function.family);
        const registry::Element& element = *registry::findElement(function.element);
        // FFTW has this layout of a half spectrum and no other.
        const bool packed = family.name.find("Pack") != family.name.npos ||
                            family.name.find("Perm") != family.name.npos;
        PeerPlan peer = packed || family.byOrder ? PeerPlan() : fftwPlan(function);
        if (!peer) continue;
        some = true;
        if (element.doublePrecision)
            Comparison<double>{function, family, element, peer, {}, {}}.print(signals);
        else Comparison<float>{function, family, element, peer, {}, {}}.print(signals);
    }
    if (!some) throw std::runtime_error("FFTW has none of these transforms, or is not there");
}

}   // namespace
}   // namespace kfm::bench

int main(int argc, char** argv) try {
    using namespace kfm::bench;
    CLI::App app("Compares the mean errors of the transforms with FFTW's.");
    Selection selection;
    int signals = 200;
    std::string peerFolder;
    selection.addFamily(app);
    selection.addElement(app);
    selection.addLengths(app);
    app.add_option("--signals", signals, "random signals for each function")
        ->check(CLI::Range(1, 1000000))
        ->capture_default_str();
    app.add_option("--fftw-folder", peerFolder, "folder of the FFTW libraries");
    CLI11_PARSE(app, argc, argv);
    if (!peerFolder.empty()) setPeerFolders({peerFolder});
    compareAll(selection, signals);
} catch (const std::exception& error) {
    std::fprintf(stderr, "errorbench: %s\n", error.what());
    return 1;
}
