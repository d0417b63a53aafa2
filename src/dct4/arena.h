// The bump allocator of a plan. An arena is a block whose first 32-bit word refers to the next free
// byte; nothing marks its end, because the size of a plan is known before it is built. What was
// taken last is given back first, with the same size.
#pragma once

namespace kfm::dct4 {

// The unit of the arena: sizes are rounded up to multiples of 32 bytes.
template <class Integer>
constexpr Integer kfmgAlignSize32Bytes(Integer size) {
    return (size + 31) & ~Integer{31};
}

// Makes the block an arena: the first piece is 64 bytes behind the block's address, rounded to a
// multiple of 32 by the remainder of the address as a signed 32-bit number.
void initArena(void* block);

void* kfmgArenaMalloc(void* arena, int size);
void kfmgArenaFree(void* arena, void* piece, int size);

}   // namespace kfm::dct4
