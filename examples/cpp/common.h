// What the examples share: times, and pictures by gnuplot.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace example {

// ns of one call of each, in turns, the least of several batches.
inline std::vector<double> least(const std::vector<std::function<void()>>& subjects,
                                 int calls = 2000) {
    std::vector<double> best(subjects.size(), 1e30);
    for (int batch = 0; batch < 20; ++batch)
        for (std::size_t i = 0; i < subjects.size(); ++i) {
            const auto start = std::chrono::steady_clock::now();
            for (int call = 0; call < calls; ++call) subjects[i]();
            const std::chrono::duration<double, std::nano> spent =
                std::chrono::steady_clock::now() - start;
            best[i] = std::min(best[i], spent.count() / calls);
        }
    return best;
}

// A script for gnuplot, whose picture goes to the file.
inline void draw(const std::string& file, const std::string& script) {
    std::FILE* const gnuplot = ::popen("gnuplot", "w");
    if (!gnuplot) throw std::runtime_error("gnuplot cannot be run");
    const std::string text = "set terminal pngcairo size 700,420 font 'Sans,10'\nset output '" +
                             file + "'\nset grid lc rgb '#dddddd' lt 1\n" + script;
    std::fputs(text.c_str(), gnuplot);
    if (::pclose(gnuplot) != 0) throw std::runtime_error("gnuplot drew nothing: is it installed?");
}

// Rows of numbers under a name that the script refers to.
inline std::string data(const std::string& name, const std::vector<std::vector<double>>& rows) {
    std::string text = "$" + name + " << END\n";
    for (const auto& row : rows) {
        for (const double value : row) text += std::to_string(value) + " ";
        text += "\n";
    }
    return text + "END\n";
}

}   // namespace example
