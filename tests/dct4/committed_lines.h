// A file of the source tree with one line "<name> <value>" for each case, compared with what the
// library computes now; KFM_UPDATE_TABLES in the environment rewrites it instead.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace kfm::tests {

inline void expectCommitted(const std::string& file, const std::string& heading,
                            const std::vector<std::string>& lines) {
    const std::string path = KFM_TEST_DATA "/" + file;
    if (std::getenv("KFM_UPDATE_TABLES")) {
        std::ofstream out(path);
        out << heading;
        for (const std::string& line : lines) out << line << '\n';
        return;
    }
    std::vector<std::string> committed;
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);)
        if (!line.starts_with('#')) committed.push_back(line);
    ASSERT_EQ(committed.size(), lines.size()) << path;
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(lines[i], committed[i]);
}

}   // namespace kfm::tests
