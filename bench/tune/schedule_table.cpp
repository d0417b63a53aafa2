// Reads and writes the rows of a table of schedules.
#include "schedule_table.h"

#include <fstream>
#include <regex>
#include <stdexcept>

namespace kfm::tune {

ScheduleTable::ScheduleTable(std::filesystem::path path) : file(std::move(path)) {
    static const std::regex row(
        R"(KFM_SCHEDULE\(([^,]+), (?:([a-zA-Z_]+), )?(\d+), ([^,]+), ([^)]+)\))");
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        std::smatch match;
        if (std::regex_match(line, match, row))
            rows[{match[1], match[4], std::stoi(match[3]), match[2]}] = match[5];
        else if (rows.empty()) heading += line + '\n';
        else throw std::runtime_error(file.string() + ": not a row: " + line);
    }
}

std::string ScheduleTable::find(const KernelName& kernel) const {
    const auto row = rows.find(kernel);
    return row == rows.end() ? "" : row->second;
}

void ScheduleTable::choose(const KernelName& kernel, const std::string& schedule) {
    rows[kernel] = schedule;
}

void ScheduleTable::write() const {
    std::ofstream out(file);
    out << heading;
    for (const auto& [kernel, schedule] : rows)
        out << "KFM_SCHEDULE(" << kernel.target << ", "
            << (kernel.function.empty() ? "" : kernel.function + ", ") << kernel.length << ", "
            << kernel.element << ", " << schedule << ")\n";
    if (!out.flush()) throw std::runtime_error("cannot write " + file.string());
}

}   // namespace kfm::tune
