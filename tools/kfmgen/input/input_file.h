// A file as it is read: opened once, from front to back. A pipe, too, can be taken back to its
// first bytes as long as they are kept, so that one can look what it holds.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "descriptor.h"

namespace kfm::tool {

class InputFile {
public:
    // - is standard input. Throws InputError.
    explicit InputFile(const std::string& path);

    // The next bytes, as many as are there now; none at the end, after an error, and where a pipe
    // does not lead.
    std::size_t readSome(std::span<char> bytes);
    // The same, waiting until all have come.
    std::size_t read(std::span<char> bytes);

    void seek(std::uint64_t position) { position_ = position; }
    std::uint64_t position() const { return position_; }

    // From here on a pipe leads forward only.
    void forgetBeginning() { keeps_ = false; }

    std::optional<std::uint64_t> size() const;          // none of a pipe
    std::optional<double> shareRead() const;            // of a file
    bool terminal() const;                              // somebody types
    int error() const { return error_; }                // the errno of a failed read, else 0
    const std::string& name() const { return name_; }   // for messages

private:
    std::size_t readDescriptor(std::span<char> bytes);
    std::size_t readKept(std::span<char> bytes);
    std::size_t readFile(std::span<char> bytes);
    bool keepUntil(std::uint64_t end);

    std::string name_;
    Descriptor descriptor_;
    bool seekable_ = false;
    off_t origin_ = 0;             // where a file stood when it was handed over
    std::uint64_t position_ = 0;   // of the next read
    std::uint64_t arrived_ = 0;    // bytes that the descriptor has passed
    bool keeps_ = true;
    std::vector<char> kept_;   // of a pipe: its first bytes
    int error_ = 0;
};

}   // namespace kfm::tool
