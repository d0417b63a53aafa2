// Pages of figures: one family length by length, several by their means.
#include <algorithm>
#include <cmath>
#include <map>

#include "measure/figures.h"
#include "spectrum/page_text.h"

namespace kfm::tool {
namespace {

using Group = FigureGroup;

// Three digits, or two decimals where these are more.
std::string number(const std::optional<double>& value) {
    if (!value) return "-";
    return format("%.*f", *value < 10 ? 2 : *value < 100 ? 1 : 0, *value);
}

const Figure* worstOf(const Group& group) {
    const Figure* worst = nullptr;
    for (const Figure* figure : group)
        if (figure->ratio() && (!worst || *figure->ratio() > *worst->ratio())) worst = figure;
    return worst;
}

std::optional<double> meanRatio(const Group& group) {
    double logarithms = 0;
    int count = 0;
    for (const Figure* figure : group)
        if (figure->ratio()) {
            logarithms += std::log(*figure->ratio());
            ++count;
        }
    return count ? std::optional(std::exp(logarithms / count)) : std::nullopt;
}

std::string at(const Figure& figure, const std::optional<double>& value) {
    return number(value) + " at " + std::to_string(figure.length);
}

void printLengths(std::ostream& out, const Measure& measure, const std::vector<Group>& groups) {
    const char* const largest = measure.hasLargest ? "  largest" : "";
    const int width = 27 + static_cast<int>(std::string_view(largest).size());
    std::map<int, std::vector<const Figure*>> rows;
    out << "      ";
    for (std::size_t i = 0; i < groups.size(); ++i) {
        out << format("%*s", width, std::string(groups[i].front()->element->suffix).c_str());
        for (const Figure* figure : groups[i]) {
            rows[figure->length].resize(groups.size());
            rows[figure->length][i] = figure;
        }
    }
    out << "\nlength";
    for (std::size_t i = 0; i < groups.size(); ++i)
        out << format("%s%9s%9s%9s", largest, measure.ours.c_str(),
                      isFftw(*groups[i].front()) ? "FFTW" : "loop", "ratio");
    out << '\n';
    for (const auto& [length, figures] : rows) {
        out << format("%6d", length);
        for (const Figure* figure : figures) {
            if (!figure) {
                out << std::string(width, ' ');
                continue;
            }
            if (measure.hasLargest) out << format("%9s", number(figure->largest).c_str());
            for (const auto& value : {std::optional(figure->ours), figure->peer, figure->ratio()})
                out << format("%9s", number(value).c_str());
        }
        out << '\n';
    }
    out << "mean  ";
    for (const Group& group : groups) out << format("%*s", width, number(meanRatio(group)).c_str());
    out << '\n';
}

constexpr int shownLengths[] = {8, 16, 32, 64};

std::string timesOf(const Group& group) {
    std::string cells;
    for (const int length : shownLengths) {
        const auto figure = std::ranges::find(group, length, &Figure::length);
        cells += format("%8s", figure == group.end() ? "" : number((*figure)->ours).c_str());
    }
    return cells;
}

std::string errorsOf(const Group& group) {
    const Figure& worst = **std::ranges::max_element(group, {}, &Figure::largest);
    double sum = 0;
    for (const Figure* figure : group) sum += figure->ours;
    return format("%16s%16s", at(worst, worst.largest).c_str(), number(sum / group.size()).c_str());
}

void printSummary(std::ostream& out, const Measure& measure, const std::vector<Group>& groups) {
    out << "family          type";
    if (measure.hasLargest) out << "   largest error      mean error";
    else
        for (const int length : shownLengths)
            out << format("%8s", ("N=" + std::to_string(length)).c_str());
    out << "    to FFTW      at most\n";
    bool loops = false;
    for (const Group& group : groups) {
        const Figure* worst = worstOf(group);
        out << format("%-16s%-4s", group.front()->family.c_str(),
                      std::string(group.front()->element->suffix).c_str())
            << (measure.hasLargest ? errorsOf(group) : timesOf(group))
            << format("%11s%13s\n", number(meanRatio(group)).c_str(),
                      worst ? at(*worst, worst->ratio()).c_str() : "");
        loops |= worst && !isFftw(*worst);
    }
    if (loops) out << "\nFFTW has no Walsh-Hadamard transform: that is beside a plain loop.\n";
}

}   // namespace

void printPage(std::ostream& out, const Measure& measure, Figures figures) {
    const std::vector<Group> groups = grouped(figures);
    const bool oneFamily = std::ranges::all_of(groups, [&](const Group& group) {
        return group.front()->family == figures.front().family;
    });
    if (oneFamily) printLengths(out, measure, groups);
    else printSummary(out, measure, groups);
}

}   // namespace kfm::tool
