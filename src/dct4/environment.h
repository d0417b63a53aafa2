// What all environments share. An environment is a node of a plan: it stands for one sub-problem,
// picks a rule for its size, and makes the children and tables that the rule needs. Every kind has
//     init          fills the fields and makes the empty lists (`__init__`)
//     chooseRule    the rule for a size, 0 for none (`_chooseRule`)
//     build         makes children and tables (`plan`); kfmErrSize where no rule fits
//     mem           arena bytes that the object and all that build makes will need, or kfmErrSize;
//                   counts a few list nodes more than are taken
//     del           gives back what init and build took, in reverse order (`__del__`)
// and the kinds that compute have `compute`.
//
// The layout of a plan stands: fields that nothing reads keep their places, the parameters of env2
// to env5 and of the maps with their values, which tell what an object is for, others as spare.
#pragma once

#include <cstdint>
#include <new>

#include "dct4/arena.h"
#include "dct4/env_list.h"
#include "dct4/operations.h"

namespace kfm::dct4 {

struct Environment : Object {
    OperationRef<PlanOperation> plan;
    Ref<void> arena;
    Ref<EnvList> children;   // owned
};

// Sizes are summed in 64 bits; a negative one is a status.
using Bytes = std::int64_t;

constexpr Bytes aligned(Bytes size) { return kfmgAlignSize32Bytes(size); }
inline constexpr Bytes listHeader = aligned(sizeof(EnvList));

// The object of an environment and its lists.
template <class Kind>
constexpr Bytes objectMem(int lists) {
    return aligned(0) + aligned(sizeof(Kind)) + lists * listHeader;
}

// Memory for an object that is yet to be initialised.
template <class Kind>
Kind* take(void* arena) {
    return new (kfmgArenaMalloc(arena, sizeof(Kind))) Kind;
}

template <class Real>
Real* takeArray(void* arena, Bytes bytes) {
    return static_cast<Real*>(kfmgArenaMalloc(arena, static_cast<int>(bytes)));
}

// The end of such an array; a null one took nothing.
template <class Real>
void returnArray(void* arena, Real* array, Bytes bytes) {
    kfmgArenaFree(arena, array, array ? static_cast<int>(bytes) : 0);
}

template <class Kind>
void initEnvironment(Kind& environment, void* arena) {
    environment.release = Operations<Kind>::release;
    environment.size = sizeof(Kind);
    environment.plan = Operations<Kind>::plan;
    environment.arena = arena;
    environment.children = newList(arena);
}

// Makes a new stage known to its parent and plans it.
template <class Kind>
KfmStatus addStage(Environment& parent, EnvList* stage, Kind* child) {
    EnvList_add(parent.children, child);
    EnvList_add(stage, child);
    return child->plan.get()(child) == kfmOk ? kfmOk : kfmErrSize;
}

// The one environment of a stage list: the item of its header. Every transform asks for it.
template <class Kind>
const Kind* stageOf(const EnvList* list) {
    return static_cast<const Kind*>(list->item.get());
}

inline void deleteChildren(Environment& environment) {
    EnvList_freeChildren(environment.children);
    deleteList(environment.children);
}

}   // namespace kfm::dct4
