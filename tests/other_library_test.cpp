// Two files of the library in one process, as the benchmarks compare them: neither may call into
// the other, whose functions have the same names.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>

#include "interposition/replacements.h"
#include "kfmgen.h"
#include "other_library.h"

// In the place of the linked library's: its generic entry calls this one.
KfmStatus kfmgWHT_3_64f(const Kfm64f*, Kfm64f*, int, Kfm8u*) {
    return static_cast<KfmStatus>(kfm::tests::replaced);
}

namespace kfm::bench {
namespace {

// The linked file a second time, which for the loader is another.
std::string copyOfLibrary() {
    const std::string copy = testing::TempDir() + "other_library_test_" + std::to_string(getpid());
    std::filesystem::copy_file(registry::loadedLibrary().file, copy);
    return copy;
}

class OtherLibraryTest : public testing::Test {
protected:
    ~OtherLibraryTest() override { std::filesystem::remove(file); }

    const std::string file = copyOfLibrary();
    const OtherLibrary other{file};
};

TEST_F(OtherLibraryTest, CallsItsOwnFunctions) {
    const Kfm64f source[8] = {};
    Kfm64f destination[8];
    const auto transform = [&](decltype(kfmgWHT_64f)* generic) {
        return static_cast<int>(generic(source, destination, 3, kfmScaleNone, nullptr));
    };
    ASSERT_EQ(transform(kfmgWHT_64f), tests::replaced);
    EXPECT_EQ(transform(other.find<decltype(kfmgWHT_64f)>("kfmgWHT_64f")), kfmOk);
}

TEST_F(OtherLibraryTest, IsTheLinkedOneOnlyByThatFile) {
    EXPECT_FALSE(other.linked());
    EXPECT_EQ(other.loaded().file, std::filesystem::canonical(file));
    EXPECT_TRUE(OtherLibrary(registry::loadedLibrary().file).linked());
}

TEST_F(OtherLibraryTest, HasNoUnknownFunctionAndNoFileThatIsNotThere) {
    EXPECT_THROW(other.find<void()>("kfmgWHT_14_64f"), std::runtime_error);
    EXPECT_THROW(OtherLibrary(file + ".missing"), std::runtime_error);
}

}   // namespace
}   // namespace kfm::bench
