// Renewing the declarations in the public header.
#include "frame.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "registry/registry.h"

namespace kfm::tests {
namespace {

// A header as an editor may leave it: declarations gone stale, text of people around them.
std::string staleHeader() {
    std::string text = "/* forward */\n/* declarations: DFTFwd_CToC */\nint old(void);\n"
                       "/* end of declarations */\n/* inverse */\n";
    for (const registry::Family& family : registry::families())
        if (family.name != "DFTFwd_CToC")
            text += "/* declarations: " + std::string(family.name) + " */\n" +
                    "/* end of declarations */\n";
    return text + "/* the end */\n";
}

TEST(Frame, RenewsDeclarationsAndKeepsTheTextAround) {
    const std::string header = kernelgen::withDeclarations(staleHeader());
    EXPECT_EQ(header.find("old"), std::string::npos);
    EXPECT_TRUE(header.starts_with("/* forward */\n/* declarations: DFTFwd_CToC */\n"
                                   "KFM_API KfmStatus kfmgDFTFwd_CToC_2_32fc(const Kfm32fc *src, "
                                   "Kfm32fc *dst, int flag);\n"));
    EXPECT_NE(header.find("(const Kfm64fc *src, Kfm64fc *dst, int length, int flag);\n"
                          "/* end of declarations */\n/* inverse */\n"),
              std::string::npos);
    EXPECT_NE(header.find("(const Kfm64f *src, Kfm64f *dst, int order, int flag, "
                          "Kfm8u *buffer);\n"),
              std::string::npos);
    EXPECT_TRUE(header.ends_with("/* the end */\n"));
    EXPECT_EQ(kernelgen::withDeclarations(header), header);
}

TEST(Frame, RefusesAHeaderWithoutAPlaceForAFamily) {
    std::string header = staleHeader();
    header.erase(header.find("/* declarations: DFTInv"));
    try {
        kernelgen::withDeclarations(header);
        FAIL() << "accepted";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("DFTInv_CToC"), std::string::npos);
    }
}

}   // namespace
}   // namespace kfm::tests
