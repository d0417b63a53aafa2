// Makes the candidates of a kernel: has the generator write one source per schedule, compiles each
// into a shared object of its own with the library's own command for that kernel, and loads them.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "signals.h"

namespace kfm::tune {

// A kernel source file, "DFT_CToC", 16, "32fc", and the functions of all families in it: they share
// a schedule. Functions that call a codelet or a kernel of rows come with the text that follows its
// source.
struct KernelSource {
    std::string source, element;
    int length, arrayLength;
    std::vector<std::string> functions = {};
    std::string furtherText = {};
    int rows = 1;   // of a call

    // Other kernels have a table of schedules for each source.
    bool sharesTable() const { return !furtherText.empty(); }
    std::string stem() const;      // "DFT_CToC_16_32fc"
    std::string kernels() const;   // to the generator: "DFT_CToC", "rows/DFT_CToC"
};

struct Candidate {
    std::string schedule;
    std::shared_ptr<void> library;   // keeps the functions loaded
    std::vector<bench::Transform> functions;
};

class Workshop {
public:
    // `generated` is the folder of the target's sources, as its compile commands name it.
    Workshop(std::string kernelgen, std::string target, std::string generated,
             std::filesystem::path compileCommands, std::filesystem::path folder);

    // The generator's list, of which a kernel has two rounds at most: the second is what may be
    // better than the winner of the first.
    std::vector<std::string> schedules(const KernelSource& kernel,
                                       const std::string& winner = {}) const;
    // In the order of the list; of candidates with the same code only the first.
    std::vector<Candidate> make(const KernelSource& kernel,
                                const std::vector<std::string>& choices) const;

private:
    std::string compiler(const KernelSource& kernel) const;
    std::string path(std::size_t candidate, const char* extension) const;
    std::string generating(const char* command, const KernelSource& kernel) const;
    void generate(const KernelSource& kernel, const std::vector<std::string>& schedules) const;
    std::vector<std::size_t> distinct(std::size_t count) const;

    std::string kernelgen, target, generated;
    std::filesystem::path compileCommands, folder;
};

}   // namespace kfm::tune
