// The environment of a run chooses the variant, and says which one that has to be: part of each
// program that is run with both.
#include "registry/loaded_library.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace {

TEST(Library, IsTheOneThatTheRunIsAbout) {
    const char* wanted = std::getenv("KFM_LIBRARY");
    if (wanted == nullptr) GTEST_SKIP() << "any will do: KFM_LIBRARY is not set";
    EXPECT_EQ(kfm::registry::loadedLibrary().file, std::filesystem::canonical(wanted));
}

}   // namespace
