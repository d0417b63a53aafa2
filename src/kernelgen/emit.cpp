#include "kernelgen/emit.h"

#include <map>
#include <sstream>

namespace kfm::kernelgen {
namespace {

constexpr int nodesPerLaundering = 12;

// Constants and sign masks in the order of their first use.
class ConstantTable {
public:
    explicit ConstantTable(bool doublePrecision) : doublePrecision_(doublePrecision) {}

    int index(const LaneConstant& lanes) {
        std::string row;
        for (const Constant& lane : lanes)
            row += (doublePrecision_ ? lane.asDouble() : lane.asFloat()) + ", ";
        std::string comment;
        for (const Constant& lane : lanes) comment += " " + lane.asDecimal();
        return index(row, comment);
    }

    int mask(const LanePattern& lanes) {
        std::string row;
        for (const int lane : lanes) row += lane ? "-0.0, " : "0.0, ";
        return index(row, " sign");
    }

    std::string text() const {
        std::string result = doublePrecision_ ? "double" : "float";
        result = "alignas(16) inline static constexpr " + result + " constants[] = {\n";
        for (const std::string& row : rows_) result += "        " + row + "\n";
        if (rows_.empty()) result += "        0\n";
        return result + "    };\n";
    }

private:
    int index(const std::string& row, const std::string& comment) {
        const auto [found, inserted] = indices_.try_emplace(row, int(rows_.size()));
        if (inserted) rows_.push_back(row + " //" + comment);
        return found->second;
    }

    bool doublePrecision_;
    std::vector<std::string> rows_;
    std::map<std::string, int> indices_;
};

class TransformPrinter {
public:
    TransformPrinter(const Graph& g, const registry::Element& element, const ScheduleChoice& choice)
        : g_(g), choice_(choice), single_(!element.doublePrecision), table_(!single_) {
        for (const Output& output : g.outputs()) outputs_[output.node].push_back(output);
    }

    std::string body() {
        for (const Output& output : g_.outputs()) nameScale(output.negated);
        int count = 0;
        for (const int node : schedule(g_, choice_)) {
            if (choice_.relaunder && ++count % nodesPerLaundering == 0)
                out_ << "        launder(k);\n";
            printNode(node);
            for (const Output& output : outputs_[node]) printStore(output);
        }
        return out_.str();
    }

    std::string constants() const { return table_.text(); }

private:
    // The scale factor with the signs of an output, made once for each pattern of signs.
    void nameScale(const LanePattern& negated) {
        if (negated == LanePattern(g_.lanes(), 0)) scales_[negated] = "scale";
        if (scales_.contains(negated)) return;
        const std::string name = "scale" + std::to_string(scales_.size() + 1);
        out_ << "        const Vector " << name << " = flip(scale, constant(k, "
             << table_.mask(negated) << "));\n";
        scales_[negated] = name;
    }

    static std::string name(int node) { return "t" + std::to_string(node); }
    static std::string name(Ref ref) { return name(ref.node()); }

    void printNode(int index) {
        const Node& node = g_.nodes()[index];
        const bool isSum = node.op == Op::add || node.op == Op::sub;
        const bool pinned = choice_.pin == Pin::all || (choice_.pin == Pin::sums && isSum);
        out_ << "        " << (pinned ? "" : "const ") << "Vector t" << index << " = "
             << expression(node) << ";\n";
        if (pinned) out_ << "        pin(t" << index << ");\n";
    }

    std::string expression(const Node& node) {
        switch (node.op) {
        case Op::load:
            return load(node);
        case Op::add:
            return "add(" + name(node.a) + ", " + name(node.b) + ")";
        case Op::sub:
            return "sub(" + name(node.a) + ", " + name(node.b) + ")";
        case Op::mul:
            return "mul(" + name(node.a) + ", constant(k, " +
                   std::to_string(table_.index(g_.constant(node.constant))) + "))";
        case Op::flip:
            return "flip(" + name(node.a) + ", constant(k, " +
                   std::to_string(table_.mask(node.pattern)) + "))";
        case Op::select:
            return select(node);
        }
        return {};
    }

    static std::string select(const Node& node) {
        std::string lanes;
        for (const int lane : node.pattern)
            lanes += (lanes.empty() ? "" : ", ") + std::to_string(lane);
        return "select<" + lanes + ">(" + name(node.a) + ", " + name(node.b) + ")";
    }

    std::string load(const Node& node) const {
        const std::string first = "src + " + std::to_string(node.first);
        const std::string second = "src + " + std::to_string(node.second);
        if (!single_) return "Memory::load(" + first + ")";
        if (node.second < 0) return "loadLow(" + first + ")";
        if (wholeVector(node.first, node.second)) return "Memory::loadPair(" + first + ")";
        return "loadHalves(" + first + ", " + second + ")";
    }

    // An aligned vector of two neighbours starts at an even element.
    static bool wholeVector(int first, int second) { return first % 2 == 0 && second == first + 1; }

    void printStore(const Output& output) {
        const std::string first = "dst + " + std::to_string(output.first);
        const std::string second = "dst + " + std::to_string(output.second);
        const std::string value =
            "mul(" + name(output.node) + ", " + scales_.at(output.negated) + ")";
        out_ << "        ";
        if (!single_)
            out_ << "Memory::store(" << first;
        else if (output.second < 0)
            out_ << "storeLow(" << first;
        else if (wholeVector(output.first, output.second))
            out_ << "Memory::storePair(" << first;
        else
            out_ << "storeHalves(" << first << ", " << second;
        out_ << ", " << value << ");\n";
    }

    const Graph& g_;
    const ScheduleChoice& choice_;
    bool single_;
    ConstantTable table_;
    std::map<int, std::vector<Output>> outputs_;
    std::map<LanePattern, std::string> scales_;
    std::ostringstream out_;
};

}   // namespace

std::string emitTransform(const Graph& g, std::string_view name,
                          const registry::Element& element, const ScheduleChoice& choice) {
    TransformPrinter printer(g, element, choice);
    const std::string body = printer.body();
    const std::string type(element.type);
    std::ostringstream out;
    out << "struct " << name << " {\n    " << printer.constants() << "\n"
        << "    template <class Memory>\n"
        << "    [[gnu::always_inline]] static void transform(const " << type << "* src, " << type
        << "* dst, Vector scale) {\n"
        << "        const auto* k = constants;\n        launder(k);\n"
        << body << "    }\n};\n";
    return out.str();
}

}   // namespace kfm::kernelgen
