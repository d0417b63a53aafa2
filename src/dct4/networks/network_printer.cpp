#include "dct4/networks/network_printer.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace kfm::dct4 {
namespace {

using namespace kernelgen;

constexpr int nodesPerLaundering = 12;

// Rows of lanes in the order of their first use.
class ConstantTable {
public:
    int index(const std::string& row) {
        const auto [found, inserted] = indices_.try_emplace(row, static_cast<int>(rows_.size()));
        if (inserted) rows_.push_back(row);
        return found->second;
    }

    std::string text() const {
        std::string result;
        for (const std::string& row : rows_) result += "        " + row + "\n";
        return rows_.empty() ? "        0\n" : result;
    }

private:
    std::vector<std::string> rows_;
    std::map<std::string, int> indices_;
};

class NetworkPrinter {
public:
    NetworkPrinter(const Graph& g, bool doublePrecision, const ScheduleChoice& choice)
        : g_(g), choice_(choice), doublePrecision_(doublePrecision) {
        for (const Output& output : g.outputs()) outputs_[output.node].push_back(output);
        for (const int node : g.liveNodes())
            for (const Ref operand : {g.nodes()[node].a, g.nodes()[node].b})
                if (!operand.isZero()) operands_.insert(operand.node());
    }

    std::string body() {
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
    static std::string name(Ref ref) { return "t" + std::to_string(ref.node()); }

    std::string tableEntry(const std::string& row) {
        const std::string at = std::to_string(table_.index(row));
        return g_.lanes() == 1 ? "k[" + at + "]" : "constantRow<Vector>(k, " + at + ")";
    }

    std::string constant(const LaneConstant& lanes) {
        std::string row;
        for (const Constant& lane : lanes)
            row += (doublePrecision_ ? lane.asDouble() : lane.asFloat()) + ", ";
        return tableEntry(row);
    }

    std::string signs(const LanePattern& lanes) {
        std::string row;
        for (const int lane : lanes) row += lane ? "-0.0, " : "0.0, ";
        return tableEntry(row);
    }

    static std::string binary(const char* operation, const Node& node) {
        return std::string(operation) + "(" + name(node.a) + ", " + name(node.b) + ")";
    }

    std::string expression(const Node& node) {
        switch (node.op) {
        case Op::load:
            return "in.load(" + std::to_string(node.first) + ")";
        case Op::add:
            return binary("add", node);
        case Op::sub:
            return binary("sub", node);
        case Op::mul:
            return "mul(" + name(node.a) + ", " + constant(g_.constant(node.constant)) + ")";
        case Op::flip:
            return "flip(" + name(node.a) + ", " + signs(node.pattern) + ")";
        case Op::select:
            return selection(node);
        case Op::subtract:
        case Op::widen:
        case Op::round:
            break;
        }
        throw std::logic_error("a network is of one precision and keeps its signs");
    }

    static std::string selection(const Node& node) {
        if (node.a == node.b && std::ranges::is_sorted(node.pattern, std::greater()))
            return "reverse(" + name(node.a) + ")";
        std::string lanes;
        for (const int lane : node.pattern)
            lanes += (lanes.empty() ? "" : ", ") + std::to_string(lane);
        return binary(("select<" + lanes + ">").c_str(), node);
    }

    // A difference that only goes out, and with the other sign, is taken the other way round.
    bool turnsRound(int index) {
        return g_.nodes()[index].op == Op::sub && !operands_.contains(index) &&
               std::ranges::all_of(outputs_[index], [&](const Output& output) {
                   return output.negated == LanePattern(g_.lanes(), 1);
               });
    }

    void printNode(int index) {
        Node node = g_.nodes()[index];
        if (turnsRound(index)) std::swap(node.a, node.b);
        const bool isSum = node.op == Op::add || node.op == Op::sub;
        const bool pinned = choice_.pin == Pin::all || (choice_.pin == Pin::sums && isSum);
        out_ << "        " << (pinned ? "" : "const ") << "Vector t" << index << " = "
             << expression(node) << ";\n";
        if (pinned) out_ << "        pin(t" << index << ");\n";
    }

    void printStore(const Output& output) {
        std::string value = "t" + std::to_string(output.node);
        if (output.negated != LanePattern(g_.lanes(), 0) && !turnsRound(output.node))
            value = g_.lanes() == 1 ? "-" + value
                                    : "flip(" + value + ", " + signs(output.negated) + ")";
        out_ << "        out.store(" << output.first << ", " << value << ");\n";
    }

    const Graph& g_;
    const ScheduleChoice& choice_;
    bool doublePrecision_;
    ConstantTable table_;
    std::map<int, std::vector<Output>> outputs_;
    std::set<int> operands_;
    std::ostringstream out_;
};

}   // namespace

std::string printNetwork(const Graph& g, bool doublePrecision, const ScheduleChoice& choice) {
    NetworkPrinter printer(g, doublePrecision, choice);
    const std::string body = printer.body();
    const std::string real = doublePrecision ? "double" : "float";
    std::ostringstream out;
    out << "    static constexpr int lanes = " << g.lanes() << ";\n"
        << "    alignas(16) static constexpr " << real << " constants[] = {\n"
        << printer.constants() << "    };\n\n"
        << "    template <class Vector, class In, class Out>\n"
        << "    [[gnu::always_inline]] static void run(const In& in, const Out& out) {\n"
        << "        [[maybe_unused]] const auto* k = constants;\n        launder(k);\n"
        << body << "    }\n";
    return out.str();
}

}   // namespace kfm::dct4
