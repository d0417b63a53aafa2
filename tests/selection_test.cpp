// What the options of the benchmark programs pick.
#include <gtest/gtest.h>

#include "selection.h"

namespace kfm::bench {
namespace {

std::size_t picked(const std::string& options) {
    CLI::App app;
    Selection selection;
    selection.addFamily(app);
    selection.addElement(app);
    selection.addLengths(app);
    app.parse(options);
    return selection.functions().size();
}

TEST(Selection, PicksFunctionsOfFixedLength) {
    EXPECT_EQ(picked("--family WHT --lengths 13 --element 64f"), 1u);
    EXPECT_EQ(picked("--family Hartley --lengths 60-70"), 10u);
    EXPECT_EQ(picked("--family Hartley"), 126u);
}

TEST(Selection, OfNothingOrOfHalfReadLengthsIsAnError) {
    for (const char* options : {"--lengths 65", "--lengths 9-8", "--family Hartley --element 32fc",
                                "--lengths 16,32", "--lengths 16-", "--lengths all"})
        EXPECT_THROW(picked(options), std::runtime_error) << options;
}

}   // namespace
}   // namespace kfm::bench
