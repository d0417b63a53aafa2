// Test signals: real numbers that the element type holds exactly, complex values as pairs, made
// from integers and powers of two so that every target and C library sees the same bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "support/transform.h"

namespace kfm::tests {

using Signal = std::vector<double>;
using Bytes = std::vector<std::byte>;

// Linear congruential generator (Knuth's MMIX constants).
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}
    // Uniform in [-1, 1), a multiple of 2^(1-bits).
    double uniform(int bits);

private:
    std::uint64_t state_;
};

// Of the random signals: KFM_TEST_SEED of the environment, or a fixed one. Printed once.
std::uint64_t testSeed();

Signal randomSignal(const Transform& transform, Random& random);
Signal impulse(std::size_t reals, std::size_t at, double value = 1);

// Where to put an impulse: everywhere in a short signal; in a long one at places so far apart by an
// odd step that they meet both values of every bit of the index.
std::vector<std::size_t> positions(const Transform& transform);

Bytes encode(const Signal& signal, const Transform& transform);
Signal decode(const void* data, std::size_t reals, const Transform& transform);

// The output of a fixed function, from and to arrays of their own; must succeed.
Bytes run(const Transform& transform, const Bytes& source, int flag);
Signal run(const Transform& transform, const Signal& source, int flag);

}   // namespace kfm::tests
