#include "registry/loaded_library.h"

#include <dlfcn.h>

#include <filesystem>

#include "kfmgen.h"

namespace kfm::registry {

const LoadedLibrary& loadedLibrary() {
    static const LoadedLibrary library = [] {
        LoadedLibrary result;
        Dl_info info{};
        dladdr(kfmgenGetLibVersion(), &info);
        result.file = std::filesystem::canonical(info.dli_fname).string();
        // The loader searches a folder for each level of the architecture; the third has AVX2.
        result.variant = result.file.find("/glibc-hwcaps/") != std::string::npos;
        if (result.variant) result.vectorBits = 256;
        return result;
    }();
    return library;
}

}   // namespace kfm::registry
