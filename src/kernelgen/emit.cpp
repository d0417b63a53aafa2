#include "kernelgen/emit.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace kfm::kernelgen {
namespace {

constexpr int nodesPerLaundering = 12;

// Constants and sign masks of one precision in the order of their first use, a vector each.
class ConstantTable {
public:
    ConstantTable(std::string name, bool doublePrecision, int lanes)
        : name_(std::move(name)), doublePrecision_(doublePrecision), scalar_(lanes == 1),
          padding_(doublePrecision || lanes == 1 ? 0 : 4 - lanes) {}

    std::string constant(const LaneConstant& lanes) {
        std::string row, comment;
        for (const Constant& lane : lanes) {
            row += (doublePrecision_ ? lane.asDouble() : lane.asFloat()) + ", ";
            comment += " " + lane.asDecimal();
        }
        return use(row, comment);
    }

    // -0.0 in the lanes whose entry is `negative`.
    std::string zeros(const LanePattern& lanes, int negative = 1) {
        std::string row;
        for (const int lane : lanes) row += lane == negative ? "-0.0, " : "0.0, ";
        return use(row, " signs");
    }

    bool empty() const { return rows_.empty(); }
    const std::string& name() const { return name_; }
    std::string pointer() const { return name_.substr(0, 1); }

    std::string text() const {
        std::string result = "    alignas(16) inline static constexpr ";
        result += std::string(doublePrecision_ ? "double " : "float ") + name_ + "[] = {\n";
        for (const std::string& row : rows_) result += "        " + row + "\n";
        return result + "    };\n";
    }

private:
    std::string use(std::string row, const std::string& comment) {
        for (int i = 0; i < padding_; ++i) row += "0, ";
        const auto [found, inserted] = indices_.try_emplace(row, int(rows_.size()));
        if (inserted) rows_.push_back(row + " //" + comment);
        return std::string(scalar_ ? "lane(" : "constant(") + pointer() + ", " +
               std::to_string(found->second) + ")";
    }

    std::string name_;
    bool doublePrecision_, scalar_;
    int padding_;
    std::vector<std::string> rows_;
    std::map<std::string, int> indices_;
};

class TransformPrinter {
public:
    TransformPrinter(const Graph& g, const registry::Element& element, const ScheduleChoice& choice,
                     Packed packed)
        : g_(g), choice_(choice), packed_(packed), single_(!element.doublePrecision),
          complex_(element.complex),
          tables_{{"constants", element.doublePrecision, g.lanes()},
                  {"wideConstants", true, g.lanes()}} {
        for (const Output& output : g.outputs()) outputs_[output.node].push_back(output);
    }

    std::string body() {
        for (const Output& output : g_.outputs()) nameScale(output);
        int count = 0;
        const std::vector<int> order = schedule(g_, choice_);
        auto loads = std::ranges::count(order, Op::load, [&](int i) { return g_.nodes()[i].op; });
        std::vector<Output> ready;
        for (const int node : order) {
            if (choice_.relaunder && ++count % nodesPerLaundering == 0) out_ << launderTables();
            printNode(node);
            ready.insert(ready.end(), outputs_[node].begin(), outputs_[node].end());
            loads -= g_.nodes()[node].op == Op::load;
            // The arrays may overlap, and some outputs do not depend on all of the source.
            if (loads > 0) continue;
            for (const Output& output : ready) printStore(output);
            ready.clear();
        }
        return "        const auto scale = broadcast(factor);\n" + pointers() + out_.str();
    }

    std::string tables() const {
        std::string result;
        for (const ConstantTable& table : tables_)
            if (!table.empty()) result += table.text();
        return result;
    }

private:
    ConstantTable& tableOf(const Node& node) { return tables_[node.wide]; }

    std::string pointers() const {
        std::string result;
        for (const ConstantTable& table : tables_)
            if (!table.empty())
                result += "        const auto* " + table.pointer() + " = " + table.name() + ";\n";
        return result + launderTables();
    }

    std::string launderTables() const {
        std::string result;
        for (const ConstantTable& table : tables_)
            if (!table.empty()) result += "        launder(" + table.pointer() + ");\n";
        return result;
    }

    // The scale factor in the precision and with the signs of an output, made once for each.
    void nameScale(const Output& output) {
        const Node& node = g_.nodes()[output.node];
        const bool plain = std::ranges::none_of(output.negated, [](int lane) { return lane; });
        std::string& name = scales_[{node.wide, output.negated}];
        if (!name.empty()) return;
        name = plain && !node.wide ? "scale" : "scale" + std::to_string(scales_.size());
        if (name == "scale") return;
        const std::string value = node.wide ? "widen(scale)" : "scale";
        out_ << "        const auto " << name << " = "
             << (plain ? value : "flip(" + value + ", " + tableOf(node).zeros(output.negated) + ")")
             << ";\n";
    }

    static std::string name(int node) { return "t" + std::to_string(node); }
    static std::string name(Ref ref) { return name(ref.node()); }

    void printNode(int index) {
        const Node& node = g_.nodes()[index];
        const bool isSum = node.op == Op::add || node.op == Op::sub;
        const bool pinned = choice_.pin == Pin::all || (choice_.pin == Pin::sums && isSum);
        out_ << "        " << (pinned ? "" : "const ") << "auto t" << index << " = "
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
            return product(node);
        case Op::flip:
            return flipped(node);
        case Op::select:
            return select(node);
        case Op::subtract:
            return subtracted(node);
        case Op::widen:
            return "widen(" + name(node.a) + ")";
        case Op::round:
            return "narrow(" + name(node.a) + ")";
        }
        return {};
    }

    std::string product(const Node& node) {
        const LaneConstant& factor = g_.constant(node.constant);
        if (g_.arithmetic().mixed && !node.wide)   // doubling, the only narrow product there is
            return "add(" + name(node.a) + ", " + name(node.a) + ")";
        return "mul(" + name(node.a) + ", " + tableOf(node).constant(factor) + ")";
    }

    std::string flipped(const Node& node) {
        return "flip(" + name(node.a) + ", " + tableOf(node).zeros(node.pattern) + ")";
    }

    // In the lanes that are kept -0.0 is added, which changes nothing.
    std::string subtracted(const Node& node) {
        if (std::ranges::all_of(node.pattern, [](int lane) { return lane; }))
            return "subtractFromZero(" + name(node.a) + ")";
        return "add(" + flipped(node) + ", " + tableOf(node).zeros(node.pattern, 0) + ")";
    }

    static std::string select(const Node& node) {
        std::string lanes;
        for (const int lane : node.pattern)
            lanes += (lanes.empty() ? "" : ", ") + std::to_string(lane);
        return "select<" + lanes + ">(" + name(node.a) + ", " + name(node.b) + ")";
    }

    std::string address(Packed side, int element) const {
        const std::string index = std::to_string(element);
        const std::string base = side == Packed::source ? "src + " : "dst + ";
        return base + (packed_ == side ? "Memory::at(" + index + ")" : index);
    }

    std::string load(const Node& node) const {
        const std::string first = address(Packed::source, node.first);
        const std::string second = address(Packed::source, node.second);
        if (complex_ && !single_) return "Memory::load(" + first + ")";
        if (g_.lanes() == 1) return "load(" + first + ")";
        if (node.second < 0) return "loadLow(" + first + ")";
        if (wholeVector(node.first, node.second)) return "Memory::loadPair(" + first + ")";
        return "loadHalves(" + first + ", " + second + ")";
    }

    // An aligned vector of two neighbours starts at an even element.
    bool wholeVector(int first, int second) const {
        return complex_ && first % 2 == 0 && second == first + 1;
    }

    void printStore(const Output& output) {
        const bool wide = g_.nodes()[output.node].wide;
        const std::string first = address(Packed::destination, output.first);
        const std::string second = address(Packed::destination, output.second);
        const std::string product =
            "mul(" + name(output.node) + ", " + scales_.at({wide, output.negated}) + ")";
        const std::string value = wide ? "narrow(" + product + ")" : product;
        out_ << "        ";
        if (complex_ && !single_)
            out_ << "Memory::store(" << first;
        else if (output.second < 0)
            out_ << "storeLow(" << first;
        else if (output.first < 0)
            out_ << "storeHigh(" << second;
        else if (wholeVector(output.first, output.second))
            out_ << "Memory::storePair(" << first;
        else
            out_ << "storeHalves(" << first << ", " << second;
        out_ << ", " << value << ");\n";
    }

    const Graph& g_;
    const ScheduleChoice& choice_;
    Packed packed_;
    bool single_, complex_;
    ConstantTable tables_[2];   // of the element type, of wide nodes
    std::map<int, std::vector<Output>> outputs_;
    std::map<std::pair<bool, LanePattern>, std::string> scales_;
    std::ostringstream out_;
};

}   // namespace

std::string emitTransform(const Graph& g, std::string_view name,
                          const registry::Element& element, const ScheduleChoice& choice,
                          Packed packed) {
    TransformPrinter printer(g, element, choice, packed);
    const std::string body = printer.body();
    const std::string type(element.type);
    std::ostringstream out;
    out << "struct " << name << " {\n" << printer.tables() << "\n"
        << "    template <class Memory, class Factor>\n"
        << "    [[gnu::always_inline]] static void transform(const " << type << "* src, " << type
        << "* dst, const Factor* factor) {\n"
        << body << "    }\n};\n";
    return out.str();
}

}   // namespace kfm::kernelgen
