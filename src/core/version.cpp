// The constant version record. A new release changes its numbers and its date together.
#include "kfmgen.h"

namespace {

constexpr KfmLibraryVersion version = {
    KFMGEN_VERSION_MAJOR, KFMGEN_VERSION_MINOR, 137,           336, {'w', '7', 0, 0},
    "libkfmgenw7.so.6.1", "6.1 build 137.56",   "Mar 17 2010",
};

}   // namespace

extern "C" const KfmLibraryVersion* kfmgenGetLibVersion(void) { return &version; }
