// Lines of a text file of any size, in a buffer of fixed size.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "input/input_file.h"

namespace kfm::tool {

class LineReader {
public:
    // Passes over a byte-order mark.
    explicit LineReader(InputFile& file);

    // The next line without its end, valid until the next call; none at the end of the file. Throws
    // InputError for a line that is too long and for a file that cannot be read on.
    std::optional<std::string_view> next();

    // "FILE:LINE" of the line returned last; with a part of that line, "FILE:LINE:COLUMN".
    std::string place() const;
    std::string place(std::string_view part) const;

private:
    bool refill();

    InputFile& file_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0, end_ = 0;   // what of the buffer has not been returned
    std::string_view line_;
    std::uint64_t number_ = 0;
};

}   // namespace kfm::tool
