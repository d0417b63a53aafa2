// Making signals and moving them into and out of the element types.
#include "support/signal.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kfm::tests {

double Random::uniform(int bits) {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    const auto top = static_cast<std::int64_t>(state_) >> (64 - bits);
    return std::ldexp(static_cast<double>(top), 1 - bits);
}

std::uint64_t testSeed() {
    static const std::uint64_t seed = [] {
        const char* text = std::getenv("KFM_TEST_SEED");
        const std::uint64_t value = text ? std::strtoull(text, nullptr, 0) : 20100317;
        std::printf("random signals: KFM_TEST_SEED=%llu\n", static_cast<unsigned long long>(value));
        return value;
    }();
    return seed;
}

Signal randomSignal(const Transform& transform, Random& random) {
    Signal signal(transform.sourceReals());
    const int bits = transform.element->doublePrecision ? 53 : 24;
    for (double& value : signal) value = random.uniform(bits);
    return signal;
}

Signal impulse(std::size_t reals, std::size_t at, double value) {
    Signal signal(reals);
    signal[at] = value;
    return signal;
}

std::vector<std::size_t> positions(const Transform& transform) {
    const std::size_t reals = transform.sourceReals(), step = reals / 128 | 1;
    std::vector<std::size_t> result;
    for (std::size_t at = 0; at < reals; at += step) result.push_back(at);
    return result;
}

Bytes encode(const Signal& signal, const Transform& transform) {
    Bytes bytes(signal.size() * transform.realBytes());
    if (transform.element->doublePrecision) {
        std::memcpy(bytes.data(), signal.data(), bytes.size());
    } else {
        const std::vector<float> rounded(signal.begin(), signal.end());
        std::memcpy(bytes.data(), rounded.data(), bytes.size());
    }
    return bytes;
}

Signal decode(const void* data, std::size_t reals, const Transform& transform) {
    Signal signal(reals);
    if (transform.element->doublePrecision) {
        std::memcpy(signal.data(), data, reals * sizeof(double));
    } else {
        std::vector<float> values(reals);
        std::memcpy(values.data(), data, reals * sizeof(float));
        signal.assign(values.begin(), values.end());
    }
    return signal;
}

namespace {

// An aligned block with room on both sides: a kernel that writes there fails the tests of memory,
// and the heap survives until they run.
class Array {
public:
    explicit Array(std::size_t bytes) : units_(bytes / sizeof(Unit) + 2 * margin, unwritten) {}
    std::byte* data() { return units_[margin].bytes; }

private:
    static constexpr std::size_t margin = 8;
    struct alignas(16) Unit {
        std::byte bytes[16];
    };
    // No numbers, so that what is not written shows.
    static constexpr Unit unwritten = [] {
        Unit unit;
        for (std::byte& value : unit.bytes) value = std::byte{0xff};
        return unit;
    }();
    std::vector<Unit> units_;
};

}   // namespace

Bytes run(const Transform& transform, const Bytes& source, int flag) {
    Array from(source.size()), to(transform.destinationBytes());
    std::memcpy(from.data(), source.data(), source.size());
    const KfmStatus status = call(transform, from.data(), to.data(), flag);
    EXPECT_EQ(status, kfmOk) << transform << " flag " << flag;
    return Bytes(to.data(), to.data() + transform.destinationBytes());
}

Signal run(const Transform& transform, const Signal& source, int flag) {
    const Bytes output = run(transform, encode(source, transform), flag);
    return decode(output.data(), transform.destinationReals(), transform);
}

}   // namespace kfm::tests
