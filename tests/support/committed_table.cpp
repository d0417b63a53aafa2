// Reading and writing the committed tables; rows are written in registry order.
#include "support/committed_table.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "support/transform.h"

namespace kfm::tests {

CommittedTable::CommittedTable(const std::string& file, std::string heading)
    : path_(KFM_TEST_DATA "/" + file), heading_(std::move(heading)),
      updating_(std::getenv("KFM_UPDATE_TABLES") != nullptr) {
    std::ifstream in(path_);
    for (std::string line; std::getline(in, line);) {
        const auto space = line.find(' ');
        if (space != std::string::npos && line[0] != '#')
            rows_[line.substr(0, space)] = line.substr(line.find_first_not_of(' ', space));
    }
}

CommittedTable::~CommittedTable() {
    if (!updating_) return;
    std::filesystem::create_directories(std::filesystem::path(path_).parent_path());
    std::ofstream out(path_);
    out << heading_;
    for (const Transform& transform : fixedTransforms()) {
        std::string name = transform.name();
        const std::string values = expected(name);
        name.resize(24, ' ');
        if (!values.empty()) out << name << ' ' << values << '\n';
    }
}

testing::AssertionResult CommittedTable::namesEveryFunctionOnly() const {
    if (updating_) return testing::AssertionSuccess() << "being rewritten";
    std::set<std::string> missing, unknown;
    for (const Transform& transform : fixedTransforms()) missing.insert(transform.name());
    for (const auto& [name, values] : rows_)
        if (missing.erase(name) == 0) unknown.insert(name);
    if (missing.empty() && unknown.empty()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "missing: " << testing::PrintToString(missing)
                                       << ", unknown: " << testing::PrintToString(unknown);
}

std::string CommittedTable::expected(const std::string& name) const {
    const auto row = rows_.find(name);
    return row == rows_.end() ? std::string() : row->second;
}

}   // namespace kfm::tests
