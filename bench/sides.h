// What is measured and against what: the options that name it and the lines that tell it, the same
// for every benchmark of speed.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "other_library.h"
#include "peer.h"

namespace kfm::bench {

struct Sides {
    std::vector<std::string> peerFolders;
    bool withoutPeers = false;
    std::string against;

    void addPeerOptions(CLI::App& app) {
        app.add_option("--fftw-folder", peerFolders,
                       "folder of FFTW's libraries; of several the fastest plan counts")
            ->allow_extra_args(false);   // once for each
        app.add_flag("--without-peers", withoutPeers, "compare with no other program");
    }
    void addOptions(CLI::App& app) {
        addPeerOptions(app);
        app.add_option("--against", against, "another file of the library to compare with");
    }

    // Loads the libraries and tells which they are. Null where the other file is the one measured:
    // the base build on a processor that has no use for a variant.
    std::unique_ptr<OtherLibrary> open() const {
        tell("measured", registry::loadedLibrary());
        setPeerFolders(peerFolders);
        if (!withoutPeers) std::fputs(describePeers().c_str(), stderr);
        if (against.empty()) return nullptr;
        auto other = std::make_unique<OtherLibrary>(against);
        tell("against", other->loaded());
        if (!other->linked()) return other;
        std::fputs("these are the same file: no comparison\n", stderr);
        return nullptr;
    }

    static void tell(const char* side, const registry::LoadedLibrary& library) {
        std::fprintf(stderr, "%s: %s, vectors of %d bits\n", side, library.file.c_str(),
                     library.vectorBits);
    }
};

}   // namespace kfm::bench
