// Another file of the library beside the one that the program is linked with: the base build
// beside a variant, or an older build. Each side calls its own functions.
#pragma once

#include <memory>
#include <string>

#include "registry/loaded_library.h"

namespace kfm::bench {

class OtherLibrary {
public:
    // Throws where there is no such library.
    explicit OtherLibrary(const std::string& file);

    // Whether this is the very file that the program is linked with.
    bool linked() const;

    template <class Function>
    Function* find(const std::string& name) const {
        return reinterpret_cast<Function*>(address(name));
    }

    registry::LoadedLibrary loaded() const;

private:
    struct Close {
        void operator()(void* handle) const;
    };
    void* address(const std::string& name) const;
    const void* version() const;

    std::unique_ptr<void, Close> handle;
};

}   // namespace kfm::bench
