// Which of the library's files the loader took: that for every processor of the target, or a
// variant for newer ones in its place.
#pragma once

#include <string>

namespace kfm::registry {

struct LoadedLibrary {
    std::string file;   // its path, without symbolic links
    bool variant = false;
    int vectorBits = 128;   // of its widest vectors
};

const LoadedLibrary& loadedLibrary();

// The file that an address belongs to, for programs that load another one beside it.
LoadedLibrary libraryOf(const void* address);

}   // namespace kfm::registry
