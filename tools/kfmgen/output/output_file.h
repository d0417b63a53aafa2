// Where a command writes. A file is written beside the one that may be there and takes its place
// when it is complete, so that a run that fails leaves the old one, even if that is the input.
#pragma once

#include <sys/stat.h>

#include <memory>
#include <string>
#include <string_view>

#include "descriptor.h"

namespace kfm::tool {

// Whether what is written there is read at once by who sits before the terminal.
bool showsOnTerminal(const std::string& path);

class OutputFile {
public:
    // - is standard output. Devices, pipes and the like are written as they stand; a symbolic link
    // stays, and what it leads to is written. Throws OutputError, as all functions here do.
    explicit OutputFile(const std::string& path);
    ~OutputFile();   // without complete(): as if nothing had been written to the file

    void write(std::string_view text) {
        if (text.size() > room_) makeRoom(text.size());
        text.copy(end_, text.size());
        end_ += text.size();
        room_ -= text.size();
    }

    void complete();

    // For who writes it otherwise; then nothing by write().
    int descriptor() const { return descriptor_.number(); }
    [[noreturn]] void fail(int error) const;

private:
    void openBeside(const std::string& target, const struct stat* old);
    void makeRoom(std::size_t size);
    void flush();

    std::string name_;   // for messages
    Descriptor descriptor_;
    std::string target_;   // the file to replace; empty when it is written as it stands
    std::string beside_;   // what is written in its place so far
    std::unique_ptr<char[]> buffer_;
    char* end_;
    std::size_t room_;
};

}   // namespace kfm::tool
