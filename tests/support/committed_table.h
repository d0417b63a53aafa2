// A table of expected values in the source tree, one line "<function> <values>" per function,
// compared by a test and rewritten by the same test when KFM_UPDATE_TABLES is set (the build
// targets update-hashes and update-accuracy do that).
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace kfm::tests {

class CommittedTable {
public:
    // `heading` opens the file, each of its lines starting with '#'.
    CommittedTable(const std::string& file, std::string heading);
    ~CommittedTable();   // writes the recorded rows when updating

    bool updating() const { return updating_; }
    void record(const std::string& name, const std::string& values) { rows_[name] = values; }
    testing::AssertionResult namesEveryFunctionOnly() const;
    std::string expected(const std::string& name) const;   // empty when there is no such row

private:
    std::string path_;
    std::string heading_;
    bool updating_;
    std::map<std::string, std::string> rows_;
};

}   // namespace kfm::tests
