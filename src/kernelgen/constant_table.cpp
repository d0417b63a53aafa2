#include "kernelgen/constant_table.h"

namespace kfm::kernelgen {

std::string ConstantTable::constant(const LaneConstant& lanes) {
    std::string row, comment;
    for (const Constant& lane : lanes) {
        row += (doublePrecision_ ? lane.asDouble() : lane.asFloat()) + ", ";
        comment += " " + lane.asDecimal();
    }
    return use(row, comment);
}

std::string ConstantTable::zeros(const LanePattern& lanes, int negative) {
    std::string row;
    for (const int lane : lanes) row += lane == negative ? "-0.0, " : "0.0, ";
    return use(row, " signs");
}

std::string ConstantTable::text() const {
    std::string result = "    alignas(" + std::string(access_ == "constantHalves" ? "32" : "16") +
                         ") inline static constexpr ";
    result += std::string(doublePrecision_ ? "double " : "float ") + name_ + "[] = {\n";
    for (const std::string& row : rows_) result += "        " + row + "\n";
    return result + "    };\n";
}

std::string ConstantTable::use(std::string row, const std::string& comment) {
    for (int i = 0; i < padding_; ++i) row += "0, ";
    const auto [found, inserted] = indices_.try_emplace(row, int(rows_.size()));
    if (inserted) rows_.push_back(row + " //" + comment);
    return access_ + "(" + pointer() + ", " + std::to_string(found->second) + ")";
}

}   // namespace kfm::kernelgen
