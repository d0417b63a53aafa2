// Singly linked nodes, walked from the header.
#include "dct4/env_list.h"

#include <new>

#include "dct4/arena.h"

namespace kfm::dct4 {
namespace {

void* takeNode(void* arena) { return new (kfmgArenaMalloc(arena, sizeof(EnvList))) EnvList; }

}   // namespace

EnvList* EnvList___init__(EnvList* node, void* arena) {
    node->item = nullptr;
    node->next = nullptr;
    node->arena = arena;
    return node;
}

void* EnvList_add(EnvList* list, void* item) {
    EnvList* last = list;
    while (last->next) last = last->next;
    if (last->item) {
        last->next = EnvList___init__(static_cast<EnvList*>(takeNode(list->arena)), list->arena);
        last = last->next;
    }
    last->item = item;
    return item;
}

int EnvList_add_mem(int count) { return count * kfmgAlignSize32Bytes(12); }

void* EnvList_get(const EnvList* list, int index) {
    if (index < 0) return nullptr;
    for (; list && index > 0; --index) list = list->next;
    return list ? list->item.get() : nullptr;
}

void EnvList___del__(EnvList* list) {
    for (EnvList* node = list->next; node; node = node->next)
        kfmgArenaFree(list->arena, node, sizeof(EnvList));
}

void EnvList_freeChildren(EnvList* list) {
    for (EnvList* node = list; node; node = node->next) {
        if (!node->item) continue;
        Object* child = static_cast<Object*>(node->item.get());
        child->release.get()(child);
        kfmgArenaFree(node->arena, child, child->size);
    }
}

EnvList* newList(void* arena) {
    return EnvList___init__(static_cast<EnvList*>(takeNode(arena)), arena);
}

void deleteList(EnvList* list) {
    EnvList___del__(list);
    kfmgArenaFree(list->arena, list, sizeof(EnvList));
}

}   // namespace kfm::dct4
