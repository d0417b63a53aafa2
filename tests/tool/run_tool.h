// Runs the kfmgen program and makes the files it is given, in a folder of the test's own.
#pragma once

#include <gtest/gtest.h>
#include <sndfile.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kfm::test {

struct Outcome {
    int status;   // 128 and more: ended by a signal
    std::string out;
    std::string err;
    long peakKiB;   // of the largest process
};

class ToolTest : public testing::Test {
protected:
    ToolTest();
    ~ToolTest() override;

    // In the folder of the test, `arguments` as in a shell; `input` is its standard input.
    Outcome run(const std::string& arguments, const std::string& input = "") const;
    // Any commands of bash, in which $kfmgen is the program.
    Outcome shell(const std::string& script, const std::string& input = "") const;

    // These return the name. Sound samples are interleaved channels, full scale 1.
    std::string textFile(const std::string& name, const std::string& text) const;
    std::string soundFile(const std::string& name, int rate, int channels,
                          const std::vector<double>& samples,
                          int format = SF_FORMAT_WAV | SF_FORMAT_PCM_16) const;

    std::string contents(const std::string& name) const;
    std::vector<std::string> names() const;   // in the folder, sorted, without those of run()
    std::string path(const std::string& name) const { return (folder_ / name).string(); }

    // No output, and one line on standard error that begins "kfmgen: " and contains `words`.
    void expectRefusal(const Outcome& outcome, int status, const std::string& words) const;

private:
    std::filesystem::path folder_;
};

// A text of so many samples.
inline std::string ones(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "1\n";
    return text;
}

// Statuses of the program.
constexpr int faultStatus = 1, usageStatus = 2, inputStatus = 3, outputStatus = 4;

}   // namespace kfm::test
