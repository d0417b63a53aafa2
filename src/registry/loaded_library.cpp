#include "registry/loaded_library.h"

#include <dlfcn.h>

#include <filesystem>

#include "kfmgen.h"

namespace kfm::registry {

LoadedLibrary libraryOf(const void* address) {
    LoadedLibrary result;
    Dl_info info{};
    dladdr(address, &info);
    result.file = std::filesystem::canonical(info.dli_fname).string();
    result.target = KFM_TARGET;
    // The loader searches a folder for each level of the architecture; the third has AVX2.
    result.variant = result.file.find("/glibc-hwcaps/") != std::string::npos;
    if (result.variant) result.vectorBits = 256;
    result.instructions = result.target == "aarch64" ? "NEON" : result.variant ? "AVX2" : "SSE2";
    return result;
}

const LoadedLibrary& loadedLibrary() {
    static const LoadedLibrary library = libraryOf(kfmgenGetLibVersion());
    return library;
}

}   // namespace kfm::registry
