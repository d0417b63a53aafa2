#include "kernelgen/pairing_state.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace kfm::kernelgen {
namespace {

// Costs in twentieths of an instruction.
constexpr int instruction = 20, permutation = 24, blend = 14, extraction = 20, cheapLoad = 8,
              foldedSigns = 8;

// The elements of two loads or two outputs one after the other; -1 where there is none.
template <class Access>
bool contiguous(const Access& low, const Access& high) {
    int next = std::max(low.elements.front(), 0);
    for (const Access* half : {&low, &high})
        for (const int element : half->elements)
            if (element >= 0 && element != next++) return false;
    return true;
}

}   // namespace

PairingState::PairingState(const Graph& g) : graph_(g) {
    const std::size_t count = g.nodes().size() + g.outputs().size();
    numberKinds(g);
    collectOperands(g);
    for (const int node : g.liveNodes())
        if (!isLoad(node)) items_.push_back(node);
    for (std::size_t item = g.nodes().size(); item < count; ++item)
        items_.push_back(static_cast<int>(item));
    users_.resize(count);
    for (const int item : items_)
        for (const int operand : operands_[item])
            if (operand >= 0 && (users_[operand].empty() || users_[operand].back() != item))
                users_[operand].push_back(item);
    findLevels();
    pairing_ = {std::vector<int>(count, -1), std::vector<char>(count, 0)};
    counted_.resize(count);
    asks_.resize(count);
    touched_ = items_;
    settle();
}

// Selections of two lanes have a selector for each half of the vector, those of four share one.
void PairingState::numberKinds(const Graph& g) {
    using Kind = std::tuple<int, bool, LanePattern>;
    std::map<Kind, int> numbers;
    const auto number = [&](Kind kind) {
        return numbers.try_emplace(std::move(kind), static_cast<int>(numbers.size()) + 1)
            .first->second;
    };
    for (const Node& node : g.nodes()) {
        LanePattern shared;
        const bool zeros = std::ranges::count(node.pattern, -1) > 0;
        if (node.op == Op::select && (g.lanes() != 2 || zeros)) shared = node.pattern;
        if (node.op == Op::join) shared = node.pattern;
        if (node.op == Op::subtract) shared = {std::ranges::count(node.pattern, 0) == 0};
        const Op op = node.op == Op::sub ? Op::add : node.op;
        kinds_.push_back(op == Op::load ? 0 : number({static_cast<int>(op), node.wide, shared}));
        sums_.push_back(node.op == Op::add   ? Sum::plus
                        : node.op == Op::sub ? Sum::minus
                                             : Sum::none);
        products_.push_back(node.op == Op::mul);
    }
    sums_.resize(sums_.size() + g.outputs().size(), Sum::none);
    for (const Output& output : g.outputs())
        kinds_.push_back(number({-1, g.nodes()[output.node].wide, {}}));
}

void PairingState::collectOperands(const Graph& g) {
    const auto item = [](Ref ref) { return ref.isZero() ? -1 : ref.node(); };
    for (const Node& node : g.nodes()) {
        std::array<int, 2> operands = {item(node.a), item(node.b)};
        if (node.op == Op::select && g.lanes() == 2) {
            const auto source = [&](int lane) {
                return lane < 0 ? -1 : operands[lane >= g.lanes()];
            };
            operands = {source(node.pattern[0]), source(node.pattern[1])};
        }
        operands_.push_back(operands);
    }
    for (const Output& output : g.outputs()) operands_.push_back({output.node, -1});
}

// The longest way from a load, and of moves in a row: these stand before some operations of one
// level and not before others. Outputs are all of one: nothing depends on them.
void PairingState::findLevels() {
    levels_.resize(operands_.size());
    for (const int item : items_) {
        if (item >= static_cast<int>(graph_.nodes().size())) break;
        const bool move = graph_.nodes()[item].move;
        for (const int operand : operands_[item])
            if (operand >= 0)
                levels_[item] = std::max(levels_[item], move ? levels_[operand].afterMove()
                                                             : levels_[operand].after());
    }
}

bool PairingState::swapsOperands(int low, int high) const {
    const Sum a = sums_[low], b = sums_[high];
    if (a == Sum::none || b == Sum::none || (a == Sum::minus && b == Sum::minus)) return false;
    const auto [a0, a1] = operands_[low];
    const auto [b0, b1] = operands_[high];
    return moveCost(a0, b1) + moveCost(a1, b0) < moveCost(a0, b0) + moveCost(a1, b1);
}

// Of two sums the upper one exchanges its operands, or the lower one where the upper is a
// difference.
PairingState::Operands PairingState::asked(int low, int high) const {
    const auto [a0, a1] = operands_[low];
    if (high < 0) return {{{a0, -1}, {a1, -1}}};
    const auto [b0, b1] = operands_[high];
    if (!swapsOperands(low, high)) return {{{a0, b0}, {a1, b1}}};
    if (sums_[high] == Sum::minus) return {{{a1, b0}, {a0, b1}}};
    return {{{a0, b1}, {a1, b0}}};
}

int PairingState::loadCost(int low, int high) const {
    const Node &a = graph_.nodes()[low], &b = graph_.nodes()[high];
    return low == high || contiguous(a, b) ? cheapLoad : instruction;
}

int PairingState::moveCost(int low, int high) const {
    if (low < 0) return 0;
    if (high < 0) {
        if (isLoad(low)) return cheapLoad;
        return pairing_.upper[low] ? extraction : 0;
    }
    if (isLoad(low) && isLoad(high)) return loadCost(low, high);
    if (isLoad(low) || isLoad(high)) return permutation;
    if (pairing_.joins(low, high)) return 0;
    const bool stand = !pairing_.alone(low) && !pairing_.upper[low] && pairing_.upper[high];
    return stand ? blend : permutation;
}

int PairingState::ownCost(int low, int high, const Operands& operands) const {
    const int nodes = static_cast<int>(graph_.nodes().size());
    if (low >= nodes) {
        if (high < 0) return 2 * instruction;
        const auto &a = graph_.outputs()[low - nodes], &b = graph_.outputs()[high - nodes];
        return contiguous(a, b) ? 2 * instruction : 3 * instruction;
    }
    if (high < 0 || sums_[low] == sums_[high]) return instruction;
    // A sum and a difference: an operand changes its sign in one half, a product by its constant.
    const auto [a, b] = operands[1];
    return instruction + (products_[a] && products_[b] ? foldedSigns : instruction);
}

// Adds the cost of the vector of an item, or takes it away.
void PairingState::countIn(int item, int sign) {
    const int partner = pairing_.partner[item];
    const int low = partner >= 0 && pairing_.upper[item] ? partner : item;
    const int high = partner < 0 ? -1 : low == item ? partner : item;
    counted_[low] = sign > 0;
    if (high >= 0) counted_[high] = sign > 0;
    const Operands operands = asked(low, high);
    cost_ += sign * ownCost(low, high, operands);
    for (const auto& [a, b] : operands) {
        const int move = moveCost(a, b);
        if (move == 0) continue;
        if (ask(a, b, sign)) cost_ += sign * move;
    }
}

// Whether this vector is the first to want a move, or the last.
bool PairingState::ask(int low, int high, int sign) {
    std::vector<Ask>& asks = asks_[low];
    auto found = std::ranges::find(asks, high, &Ask::high);
    if (found == asks.end()) found = asks.insert(found, {high, 0});
    const bool first = found->vectors == 0;
    found->vectors += sign;
    if (found->vectors > 0) return first;
    *found = asks.back();
    asks.pop_back();
    return true;
}

void PairingState::touch(int item) {
    const auto takeOut = [&](int each) {
        if (!counted_[each]) return;
        touched_.push_back(each);
        if (!pairing_.alone(each)) touched_.push_back(pairing_.partner[each]);
        countIn(each, -1);
    };
    takeOut(item);
    for (const int user : users_[item]) takeOut(user);
}

void PairingState::set(int item, int partner, char upper) {
    touch(item);
    changes_.push_back({item, pairing_.partner[item], pairing_.upper[item]});
    pairing_.partner[item] = partner;
    pairing_.upper[item] = upper;
}

void PairingState::settle() {
    for (const int item : touched_)
        if (!counted_[item]) countIn(item, 1);
    touched_.clear();
}

void PairingState::dissolve(int item) {
    const int partner = pairing_.partner[item];
    if (partner < 0) return;
    touch(partner);
    set(item, -1, 0);
    set(partner, -1, 0);
}

void PairingState::join(int low, int high) {
    dissolve(low);
    dissolve(high);
    touch(high);
    set(low, high, 0);
    set(high, low, 1);
}

void PairingState::exchangeHalves(int item) {
    const int partner = pairing_.partner[item];
    if (partner < 0) return;
    touch(partner);
    set(item, partner, !pairing_.upper[item]);
    set(partner, item, !pairing_.upper[partner]);
}

void PairingState::commit() {
    settle();
    changes_.clear();
}

void PairingState::rollBack() {
    settle();
    for (; !changes_.empty(); changes_.pop_back()) {
        const Change change = changes_.back();
        touch(change.item);
        if (!pairing_.alone(change.item)) touch(pairing_.partner[change.item]);
        pairing_.partner[change.item] = change.partner;
        pairing_.upper[change.item] = change.upper;
    }
    settle();
}

}   // namespace kfm::kernelgen
