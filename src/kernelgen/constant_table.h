// The constants of a kernel as C++: whole vectors, in the order of their first use.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

class ConstantTable {
public:
    // Of float or double; `access` is the function that fetches a row of `lanes`, filled up with
    // zeros to `rowLength`.
    ConstantTable(std::string name, bool doublePrecision, std::string access, int lanes,
                  int rowLength)
        : name_(std::move(name)), access_(std::move(access)), doublePrecision_(doublePrecision),
          padding_(rowLength - lanes) {}

    std::string constant(const LaneConstant& lanes);
    // -0.0 in the lanes whose entry is `negative`.
    std::string zeros(const LanePattern& lanes, int negative = 1);

    bool empty() const { return rows_.empty(); }
    const std::string& name() const { return name_; }
    std::string pointer() const { return name_.substr(0, 1); }
    std::string text() const;

private:
    std::string use(std::string row, const std::string& comment);

    std::string name_, access_;
    bool doublePrecision_;
    int padding_;
    std::vector<std::string> rows_;
    std::map<std::string, int> indices_;
};

}   // namespace kfm::kernelgen
