// A run over the functions of the registry: how long and where each is timed, and where the results
// go.
#pragma once

#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "registry/functions.h"
#include "timer.h"

namespace kfm::bench {

struct Run {
    int batches = 40, rounds = 3, core = lastCore();
    std::string csv;
    bool summary = false;

    void addOptions(CLI::App& app) {
        app.add_option("--batches", batches, "timed batches of each function")
            ->check(CLI::Range(1, 100000))
            ->capture_default_str();
        app.add_option("--rounds", rounds,
                       "how often to go through all functions; of each side the fastest round "
                       "counts")
            ->check(CLI::Range(1, 1000))
            ->capture_default_str();
        app.add_option("--csv", csv, "write the CSV to this file");
        app.add_flag("--summary", summary, "print a summary; without --csv, instead of it");
        app.add_option("--core", core, "processor to run on")->capture_default_str();
    }

    // A neighbour's work can last longer than all batches of a function: hence the rounds.
    template <class Measure>
    auto measureAll(const std::vector<const registry::Function*>& functions,
                    Measure measure) const {
        std::vector<decltype(measure(*functions.front()))> results;
        for (const registry::Function* function : functions) results.push_back(measure(*function));
        for (int round = 1; round < rounds; ++round)
            for (auto& result : results) result.keepFaster(measure(*result.function));
        return results;
    }

    template <class Results>
    void report(const Results& results) const {
        if (!csv.empty()) {
            std::ofstream file(csv);
            writeCsv(file, results);
            if (!file.flush()) throw std::runtime_error("cannot write " + csv);
        } else if (!summary) {
            writeCsv(std::cout, results);
        }
        if (summary) writeSummary(std::cout, results);
    }
};

}   // namespace kfm::bench
