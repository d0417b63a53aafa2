// Arrays whose rows have any stride and distance.
#pragma once

#include <cstddef>
#include <cstring>
#include <ostream>
#include <vector>

#include "support/buffer.h"
#include "support/signal.h"

namespace kfm::tests {

using Offset = std::ptrdiff_t;

// Where elements stand: element k of row r at k * stride + r * distance.
struct Spacing {
    Offset stride, distance;
};

inline std::ostream& operator<<(std::ostream& out, const Spacing& spacing) {
    return out << "stride " << spacing.stride << ", distance " << spacing.distance;
}

// Without two elements in one place.
inline std::vector<Spacing> spacings(Offset count, Offset rows) {
    return {{1, count},    {1, count + 3}, {1, -count}, {-1, count},        {rows, 1},
            {rows + 2, 1}, {rows, -1},     {-rows, 1},  {2, 2 * count + 1}, {-3, -3 * count}};
}
inline constexpr int spacingCount = 10;

// One side of a call on memory of its own, from its lowest element to its highest.
class Side {
public:
    Side(int count, Offset rows, Spacing spacing, std::size_t bytes, Flush flush, int offset = 0)
        : spacing_(spacing), bytes_(bytes), count_(count), rows_(rows),
          memory_(size(), flush, flush == Flush::start ? offset * bytes : 0) {}

    std::byte* origin() const { return memory_.data() - lowest() * Offset(bytes_); }
    std::byte* at(Offset row, int k) const {
        return origin() + (row * spacing_.distance + k * spacing_.stride) * Offset(bytes_);
    }
    void put(Offset row, const Bytes& values) const {
        for (int k = 0; k < count_; ++k)
            std::memcpy(at(row, k), values.data() + k * bytes_, bytes_);
    }
    Bytes all() const { return Bytes(memory_.data(), memory_.data() + memory_.size()); }
    bool intact() const { return memory_.canariesIntact(); }
    const Spacing& spacing() const { return spacing_; }
    GuardedBuffer& memory() { return memory_; }

private:
    static Offset below(Offset step, Offset count) { return step < 0 ? step * (count - 1) : 0; }
    static Offset above(Offset step, Offset count) { return step > 0 ? step * (count - 1) : 0; }
    Offset lowest() const {
        return below(spacing_.stride, count_) + below(spacing_.distance, rows_);
    }
    Offset highest() const {
        return above(spacing_.stride, count_) + above(spacing_.distance, rows_);
    }
    std::size_t size() const { return (highest() - lowest() + 1) * bytes_; }

    Spacing spacing_;
    std::size_t bytes_;
    int count_;
    Offset rows_;
    GuardedBuffer memory_;
};

}   // namespace kfm::tests
