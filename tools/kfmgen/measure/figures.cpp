#include "measure/figures.h"

#include <algorithm>
#include <limits>

#include "digits.h"

namespace kfm::tool {

Figure figureOf(const Subject& subject) {
    return {.name = subject.name,
            .family = subject.family,
            .element = subject.element,
            .length = subject.length,
            .ours = std::numeric_limits<double>::infinity(),
            .peer = {},
            .peerName = {},
            .largest = {}};
}

std::vector<FigureGroup> grouped(Figures figures) {
    std::vector<FigureGroup> groups;
    for (const Figure& figure : figures) {
        auto group = std::ranges::find_if(groups, [&](const FigureGroup& one) {
            return one.front()->family == figure.family && one.front()->element == figure.element;
        });
        if (group == groups.end()) group = groups.insert(groups.end(), FigureGroup());
        group->push_back(&figure);
    }
    return groups;
}

namespace {

struct Member {
    std::string name, value;
    bool isText = false;
};

std::string fourDigits(const std::optional<double>& value) {
    char text[longestNumber];
    if (!value) return {};
    return {text,
            std::to_chars(text, text + longestNumber, *value, std::chars_format::general, 4).ptr};
}

std::vector<Member> membersOf(const Measure& measure, const Figure& figure) {
    std::vector<Member> members = {{"function", figure.name, true},
                                   {"family", figure.family, true},
                                   {"type", std::string(figure.element->suffix), true},
                                   {"length", std::to_string(figure.length)},
                                   {measure.member, fourDigits(figure.ours)}};
    if (measure.hasLargest) members.push_back({"largest", fourDigits(figure.largest)});
    members.push_back({"peer_" + measure.member, fourDigits(figure.peer)});
    members.push_back({"ratio", fourDigits(figure.ratio())});
    members.push_back({"peer", figure.peerName, true});
    return members;
}

std::string inJson(const Member& member) {
    const std::string quote = member.isText ? "\"" : "";
    return "\"" + member.name +
           "\":" + (member.value.empty() ? "null" : quote + member.value + quote);
}

}   // namespace

void printRows(std::ostream& out, const Measure& measure, Format format, Figures figures) {
    const auto row = [&](const Figure& figure, auto&& text) {
        const char* separator = "";
        for (const Member& member : membersOf(measure, figure)) {
            out << separator << text(member);
            separator = ",";
        }
    };
    if (format == Format::csv) {
        row(figures.front(), [](const Member& member) { return member.name; });
        out << '\n';
    }
    for (const Figure& figure : figures) {
        if (format == Format::json) out << '{';
        row(figure, [&](const Member& member) {
            return format == Format::json ? inJson(member) : member.value;
        });
        out << (format == Format::json ? "}\n" : "\n");
    }
}

}   // namespace kfm::tool
