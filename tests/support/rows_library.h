// The library of rows stands beside the one it belongs to.
#pragma once

#include <string>

#include "registry/loaded_library.h"

namespace kfm::tests {

inline std::string rowsLibrary() {
    const std::string file = registry::loadedLibrary().file;
    return file.substr(0, file.rfind('/')) + "/libkfmrows.so.6.1";
}

}   // namespace kfm::tests
