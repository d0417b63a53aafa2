// Lists of objects in an arena. The header is the first node, so that only the second and later
// items cost memory.
#pragma once

#include <cstdint>

#include "dct4/reference.h"

namespace kfm::dct4 {

// What every object in a list of children starts with.
struct Object {
    OperationRef<void(void*)> release;   // gives back what the object took, not the object
    std::int32_t size = 0;               // of the object, in bytes
};

struct EnvList {
    Ref<void> item;   // null only in the header of an empty list
    Ref<EnvList> next;
    Ref<void> arena;
};
static_assert(sizeof(EnvList) == 12);

EnvList* EnvList___init__(EnvList* node, void* arena);
// Returns `item`.
void* EnvList_add(EnvList* list, void* item);
// Bytes of `count` further nodes.
int EnvList_add_mem(int count);
// The item at a position, 0 being the header; null where there is none.
void* EnvList_get(const EnvList* list, int index);
// Gives back every node but the header.
void EnvList___del__(EnvList* list);
// Releases the items, each of which starts with an Object, and gives back their bytes.
void EnvList_freeChildren(EnvList* list);

// An empty list whose header comes from the arena, and its end.
EnvList* newList(void* arena);
void deleteList(EnvList* list);

}   // namespace kfm::dct4
