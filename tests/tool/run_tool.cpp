#include "run_tool.h"

#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

namespace kfm::test {
namespace {

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
    return shell("\"$kfmgen\" " + arguments, input);
}

Outcome ToolTest::shell(const std::string& script, const std::string& input) const {
    textFile("stdin", input);
    const std::string redirected =
        "cd '" + folder_.string() + "' && { " + script + "\n} <stdin >stdout 2>stderr";
    const pid_t child = fork();
    if (child == 0) {
        setenv("kfmgen", KFM_TOOL, 1);
        execlp("bash", "bash", "-c", redirected.c_str(), nullptr);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), contents("stdout"),
            contents("stderr"), usage.ru_maxrss};
}

std::string ToolTest::textFile(const std::string& name, const std::string& text) const {
    std::ofstream(path(name)) << text;
    return name;
}

std::string ToolTest::soundFile(const std::string& name, int rate, int channels,
                                const std::vector<double>& samples, int format) const {
    SF_INFO info = {};
    info.samplerate = rate;
    info.channels = channels;
    info.format = format;
    SNDFILE* file = sf_open(path(name).c_str(), SFM_WRITE, &info);
    if (file == nullptr) throw std::runtime_error(sf_strerror(nullptr));
    const int encoding = format & SF_FORMAT_SUBMASK;
    std::vector<double> values = samples;
    if (encoding <= SF_FORMAT_PCM_32 || encoding == SF_FORMAT_PCM_U8) {
        // libsndfile takes the largest integer for full scale, but reads the one above it as 1.
        const int bits = encoding == SF_FORMAT_PCM_U8 ? 8 : 8 * encoding;
        for (double& value : values) value *= std::ldexp(1.0, bits - 1);
        sf_command(file, SFC_SET_NORM_DOUBLE, nullptr, SF_FALSE);
    }
    sf_write_double(file, values.data(), values.size());
    sf_close(file);
    return name;
}

std::string ToolTest::contents(const std::string& name) const {
    std::ostringstream text;
    text << std::ifstream(path(name)).rdbuf();
    return text.str();
}

std::vector<std::string> ToolTest::names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
        const std::string name = entry.path().filename();
        if (name != "stdin" && name != "stdout" && name != "stderr") names.push_back(name);
    }
    std::ranges::sort(names);
    return names;
}

void ToolTest::expectRefusal(const Outcome& outcome, int status, const std::string& words) const {
    EXPECT_EQ(outcome.status, status);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
    EXPECT_TRUE(outcome.err.starts_with("kfmgen: ")) << outcome.err;
    EXPECT_NE(outcome.err.find(words), std::string::npos) << outcome.err;
}

}   // namespace kfm::test
