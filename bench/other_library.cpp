#include "other_library.h"

#include <dlfcn.h>

#include <stdexcept>

#include "kfmgen.h"

namespace kfm::bench {

// With RTLD_DEEPBIND what it calls by an exported name is its own, not the linked library's, which
// would come first.
OtherLibrary::OtherLibrary(const std::string& file)
    : handle(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND)) {
    if (!handle) throw std::runtime_error(dlerror());
}

bool OtherLibrary::linked() const { return version() == kfmgenGetLibVersion(); }

registry::LoadedLibrary OtherLibrary::loaded() const { return registry::libraryOf(version()); }

const void* OtherLibrary::version() const {
    return find<decltype(kfmgenGetLibVersion)>("kfmgenGetLibVersion")();
}

void* OtherLibrary::address(const std::string& name) const {
    void* const found = dlsym(handle.get(), name.c_str());
    if (found == nullptr) throw std::runtime_error(dlerror());
    return found;
}

void OtherLibrary::Close::operator()(void* handle) const { dlclose(handle); }

}   // namespace kfm::bench
