// Runs the kfmgen program and makes the files it is given, in a folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kfm::test {

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

class ToolTest : public testing::Test {
protected:
    ToolTest();
    ~ToolTest() override;

    // In the folder of the test, `arguments` as in a shell; `input` is its standard input.
    Outcome run(const std::string& arguments, const std::string& input = "") const;

    // Both return the name. Sound samples are interleaved channels, full scale 1.
    std::string textFile(const std::string& name, const std::string& text) const;
    std::string soundFile(const std::string& name, int rate, int channels,
                          const std::vector<double>& samples) const;

    // Exit status 2, no output, and one line on standard error that contains `words`.
    void expectRefusal(const Outcome& outcome, const std::string& words) const;

private:
    std::string path(const std::string& name) const { return (folder_ / name).string(); }

    std::filesystem::path folder_;
};

}   // namespace kfm::test
