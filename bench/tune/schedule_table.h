// The committed choice of schedules of one kernel source: its _schedules.def, as text rows
// KFM_SCHEDULE(target, length, element, schedule) below a comment that is kept as it stands.
// Codelets share a table, whose rows name the function behind the target; so do kernels of rows.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <tuple>

namespace kfm::tune {

struct KernelName {
    std::string target, element;
    int length;
    std::string function = {};                             // where a table is shared
    auto operator<=>(const KernelName&) const = default;   // the order of the rows
};

class ScheduleTable {
public:
    // A file that does not exist is an empty table.
    explicit ScheduleTable(std::filesystem::path path);

    // Empty for a kernel without a row.
    std::string find(const KernelName& kernel) const;
    void choose(const KernelName& kernel, const std::string& schedule);

    void write() const;

private:
    std::filesystem::path file;
    std::string heading;
    std::map<KernelName, std::string> rows;
};

}   // namespace kfm::tune
