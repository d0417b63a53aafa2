#include "run_tool.h"

#include <sndfile.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace kfm::test {
namespace {

std::string contents(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

std::filesystem::path freshFolder() {
    // With a space, as any path may have.
    std::string name = (std::filesystem::temp_directory_path() / "kfmgen test XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return name;
}

}   // namespace

ToolTest::ToolTest() : folder_(freshFolder()) {}
ToolTest::~ToolTest() { std::filesystem::remove_all(folder_); }

Outcome ToolTest::run(const std::string& arguments, const std::string& input) const {
    textFile("stdin", input);
    const std::string command = "cd '" + folder_.string() + "' && '" KFM_TOOL "' " + arguments +
                                " <stdin >stdout 2>stderr";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contents(path("stdout")),
            contents(path("stderr"))};
}

std::string ToolTest::textFile(const std::string& name, const std::string& text) const {
    std::ofstream(path(name)) << text;
    return name;
}

std::string ToolTest::soundFile(const std::string& name, int rate, int channels,
                                const std::vector<double>& samples) const {
    SF_INFO info = {};
    info.samplerate = rate;
    info.channels = channels;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* file = sf_open(path(name).c_str(), SFM_WRITE, &info);
    if (file == nullptr) throw std::runtime_error(sf_strerror(nullptr));
    sf_write_double(file, samples.data(), samples.size());
    sf_close(file);
    return name;
}

void ToolTest::expectRefusal(const Outcome& outcome, const std::string& words) const {
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
    EXPECT_TRUE(outcome.err.starts_with("kfmgen: ")) << outcome.err;
    EXPECT_NE(outcome.err.find(words), std::string::npos) << outcome.err;
}

}   // namespace kfm::test
