#include "kernelgen/search.h"

#include <algorithm>
#include <cstdio>
#include <random>
#include <stdexcept>
#include <vector>

#include "kernelgen/errors.h"
#include "kernelgen/report.h"

namespace kfm::kernelgen {
namespace {

class Search {
public:
    Search(const KernelFamily& family, const registry::Element& element, Goal goal, int signals)
        : family_(family), element_(element), goal_(goal), signals_(signals) {}

    // From the tree on record and from so many others.
    std::string run(const Plan& recorded, int starts) {
        std::string table = heading + line(recorded);
        for (int i = 0; i <= starts; ++i) table += line(descent(i == 0 ? recorded : any(recorded)));
        return table;
    }

private:
    struct Candidate {
        double error;
        Plan plan;
    };
    static constexpr const char* heading = "   mean   worst impulse    ops  tree\n";
    static constexpr double worthwhile = 0.005;
    // A part of the signals tells who is worth all of them.
    static constexpr int screening = 8;
    static constexpr std::size_t finalists = 12;

    double error(const Plan& plan, int part = 1) const {
        const Graph g = family_.graphOf(plan, element_);
        return goal_ == Goal::mean
                   ? errorsOnSignals(g, element_, plan.n, std::max(signals_ / part, 4)).mean
                   : errorsOnImpulses(g, element_, plan.n, std::min(part, 2)).worst;
    }

    Plan descent(Plan plan) const {
        for (double best = error(plan);;) {
            const Candidate winner = bestNeighbour(plan);
            if (winner.error > (1 - worthwhile) * best) return plan;
            plan = winner.plan;
            best = winner.error;
        }
    }

    // The tree with one random change after the other.
    Plan any(Plan plan) {
        for (int i = 0; i < 4; ++i) {
            const std::vector<Plan> all = neighbours(plan);
            const Plan& chosen = all[random_() % all.size()];
            try {
                error(chosen, screening);
                plan = chosen;
            } catch (const std::logic_error&) {
                // As below.
            }
        }
        return plan;
    }

    Candidate bestNeighbour(const Plan& plan) const {
        std::vector<Candidate> candidates;
        for (const Plan& neighbour : neighbours(plan)) try {
            candidates.push_back({error(neighbour, screening), neighbour});
        } catch (const std::logic_error&) {
            // A tree that the lane mapping of the length cannot take.
        }
        std::ranges::sort(candidates, {}, &Candidate::error);
        candidates.resize(std::min(candidates.size(), finalists), {0, plan});
        for (Candidate& candidate : candidates)
            candidate.error = error(candidate.plan);
        const auto best = std::ranges::min_element(candidates, {}, &Candidate::error);
        return best == candidates.end() ? Candidate{error(plan), plan} : *best;
    }

    std::string line(const Plan& plan) const {
        const Graph g = family_.graphOf(plan, element_);
        const ErrorFigures onSignals = errorsOnSignals(g, element_, plan.n, signals_);
        const OperationCounts counts = countOperations(g);
        char figures[100];
        std::snprintf(figures, sizeof figures, "%7.3f %7.2f %7.2f %6d  ", onSignals.mean,
                      onSignals.worst, errorsOnImpulses(g, element_, plan.n).worst,
                      counts.additions + counts.multiplications + counts.shuffles +
                          counts.signChanges);
        return figures + plan.text() + "\n";
    }

    const KernelFamily& family_;
    const registry::Element& element_;
    Goal goal_;
    int signals_;
    std::minstd_rand random_;
};

}   // namespace

std::string errorTable(const KernelFamily& family, int length, const registry::Element& element,
                       Goal goal, int signals, int starts) {
    if (!family.graphOf) throw std::invalid_argument("these kernels have no factor trees");
    return Search(family, element, goal, signals).run(family.plan(length, element), starts);
}

}   // namespace kfm::kernelgen
