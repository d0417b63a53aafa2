// Command line of the kernel generator: `kernelgen <command> ...`. Everything it writes is a pure
// function of the registry and the factor tables, so a build may run it as often as it likes.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame.h"
#include "kernel_commands.h"
#include "kernelgen/search.h"
#include "registry/registry.h"
#include "rows_frame.h"

namespace fs = std::filesystem;

namespace kfm::kernelgen {
namespace {

// What follows the command: words, and options of the form `--name value`.
struct Arguments {
    std::vector<std::string> words;
    std::map<std::string, std::string> options;

    std::string option(const std::string& name, const std::string& otherwise) const {
        const auto found = options.find(name);
        return found == options.end() ? otherwise : found->second;
    }

    std::string required(const std::string& name) const {
        const auto found = options.find(name);
        if (found == options.end()) throw std::invalid_argument("option " + name + " is missing");
        return found->second;
    }
};

Arguments parseArguments(int count, char** values) {
    Arguments result;
    for (int i = 0; i < count; ++i) {
        const std::string word = values[i];
        if (!word.starts_with("-")) {
            result.words.push_back(word);
            continue;
        }
        if (++i == count) throw std::invalid_argument("option " + word + " needs a value");
        result.options[word] = values[i];
    }
    return result;
}

std::string readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    if (!file || !(text << file.rdbuf())) throw std::runtime_error("cannot read " + path.string());
    return text.str();
}

// A file that already says the same keeps its time stamp: what depends on it is up to date.
void writeFile(const fs::path& path, const std::string& text) {
    if (fs::exists(path) && readFile(path) == text) return;
    if (path.has_parent_path()) fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    if (!(file << text) || !file.flush()) throw std::runtime_error("cannot write " + path.string());
}

// The generated folder: writes what is asked for, and in the end removes what no longer is.
class OutputFolder {
public:
    explicit OutputFolder(fs::path root) : root_(std::move(root)) {}

    void write(const fs::path& name, const std::string& text) {
        writeFile(root_ / name, text);
        written_.insert(root_ / name);
    }

    void removeOthers() const {
        std::vector<fs::path> stale;
        for (const auto& entry : fs::recursive_directory_iterator(root_))
            if (entry.is_regular_file() && !written_.contains(entry.path()))
                stale.push_back(entry.path());
        for (const fs::path& path : stale) fs::remove(path);
    }

private:
    fs::path root_;
    std::set<fs::path> written_;
};

const Target& target(const Arguments& arguments) {
    const std::string name = arguments.option("--target", "sse2-x86-64");
    const Target* found = findTarget(name);
    if (found == nullptr) throw std::invalid_argument("no target is called " + name);
    return *found;
}

// The kernel that the words after a command name: `<N> <element>` of the family --kernels.
struct KernelName {
    explicit KernelName(const Arguments& arguments)
        : source(arguments.option("--kernels", "DFT_CToC")) {
        if (arguments.words.size() != 2)
            throw std::invalid_argument("name a length and an element");
        length = std::stoi(arguments.words[0]);
        element = registry::findElement(arguments.words[1]);
        if (element == nullptr)
            throw std::invalid_argument("no element type is called " + arguments.words[1]);
    }

    std::string source;
    int length;
    const registry::Element* element;
};

void writeResult(const Arguments& arguments, const std::string& text) {
    const std::string file = arguments.option("-o", "");
    if (file.empty()) std::cout << text;
    else writeFile(file, text);
}

std::string fileName(std::string_view source, int length, const registry::Element& element) {
    return std::string(source) + "_" + std::to_string(length) + "_" + std::string(element.suffix) +
           ".cpp";
}

void build(const Arguments& arguments) {
    OutputFolder folder(arguments.required("--output"));
    for (const auto& [below, source, length, element] : kernelFiles())
        folder.write(fs::path(below) / fileName(source, length, *element),
                     kernelSource(source, length, *element, target(arguments)));
    folder.write("core/generic_entries.cpp", genericEntries());
    folder.write("registry/functions.cpp", functionsTable());
    folder.write("kfmgenw7.map", symbolMap(registry::exportedNames()));
    folder.removeOthers();
}

void buildRows(const Arguments& arguments) {
    OutputFolder folder(arguments.required("--output"));
    for (const auto& [below, source, length, element] : kernelFiles())
        if (kernelFamily(source).graphOf)
            folder.write(fs::path(rowsFolder) / fileName(source, length, *element),
                         kernelSource(std::string(rowsFolder) + std::string(source), length,
                                      *element, target(arguments)));
    folder.write("rows/entries.cpp", rowsEntries());
    folder.write("kfmrows.map", symbolMap(registry::exportedRowsNames()));
    folder.removeOthers();
}

void printDeclarations(const Arguments& arguments) {
    if (arguments.options.contains("--into")) {
        const fs::path header = arguments.required("--into");
        const bool ofRows = arguments.option("--of", "") == "rows";
        writeFile(header, (ofRows ? withRowsDeclarations : withDeclarations)(readFile(header)));
    } else {
        std::cout << declarations();
    }
}

void printKernel(const Arguments& arguments) {
    const KernelName kernel(arguments);
    writeResult(arguments, kernelSource(kernel.source, kernel.length, *kernel.element,
                                        target(arguments), arguments.option("--schedule", "")));
}

void printExplanation(const Arguments& arguments) {
    const KernelName kernel(arguments);
    writeResult(arguments, explain(kernel.source, kernel.length, *kernel.element));
}

void printStage(const Arguments& arguments) {
    const KernelName kernel(arguments);
    writeResult(arguments, dump(arguments.required("--stage"), kernel.source, kernel.length,
                                *kernel.element, target(arguments)));
}

void printErrors(const Arguments& arguments) {
    const KernelName kernel(arguments);
    const std::string goal = arguments.option("--by", "mean");
    if (goal != "mean" && goal != "impulses")
        throw std::invalid_argument("errors are compared by mean or by impulses");
    writeResult(arguments, errorTable(kernelFamily(kernel.source), kernel.length, *kernel.element,
                                      goal == "mean" ? Goal::mean : Goal::impulses,
                                      std::stoi(arguments.option("--signals", "300")),
                                      std::stoi(arguments.option("--tries", "200"))));
}

void printCounts(const Arguments& arguments) {
    writeResult(arguments, operationCountTable(target(arguments)));
}

void printCandidates(const Arguments& arguments) {
    const KernelName kernel(arguments);
    std::string text;
    for (const ScheduleChoice& choice :
         candidates(kernel.source, kernel.length, *kernel.element, target(arguments),
                    arguments.option("--after", "")))
        text += choice.text() + "\n";
    writeResult(arguments, text);
}

struct Command {
    const char* name;
    const char* arguments;
    const char* purpose;
    void (*run)(const Arguments&);
};

constexpr Command commands[] = {
    {"build", "--target <target> --output <folder>", "write all generated sources", build},
    {"rows", "--target <target> --output <folder>", "write all sources of the library of rows",
     buildRows},
    {"kernel", "<N> <element> [--target <target>] [--schedule <choice>] [-o <file>]",
     "write the source of one kernel", printKernel},
    {"explain", "<N> <element>", "factor tree, lane mapping and operation counts of a kernel",
     printExplanation},
    {"dump", "<N> <element> --stage graph|schedule|dot|program [--target <target>]",
     "show a kernel between two stages", printStage},
    {"errors", "<N> <element> [--signals <count>] [--by mean|impulses] [--tries <count>]",
     "search for a factor tree with smaller errors", printErrors},
    {"counts", "[--target <target>] [-o <file>]", "the operation counts of all kernels",
     printCounts},
    {"candidates", "<N> <element> [--target <target>] [--after <winner>]",
     "the schedules and pairings from which the tuner chooses", printCandidates},
    {"declarations", "[--into <header> [--of rows]]",
     "print the C declarations, or renew them in a header", printDeclarations},
};

int usage() {
    std::cerr << "usage: kernelgen <command> ...\n";
    for (const Command& command : commands)
        std::cerr << "  " << command.name << ' ' << command.arguments << "\n      "
                  << command.purpose << '\n';
    return 2;
}

int run(int argc, char** argv) {
    const std::string name = argc > 1 ? argv[1] : "";
    for (const Command& command : commands)
        if (name == command.name) {
            command.run(parseArguments(argc - 2, argv + 2));
            return 0;
        }
    return usage();
}

}   // namespace
}   // namespace kfm::kernelgen

int main(int argc, char** argv) {
    try {
        return kfm::kernelgen::run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "kernelgen: " << error.what() << '\n';
        return 1;
    }
}
