// Which of the library's files the loader took: that for every processor of the target, or a
// variant for newer ones in its place.
#pragma once

#include <string>

namespace kfm::registry {

struct LoadedLibrary {
    std::string file;           // its path, without symbolic links
    std::string target;         // "x86-64", "i386" or "aarch64"
    std::string instructions;   // "SSE2", "AVX2" or "NEON"
    int vectorBits = 128;       // of its widest vectors
    bool variant = false;

    // Its vectors, as fast as from and to multiples of 16: there is one path.
    bool movesAnywhere() const { return instructions != "SSE2"; }
};

const LoadedLibrary& loadedLibrary();

// The file that an address belongs to, for programs that load another one beside it.
LoadedLibrary libraryOf(const void* address);

}   // namespace kfm::registry
