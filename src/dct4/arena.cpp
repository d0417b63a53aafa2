// The top of the arena lives in its first word, whatever the alignment of that word.
#include "dct4/arena.h"

#include "dct4/reference.h"

namespace kfm::dct4 {
namespace {

std::uintptr_t top(const void* arena) { return loadReference(arena, originOfData(arena)); }

void setTop(void* arena, std::uintptr_t address) {
    storeReference(arena, address, originOfData(arena));
}

}   // namespace

void initArena(void* block) {
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    const std::intptr_t remainder = static_cast<std::int32_t>(address) % 32;
    setTop(block, address - static_cast<std::uintptr_t>(remainder) + 64);
}

void* kfmgArenaMalloc(void* arena, int size) {
    const std::uintptr_t piece = top(arena);
    setTop(arena, piece + static_cast<std::uintptr_t>(kfmgAlignSize32Bytes(size)));
    return reinterpret_cast<void*>(piece);
}

void kfmgArenaFree(void* arena, void*, int size) {
    setTop(arena, top(arena) - static_cast<std::uintptr_t>(kfmgAlignSize32Bytes(size)));
}

}   // namespace kfm::dct4
