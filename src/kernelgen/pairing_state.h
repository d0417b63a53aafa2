// A pairing under search, and what it costs: kept up to date while pairs are made and dissolved,
// and taken back as a whole when a move does not pay.
#pragma once

#include <array>
#include <vector>

#include "kernelgen/pairing.h"

namespace kfm::kernelgen {

class PairingState {
public:
    explicit PairingState(const Graph& g);

    const Pairing& pairing() const { return pairing_; }
    int cost() const { return cost_; }   // in twentieths of an instruction

    const std::vector<int>& items() const { return items_; }   // that may be paired
    // The items that an item takes its lanes from; -1: none.
    const std::array<int, 2>& operands(int item) const { return operands_[item]; }
    const std::vector<int>& users(int item) const { return users_[item]; }
    bool isLoad(int item) const { return kinds_[item] == 0; }
    // Operations of one level never depend on each other, nor do pairs of them in a circle.
    bool compatible(int a, int b) const {
        return a != b && kinds_[a] == kinds_[b] && levels_[a] == levels_[b] && !isLoad(a);
    }
    // The items that join in a vector for its first and for its second operand, those of sums in
    // the better order.
    using Operands = std::array<std::array<int, 2>, 2>;
    Operands asked(int low, int high) const;

    // What follows until commit() or rollBack() is one move.
    void join(int low, int high);
    void dissolve(int item);
    void exchangeHalves(int item);
    void settle();   // brings the cost up to date in the middle of a move
    void commit();
    void rollBack();

private:
    struct Level {
        int operations = 0, moves = 0;

        Level after() const { return {operations + 1, 0}; }
        Level afterMove() const { return {operations, moves + 1}; }
        friend auto operator<=>(const Level&, const Level&) = default;
    };
    struct Change {
        int item, partner;
        char upper;
    };
    enum class Sum : char { none, plus, minus };
    // A move, and how many vectors want it.
    struct Ask {
        int high, vectors;
    };
    void numberKinds(const Graph& g);
    void collectOperands(const Graph& g);
    void findLevels();
    void set(int item, int partner, char upper);
    void touch(int item);
    void countIn(int item, int sign);
    bool ask(int low, int high, int sign);
    int ownCost(int low, int high, const Operands& operands) const;
    int moveCost(int low, int high) const;
    int loadCost(int low, int high) const;
    bool swapsOperands(int low, int high) const;

    const Graph& graph_;
    std::vector<int> kinds_;   // 0: a load; the same number: may be paired
    std::vector<Sum> sums_;
    std::vector<char> products_;
    std::vector<std::array<int, 2>> operands_;
    std::vector<std::vector<int>> users_;
    std::vector<Level> levels_;
    std::vector<int> items_;
    Pairing pairing_;
    int cost_ = 0;
    std::vector<char> counted_;   // whether the vector of an item is part of the cost
    std::vector<int> touched_;
    std::vector<Change> changes_;
    std::vector<std::vector<Ask>> asks_;   // by the lower half
};

}   // namespace kfm::kernelgen
