#include "kernelgen/pairing.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "kernelgen/pairing_state.h"

namespace kfm::kernelgen {
namespace {

// Temperatures in 1024ths of an instruction: from one down to an eighth in the first half of a
// search, to a fiftieth in the second.
constexpr int temperatureSteps = 64, hottest = 1024;

constexpr const char* apart = ":apart";

int cooled(int temperature, int step) {
    return std::max(1, temperature * (step < temperatureSteps / 2 ? 959 : 968) / 1024);
}

class Annealing {
public:
    Annealing(const Graph& g, const PairingChoice& choice)
        : graph_(g), choice_(choice), state_(g), random_(static_cast<std::uint32_t>(choice.seed)) {}

    Pairing run() {
        pairOutputs();
        const long moves = choice_.moves * static_cast<long>(state_.items().size());
        int temperature = hottest;
        for (int step = 0; step < temperatureSteps; ++step) {
            for (long i = 0; i < moves / temperatureSteps; ++i) tryMove(temperature);
            temperature = cooled(temperature, step);
        }
        Pairing pairing = state_.pairing();
        pairing.loadsApart = choice_.loadsApart;
        return pairing;
    }

    int cost() const { return state_.cost(); }

private:
    std::uint32_t random(std::size_t count) {
        random_ = random_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<std::uint32_t>((random_ >> 32) * count >> 32);
    }
    template <class T>
    const T& anyOf(const std::vector<T>& values) {
        return values[random(values.size())];
    }

    // Outputs as the choice says, and with each pair all that it is computed from.
    void pairOutputs() {
        const int nodes = static_cast<int>(graph_.nodes().size());
        std::vector<int> itemOf;   // by element
        for (std::size_t i = 0; i < graph_.outputs().size(); ++i) {
            const auto element =
                static_cast<std::size_t>(std::ranges::max(graph_.outputs()[i].elements));
            if (itemOf.size() <= element) itemOf.resize(element + 1, -1);
            itemOf[element] = nodes + static_cast<int>(i);
        }
        const int count = static_cast<int>(itemOf.size());
        for (int k = 0; k < count && choice_.start != 0; ++k) {
            const int other = choice_.start > 0 ? k + choice_.start : -choice_.start - k;
            if (other < 0 || other >= count || itemOf[k] < 0 || itemOf[other] < 0) continue;
            const bool alone =
                state_.pairing().alone(itemOf[k]) && state_.pairing().alone(itemOf[other]);
            if (alone && state_.compatible(itemOf[k], itemOf[other]))
                cascade(itemOf[k], itemOf[other], count * nodes, true, false);
            state_.commit();
        }
    }

    void tryMove(int temperature) {
        const int before = state_.cost();
        propose();
        state_.settle();
        const int rise = state_.cost() - before;
        if (accepts(rise, temperature)) state_.commit();
        else state_.rollBack();
    }

    // exp(-rise / temperature) as a power of two, linear between whole exponents.
    bool accepts(int rise, int temperature) {
        if (rise <= 0) return true;
        const long exponent = static_cast<long>(rise) * 1024 * 369 / 20 / temperature;   // 1/256
        if (exponent >> 8 > 16) return false;
        const long chance = (65536 - 128 * (exponent & 255)) >> (exponent >> 8);
        return random(65536) < chance;
    }

    void propose() {
        const int item = anyOf(state_.items());
        const int partner = state_.pairing().partner[item];
        switch (random(8)) {
        case 0: return proposeAny(item);
        case 1: return state_.dissolve(item);
        case 2: return exchange(item, 1 + static_cast<int>(random(60)));
        default: break;
        }
        if (partner < 0) return proposeAny(item);
        const bool upper = state_.pairing().upper[item];
        const int low = upper ? partner : item, high = upper ? item : partner;
        if (random(2) != 0) proposeOperands(low, high);
        else proposeUsers(low, high);
    }

    int reach() { return 1 << random(7); }   // 1 to 64 pairs

    void proposeAny(int item) {
        const int other = anyOf(state_.items());
        if (!state_.compatible(item, other)) return;
        const bool upwards = random(2), downwards = random(2);
        cascade(item, other, reach(), downwards, upwards);
    }

    void proposeOperands(int low, int high) {
        const auto [a, b] = state_.asked(low, high)[random(2)];
        if (a < 0 || b < 0 || !state_.compatible(a, b)) return;
        const bool upwards = random(2);
        cascade(a, b, reach(), true, upwards);
    }

    void proposeUsers(int low, int high) {
        if (state_.users(low).empty() || state_.users(high).empty()) return;
        const int a = anyOf(state_.users(low)), b = anyOf(state_.users(high));
        if (!state_.compatible(a, b)) return;
        const bool downwards = random(2);
        cascade(a, b, reach(), downwards, true);
    }

    // Joins a and b, then what they take and what takes them, up to so many pairs.
    void cascade(int low, int high, int most, bool downwards, bool upwards) {
        std::vector<std::pair<int, int>> waiting = {{low, high}};
        for (std::size_t at = 0; at < waiting.size() && at < static_cast<std::size_t>(most); ++at) {
            const auto [a, b] = waiting[at];
            if (!joinAnew(a, b)) continue;
            if (downwards)
                for (const auto& [c, d] : state_.asked(a, b))
                    if (c >= 0 && d >= 0 && state_.compatible(c, d)) waiting.push_back({c, d});
            if (upwards) matchUsers(a, b, waiting);
        }
    }

    void matchUsers(int a, int b, std::vector<std::pair<int, int>>& waiting) {
        std::vector<int> others = state_.users(b);
        for (const int user : state_.users(a)) {
            const auto match = std::ranges::find_if(others, [&](int other) {
                return state_.compatible(user, other);
            });
            if (match == others.end()) continue;
            waiting.push_back({user, *match});
            others.erase(match);
        }
    }

    // Partners that are left behind join each other: alone they would cost more than was gained.
    bool joinAnew(int low, int high) {
        const Pairing& pairing = state_.pairing();
        if (pairing.joins(low, high)) return false;
        const int first = pairing.partner[low], second = pairing.partner[high];
        if (first == high) {
            state_.exchangeHalves(low);
            return true;
        }
        const bool firstIsUpper = first >= 0 && pairing.upper[first];
        state_.join(low, high);
        if (first >= 0 && second >= 0 && state_.compatible(first, second)) {
            if (firstIsUpper) state_.join(second, first);
            else state_.join(first, second);
        }
        return true;
    }

    // Of a pair and of those that it hangs together with.
    void exchange(int item, int most) {
        std::vector<int> waiting = {item}, done;
        const auto seen = [&](int each) { return std::ranges::find(done, each) != done.end(); };
        for (std::size_t at = 0; at < waiting.size(); ++at) {
            if (static_cast<int>(done.size()) >= most) return;
            const int here = waiting[at], partner = state_.pairing().partner[here];
            if (partner < 0 || seen(here) || seen(partner)) continue;
            done.push_back(here);
            state_.exchangeHalves(here);
            for (const int operand : state_.operands(here))
                if (operand >= 0 && !state_.isLoad(operand)) waiting.push_back(operand);
            waiting.insert(waiting.end(), state_.users(here).begin(), state_.users(here).end());
        }
    }

    const Graph& graph_;
    const PairingChoice& choice_;
    PairingState state_;
    std::uint64_t random_;
};

}   // namespace

PairingChoice PairingChoice::parse(std::string_view text) {
    PairingChoice choice;
    std::istringstream in{std::string(text)};
    char colon[2];
    in >> choice.start >> colon[0] >> choice.seed >> colon[1] >> choice.moves;
    if (!in) throw std::invalid_argument("no pairing: " + std::string(text));
    std::string rest;
    in >> rest;
    choice.loadsApart = rest == apart;
    if (!rest.empty() && !choice.loadsApart)
        throw std::invalid_argument("no pairing: " + std::string(text));
    return choice;
}

std::string PairingChoice::text() const {
    return std::to_string(start) + ":" + std::to_string(seed) + ":" + std::to_string(moves) +
           (loadsApart ? apart : "");
}

Pairing pairOperations(const Graph& g, const PairingChoice& choice) {
    return Annealing(g, choice).run();
}

std::vector<PairingChoice> cheapestPairings(const Graph& g, std::size_t count) {
    const int n = static_cast<int>(g.outputs().size());
    std::vector<std::pair<int, PairingChoice>> found;
    std::set<int> starts;
    for (const int start : {0, 1, 2, n / 4, n / 2, -n, 1 - n, 1 - 2 * n})
        if (starts.insert(start).second)
            for (const int seed : {1, 2}) {
                const PairingChoice choice{start, seed};
                Annealing search(g, choice);
                search.run();
                found.emplace_back(search.cost(), choice);
            }
    std::ranges::stable_sort(found, {}, [](const auto& each) { return each.first; });
    found.resize(std::min(count, found.size()));
    std::vector<PairingChoice> result;
    for (const auto& [cost, choice] : found) result.push_back(choice);
    return result;
}

}   // namespace kfm::kernelgen
