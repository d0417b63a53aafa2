#include "input/text_columns.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "failure.h"

namespace kfm::tool {
namespace {

std::optional<std::size_t> columnNamed(std::string_view name, const Fields& fields,
                                       const std::string& place) {
    const auto found = std::ranges::find(fields, name);
    if (found == fields.end()) return std::nullopt;
    if (std::find(found + 1, fields.end(), name) != fields.end())
        throw InputError(place + ": two columns are named " + inQuotes(name));
    return found - fields.begin();
}

}   // namespace

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return text.substr(0, 0);
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::string_view separatorsOf(std::string_view line) {
    for (const std::string_view mark : {";", ","})
        if (line.find(mark) != std::string_view::npos) return mark;
    return blanks;
}

void split(std::string_view line, std::string_view separators, Fields& fields) {
    fields.clear();
    for (;;) {
        const std::size_t end = line.find_first_of(separators);
        fields.push_back(trimmed(line.substr(0, end)));
        if (end == std::string_view::npos) return;
        line.remove_prefix(end + 1);
        if (separators == blanks) line = trimmed(line);
    }
}

TextColumns columnsOf(std::string_view firstLine, const std::string& place) {
    TextColumns columns;
    columns.separators = separatorsOf(firstLine);
    Fields fields;
    split(firstLine, columns.separators, fields);
    columns.count = fields.size();
    const auto named = [&](std::string_view name) { return columnNamed(name, fields, place); };
    if (const auto re = named("re")) {
        columns.data = {*re};
        if (const auto im = named("im")) columns.data.push_back(*im);
    } else if (const auto value = named("value")) {
        columns.data = {*value};
    } else {
        columns.data.resize(fields.size());
        std::iota(columns.data.begin(), columns.data.end(), 0);
        return columns;
    }
    columns.named = true;
    const auto frame = named("frame"), index = named("index"), bin = named("bin");
    if (!frame || (!index && !bin)) return columns;
    columns.framed = true;
    columns.bins = bin.has_value();
    columns.frame = *frame;
    columns.index = bin ? *bin : *index;
    return columns;
}

}   // namespace kfm::tool
