// Runs the generator and the compiler, two at a time.
#include "workshop.h"

#include <dlfcn.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace kfm::tune {
namespace {

std::string shellWord(const std::string& argument) { return "'" + argument + "'"; }

void runAll(const std::vector<std::string>& commands) {
    std::atomic<std::size_t> next = 0, failed = commands.size();
    const auto work = [&] {
        for (std::size_t i; (i = next++) < commands.size();)
            if (std::system(commands[i].c_str()) != 0) failed = i;
    };
    {
        std::jthread second(work);
        work();
    }
    if (failed < commands.size()) throw std::runtime_error("failed: " + commands[failed]);
}

std::string outputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), &pclose);
    if (!pipe) throw std::runtime_error("cannot run " + command);
    std::string output;
    for (int c; (c = std::fgetc(pipe.get())) != EOF;) output += static_cast<char>(c);
    return output;
}

// The source without its comments, which name the schedule.
std::string codeOf(const std::filesystem::path& source) {
    std::ifstream in(source);
    std::string code;
    for (std::string line; std::getline(in, line);)
        if (!line.starts_with("//")) code += line + '\n';
    return code;
}

Candidate load(const KernelSource& kernel, const std::string& schedule,
               const std::filesystem::path& object) {
    Candidate candidate{schedule, {dlopen(object.c_str(), RTLD_NOW | RTLD_LOCAL), &dlclose}, {}};
    if (!candidate.library) throw std::runtime_error(dlerror());
    for (const std::string& name : kernel.functions) {
        void* const function = dlsym(candidate.library.get(), name.c_str());
        if (!function) throw std::runtime_error(dlerror());
        candidate.functions.push_back(reinterpret_cast<bench::Transform>(function));
    }
    return candidate;
}

}   // namespace

std::string KernelSource::stem() const {
    return source + "_" + std::to_string(length) + "_" + element;
}

std::string KernelSource::kernels() const { return (rows > 1 ? "rows/" : "") + source; }

Workshop::Workshop(std::string kernelgen, std::string target, std::string generated,
                   std::filesystem::path compileCommands, std::filesystem::path folder)
    : kernelgen(std::move(kernelgen)), target(std::move(target)), generated(std::move(generated)),
      compileCommands(std::move(compileCommands)), folder(std::move(folder)) {}

// The command that compiles this kernel for the library, up to its output: the compiler and all
// flags. CMake writes one "command" line per file, ending in -o <object> -c <source>.
std::string Workshop::compiler(const KernelSource& kernel) const {
    static const std::regex line(R"re(\s*"command": "(.*) -o .+ -c (.*/)(\S+)\.cpp(\\")?",?)re");
    std::ifstream in(compileCommands);
    std::smatch match;
    for (std::string text; std::getline(in, text);)
        if (std::regex_match(text, match, line) && match[3] == kernel.stem() &&
            match[2].str().find("/" + generated + "/") != std::string::npos)
            return std::regex_replace(match[1].str(), std::regex(R"(\\(["\\]))"), "$1");
    throw std::runtime_error("no command for " + kernel.stem() + " in " + compileCommands.string());
}

std::string Workshop::path(std::size_t candidate, const char* extension) const {
    return (folder / (std::to_string(candidate) + extension)).string();
}

std::string Workshop::generating(const char* command, const KernelSource& kernel) const {
    return shellWord(kernelgen) + " " + command + " " + std::to_string(kernel.length) + " " +
           kernel.element + " --kernels " + kernel.kernels() + " --target " + target;
}

std::vector<std::string> Workshop::schedules(const KernelSource& kernel,
                                             const std::string& winner) const {
    std::vector<std::string> result;
    std::istringstream lines(
        outputOf(generating("candidates", kernel) + (winner.empty() ? "" : " --after " + winner)));
    for (std::string line; std::getline(lines, line);) result.push_back(line);
    if (result.empty() && winner.empty())
        throw std::runtime_error("the generator offers no schedules");
    return result;
}

void Workshop::generate(const KernelSource& kernel,
                        const std::vector<std::string>& schedules) const {
    const std::string command = generating("kernel", kernel) + " --schedule ";
    std::vector<std::string> commands;
    for (std::size_t i = 0; i < schedules.size(); ++i)
        commands.push_back(command + schedules[i] + " -o " + shellWord(path(i, ".cpp")));
    runAll(commands);
    for (std::size_t i = 0; i < schedules.size(); ++i)
        std::ofstream(path(i, ".cpp"), std::ios::app) << kernel.furtherText;
}

std::vector<std::size_t> Workshop::distinct(std::size_t count) const {
    std::set<std::string> codes;
    std::vector<std::size_t> result;
    for (std::size_t i = 0; i < count; ++i)
        if (codes.insert(codeOf(path(i, ".cpp"))).second) result.push_back(i);
    return result;
}

std::vector<Candidate> Workshop::make(const KernelSource& kernel,
                                      const std::vector<std::string>& choices) const {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    generate(kernel, choices);
    const std::vector<std::size_t> chosen = distinct(choices.size());
    const std::string compile = compiler(kernel) + " -shared -o ";
    std::vector<std::string> commands;
    for (std::size_t i : chosen)
        commands.push_back(compile + shellWord(path(i, ".so")) + " " + shellWord(path(i, ".cpp")));
    runAll(commands);

    std::vector<Candidate> candidates;
    for (std::size_t i : chosen) candidates.push_back(load(kernel, choices[i], path(i, ".so")));
    return candidates;
}

}   // namespace kfm::tune
