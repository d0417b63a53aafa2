// The Walsh-Hadamard transform as one writes it down: what the compiler makes of that at -O3 is the
// peer of the library's.
#include <cstring>
#include <memory>

#include "peer.h"
#include "signals.h"

namespace kfm::bench {
namespace {

template <class Real>
void transformInPlace(Real* x, std::size_t length) {
    for (std::size_t stride = 1; stride < length; stride *= 2)
        for (std::size_t block = 0; block < length; block += 2 * stride)
            for (std::size_t i = block; i < block + stride; ++i) {
                const Real a = x[i], b = x[i + stride];
                x[i] = a + b;
                x[i + stride] = a - b;
            }
}

template <class Real>
std::function<void(long)> repeat(std::shared_ptr<const Signals> signals, std::size_t length) {
    return [=, batch = 0](long calls) mutable {
        const int placement = batch++ % Signals::placements;
        const void* source = signals->source(placement);
        auto* destination = static_cast<Real*>(signals->destination(placement));
        for (long i = 0; i < calls; ++i) {
            std::memcpy(destination, source, length * sizeof(Real));
            transformInPlace(destination, length);
        }
    };
}

}   // namespace

PeerPlan plainLoop(const registry::Function& function) {
    const registry::Element& element = *registry::findElement(function.element);
    const std::size_t length = registry::findFamily(function.family)->samples(function.length);
    const auto signals = std::make_shared<const Signals>(static_cast<int>(length), element);
    auto loop =
        element.doublePrecision ? repeat<double>(signals, length) : repeat<float>(signals, length);
    return {std::move(loop), {}, "plain loop"};
}

}   // namespace kfm::bench
