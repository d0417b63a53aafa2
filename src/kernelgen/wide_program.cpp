// A graph of vectors of 16 bytes as operations on twice the width. What the pairing joins is one
// operation on both halves; operands that are not a pair in their order are brought together by a
// move, made once for all who want the same two.
#include <algorithm>
#include <array>
#include <map>
#include <tuple>

#include "kernelgen/node_text.h"
#include "kernelgen/pairing_state.h"

namespace kfm::kernelgen {
namespace {

// What an operation is: of one item or two, or what carries halves from one to the other.
enum class Kind { single, pair, joined, upperHalf, negated };

struct WideOperation {
    Kind kind;
    int low, high;            // items; high: -1 for one
    LanePattern signs = {};   // negated: of both halves
};

struct Value {
    int operation;
    std::string text;
};

class WideProgram : public Program {
public:
    WideProgram(const Graph& g, const registry::Element& element, const Ports& ports,
                Pairing pairing)
        : g_(g), ports_(ports), pairing_(std::move(pairing)), mixed_(g.arithmetic().mixed),
          doublePrecision_(element.doublePrecision), rows_(g), text_(g, ports, tables_) {
        tables_ = NodeText::tables(g, element, ports);
        const int lanes = 2 * g.lanes();
        tables_.emplace_back("pairedConstants", element.doublePrecision,
                             fourSingles() ? "constant" : "constantHalves", lanes, lanes);
        tables_.emplace_back("quadruples", true, "constantHalves", lanes, lanes);
        for (const int item : rows_.items())
            if (!pairing_.alone(item)) rows_.join(low(item), high(item));
        rows_.commit();
        for (std::size_t i = 0; i < g.outputs().size(); ++i) addOutput(static_cast<int>(i));
    }

    std::string expression(int operation) override {
        const WideOperation& what = what_[operation];
        const std::vector<Value>& values = values_[operation];
        const auto text = [&](std::size_t i) { return i < values.size() ? values[i].text : ""; };
        switch (what.kind) {
        case Kind::single:
            return text_.expression(g_.nodes()[what.low], text(0), text(1));
        case Kind::pair:
            return both(what, text(0), text(1));
        case Kind::joined:
            return "join<" + std::to_string(half(what.low)) + ", " +
                   std::to_string(half(what.high)) + ">(" + text(0) + ", " + text(1) + ")";
        case Kind::upperHalf:
            return "upper(" + text(0) + ")";
        case Kind::negated:
            return "flip(" + text(0) + ", " + table(wide(what.low)).zeros(what.signs) + ")";
        }
        return {};
    }

    std::string scales() override {
        std::vector<Output> lone;
        for (const auto& [number, store] : stores_)
            if (store.high < 0) lone.push_back(g_.outputs()[number]);
        std::string result = text_.scales(lone);
        if (!ports_.scaled()) return result;
        for (const auto& [signs, name] : pairedScales_) {
            const auto& [isWide, negated] = signs;
            std::string value = "scale";
            if (isWide && !doublePrecision_) value = "twice(widen(scale))";
            else if (!fourSingles()) value = "twice(scale)";
            if (std::ranges::count(negated, 1) > 0)
                value = "flip(" + value + ", " + table(isWide).zeros(negated) + ")";
            result += "        const auto " + name + " = " + value + ";\n";
        }
        return result;
    }

    std::string store(int output) override {
        const Store& what = stores_.at(output);
        if (what.high < 0) return text_.store(g_.outputs()[what.low], what.value.text);
        const Output &a = g_.outputs()[what.low], &b = g_.outputs()[what.high];
        const std::string value = text_.outgoing(what.value.text, signsOf(what), pairedScales_,
                                                 table(wide(a.node)));
        const bool narrowed = wide(a.node) && !doublePrecision_;
        return ports_.store(a, b, narrowed ? "narrow(" + value + ")" : value);
    }

private:
    struct Store {
        int low, high;
        Value value;
    };

    bool wide(int node) const { return g_.nodes()[node].wide; }
    bool isLoad(int node) const { return g_.nodes()[node].op == Op::load; }
    int half(int item) const { return pairing_.alone(item) ? 0 : pairing_.upper[item]; }
    int low(int item) const { return half(item) ? pairing_.partner[item] : item; }
    int high(int item) const { return half(item) ? item : pairing_.partner[item]; }
    ConstantTable& table(bool isWide) { return tables_[isWide && !doublePrecision_ ? 3 : 2]; }
    // Two single-precision lanes and two more fill a vector of 16 bytes.
    bool fourSingles() const { return !doublePrecision_ && g_.lanes() == 2; }

    int add(WideOperation what, std::vector<Value> values) {
        Operation operation{"v" + std::to_string(operations_.size()), {}};
        for (const Value& value : values)
            if (std::ranges::find(operation.operands, value.operation) == operation.operands.end())
                operation.operands.push_back(value.operation);
        operation.paired = what.kind == Kind::pair;
        if (operation.paired || what.kind == Kind::single) operation.op = g_.nodes()[what.low].op;
        if (what.kind == Kind::negated) operation.op = Op::flip;
        operations_.push_back(std::move(operation));
        what_.push_back(std::move(what));
        values_.push_back(std::move(values));
        return static_cast<int>(operations_.size()) - 1;
    }

    // The operation made before for this, or a new one of `values()`.
    template <class Values>
    int once(const WideOperation& what, Values values) {
        const auto key = std::tuple(what.kind, what.low, what.high, what.signs);
        const auto found = made_.find(key);
        if (found != made_.end()) return found->second;
        const int made = add(what, values());
        return made_[key] = made;
    }

    Value named(int operation) const { return {operation, operations_[operation].name}; }

    // The operation that computes an item, alone or with its partner.
    int computed(int item) {
        if (pairing_.alone(item)) {
            return once({Kind::single, item, -1}, [&] {
                std::vector<Value> values;
                const Node& node = g_.nodes()[item];
                for (const Ref operand : {node.a, node.b})
                    if (!operand.isZero()) values.push_back(one(operand.node()));
                return values;
            });
        }
        return once({Kind::pair, low(item), high(item)}, [&] { return pairedOperands(low(item)); });
    }

    // A node as a vector of 16 bytes.
    Value one(int node) {
        const int operation = computed(node);
        if (pairing_.alone(node)) return named(operation);
        if (!half(node)) return {operation, "lower(" + operations_[operation].name + ")"};
        return named(
            once({Kind::upperHalf, node, -1}, [&] { return std::vector{named(operation)}; }));
    }

    // Two nodes as the halves of a vector.
    Value two(int a, int b) {
        if (pairing_.joins(a, b)) return named(computed(a));
        if (isLoad(a) && isLoad(b))
            return named(once({Kind::pair, a, b}, [] { return std::vector<Value>(); }));
        return named(once({Kind::joined, a, b}, [&] { return std::vector{asHalf(a), asHalf(b)}; }));
    }

    Value asHalf(int node) {
        const Value value = named(computed(node));
        if (!pairing_.alone(node) || (fourSingles() && !wide(node))) return value;
        return {value.operation, "asLower(" + value.text + ")"};
    }

    std::vector<Value> pairedOperands(int item) {
        const int other = pairing_.partner[item];
        const Node &a = g_.nodes()[item], &b = g_.nodes()[other];
        std::vector<Value> values;
        for (const int which : {0, 1}) {
            const auto [p, q] = rows_.asked(item, other, which);
            if (p < 0) continue;
            values.push_back(two(p, q));
            if (which == 0 || a.op == b.op) continue;
            // A sum and a difference: the signs go into one of the halves.
            LanePattern signs(2 * g_.lanes(), 0);
            for (int lane = 0; lane < g_.lanes(); ++lane)
                signs[(a.op == Op::sub ? 0 : g_.lanes()) + lane] = 1;
            values.back() = named(once({Kind::negated, p, q, signs},
                                       [&] { return std::vector{values.back()}; }));
        }
        return values;
    }

    std::string both(const WideOperation& what, const std::string& a, const std::string& b) {
        const Node &low = g_.nodes()[what.low], &high = g_.nodes()[what.high];
        switch (low.op) {
        case Op::load:
            return ports_.load(low, high, pairing_.loadsApart);
        case Op::add:
        case Op::sub:
            return (low.op == Op::sub && high.op == Op::sub ? "sub(" : "add(") + a + ", " + b + ")";
        case Op::mul: {
            if (mixed_ && !low.wide) return "add(" + a + ", " + a + ")";
            LaneConstant factors = g_.constant(low.constant);
            const LaneConstant& upper = g_.constant(high.constant);
            factors.insert(factors.end(), upper.begin(), upper.end());
            return "mul(" + a + ", " + table(low.wide).constant(factors) + ")";
        }
        case Op::flip:
            return "flip(" + a + ", " + table(low.wide).zeros(patterns(low, high)) + ")";
        case Op::select:
            return selected(low, high, a, b);
        case Op::subtract:
            return NodeText::subtracted(table(low.wide), patterns(low, high), a);
        case Op::widen:
            return "widenHalves(" + a + ")";
        case Op::round:
            return "narrow(" + a + ")";
        }
        return {};
    }

    static LanePattern patterns(const Node& low, const Node& high) {
        LanePattern result = low.pattern;
        result.insert(result.end(), high.pattern.begin(), high.pattern.end());
        return result;
    }

    std::string selected(const Node& low, const Node& high, const std::string& a,
                         const std::string& b) const {
        LanePattern lanes = low.pattern;
        if (g_.lanes() == 2) {
            lanes = patterns(low, high);
            for (int& lane : lanes) lane = lane < 0 ? lane : lane % 2;
        } else if (low.a == low.b && high.a == high.b) {
            for (int& lane : lanes) lane %= g_.lanes();
        }
        std::string result = "selectHalves<";
        for (std::size_t i = 0; i < lanes.size(); ++i)
            result += (i == 0 ? "" : ", ") + std::to_string(lanes[i]);
        return result + ">(" + (b.empty() || a == b ? a : a + ", " + b) + ")";
    }

    Signs signsOf(const Store& store) const {
        const Output &a = g_.outputs()[store.low], &b = g_.outputs()[store.high];
        LanePattern negated = a.negated;
        negated.insert(negated.end(), b.negated.begin(), b.negated.end());
        return {wide(a.node), negated};
    }

    void addOutput(int number) {
        const int nodes = static_cast<int>(g_.nodes().size()), item = nodes + number;
        if (half(item)) return;   // goes with its partner
        const int node = g_.outputs()[number].node;
        Store store{number, -1, {}};
        if (pairing_.alone(item)) {
            store.value = one(node);
        } else {
            store.high = pairing_.partner[item] - nodes;
            store.value = two(node, g_.outputs()[store.high].node);
            pairedScales_.try_emplace(signsOf(store),
                                      "pairedScale" + std::to_string(pairedScales_.size()));
        }
        operations_[store.value.operation].outputs.push_back(number);
        stores_.emplace(number, std::move(store));
    }

    const Graph& g_;
    const Ports& ports_;
    const Pairing pairing_;
    bool mixed_, doublePrecision_;
    PairingState rows_;
    NodeText text_;
    std::vector<WideOperation> what_;
    std::vector<std::vector<Value>> values_;
    std::map<std::tuple<Kind, int, int, LanePattern>, int> made_;
    std::map<Signs, std::string> pairedScales_;
    std::map<int, Store> stores_;
};

}   // namespace

std::unique_ptr<Program> wideProgram(const Graph& g, const registry::Element& element,
                                     const Ports& ports, Pairing pairing) {
    return std::make_unique<WideProgram>(g, element, ports, std::move(pairing));
}

}   // namespace kfm::kernelgen
