#include "kernelgen/search.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "kernelgen/errors.h"
#include "kernelgen/report.h"

namespace kfm::kernelgen {
namespace {

class Search {
public:
    Search(const KernelFamily& family, const registry::Element& element, Goal goal, int signals)
        : family_(family), element_(element), goal_(goal), signals_(signals) {}

    std::string run(const Plan& recorded, int tries) {
        std::string table = "   mean   worst impulse    ops  tree\n" + line(recorded);
        double best = error(recorded);
        for (int i = 0; i < tries; ++i) {
            const Plan plan = roundedOtherwise(recorded, random_);
            if (!promising(plan, best)) continue;
            const double found = error(plan);
            if (found >= best) continue;
            best = found;
            table += line(plan);
        }
        return table;
    }

private:
    double error(const Plan& plan) const {
        const Graph g = family_.graphOf(plan, element_);
        return goal_ == Goal::mean ? errorsOnSignals(g, element_, plan.n, signals_).mean
                                   : errorsOnImpulses(g, element_, plan.n).worst;
    }

    // A part of the signals tells who is worth all of them.
    bool promising(const Plan& plan, double best) const try {
        const Graph g = family_.graphOf(plan, element_);
        if (goal_ == Goal::impulses) return errorsOnImpulses(g, element_, plan.n, 7).worst < best;
        return errorsOnSignals(g, element_, plan.n, std::max(signals_ / 8, 1)).mean < 1.02 * best;
    } catch (const std::logic_error&) {
        return false;   // the lane mapping of the length cannot take this tree
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
                       Goal goal, int signals, int tries) {
    if (!family.graphOf) throw std::invalid_argument("these kernels have no factor trees");
    return Search(family, element, goal, signals).run(family.plan(length, element), tries);
}

}   // namespace kfm::kernelgen
