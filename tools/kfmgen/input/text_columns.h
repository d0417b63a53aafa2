// What the columns of a text are, from its first line that counts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kfm::tool {

// Parts of a line between its separators, without the blanks around them.
using Fields = std::vector<std::string_view>;

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text);

// What separates the fields of a line: a semicolon where there is one, else a comma, else blanks.
std::string_view separatorsOf(std::string_view line);
void split(std::string_view line, std::string_view separators, Fields& fields);

struct TextColumns {
    std::string_view separators;
    std::size_t count = 0;           // in every line
    std::vector<std::size_t> data;   // the columns with samples, in order
    bool named = false;              // by the first line: `re` and `im`, or `re` or `value`
    bool framed = false;             // `frame` and `index` or `bin` are there, too
    bool bins = false;
    std::size_t frame = 0, index = 0;
};

// Throws InputError, which `place` begins, for a name that is there twice.
TextColumns columnsOf(std::string_view firstLine, const std::string& place);

}   // namespace kfm::tool
