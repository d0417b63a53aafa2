// How the Walsh-Hadamard transforms that are too long for registers are cut into passes over the
// work buffer, and what the buffer therefore holds. All sizes are orders, binary logarithms.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>

namespace kfm::wht {

// Pass 1 transforms blocks, pass 2 across the blocks of a chunk, pass 3 across the chunks. Without
// a third pass there is one chunk, the signal.
struct Blocking {
    int block;    // length of a block
    int across;   // blocks in a chunk
    int chunks;   // chunks in the signal

    constexpr int order() const { return block + across + chunks; }
    constexpr int chunk() const { return block + across; }
    constexpr bool threePasses() const { return chunks > 0; }
};

inline constexpr Blocking singleBlockings[] = {
    {5, 3, 0}, {6, 3, 0}, {6, 4, 0}, {6, 5, 0}, {6, 3, 3}, {6, 3, 4},
};
inline constexpr Blocking doubleBlockings[] = {
    {5, 3, 0}, {5, 4, 0}, {7, 3, 0}, {5, 3, 3}, {5, 3, 4}, {7, 3, 3},
};

// Both precisions have the same orders.
inline constexpr int lastOrder = std::end(singleBlockings)[-1].order();
constexpr bool isOrder(int order) { return order >= 1 && order <= lastOrder; }

// Nothing for the orders below, which take one pass and no buffer.
constexpr std::optional<Blocking> findBlocking(bool doublePrecision, int order) {
    const std::span<const Blocking> rows =
        doublePrecision ? std::span(doubleBlockings) : std::span(singleBlockings);
    const auto found = std::ranges::find(rows, order, &Blocking::order);
    return found == rows.end() ? std::nullopt : std::optional(*found);
}

// Main area: a slot for each element of the signal. Scratch area behind it, only with three
// passes: the blocks of the chunk in work.
constexpr std::int64_t bufferBytes(bool doublePrecision, int order) {
    const std::optional<Blocking> blocking = findBlocking(doublePrecision, order);
    if (!blocking) return 0;
    const std::int64_t scratch = blocking->threePasses() ? 1 << blocking->chunk() : 0;
    return ((std::int64_t{1} << order) + scratch) * (doublePrecision ? 8 : 4);
}

}   // namespace kfm::wht
