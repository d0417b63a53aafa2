// The options that pick functions from the registry, the same for every program here. To pick none
// is a mistake, which no program answers with an empty table.
#pragma once

#include <CLI/CLI.hpp>
#include <climits>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "registry/functions.h"

namespace kfm::bench {

struct Selection {
    std::string family, element;   // empty: all
    int first = 0, last = INT_MAX;

    void addLengths(CLI::App& app) {
        app.add_option_function<std::string>(
            "--lengths",
            [this](const std::string& text) {
                int read = 0;
                if (std::sscanf(text.c_str(), "%d-%d%n", &first, &last, &read) < 2) {
                    std::sscanf(text.c_str(), "%d%n", &first, &read);
                    last = first;
                }
                if (read == 0 || text[read] != '\0')
                    throw CLI::ValidationError("--lengths", "expected N or A-B");
            },
            "one length or a range A-B");
    }
    void addElement(CLI::App& app) {
        app.add_option("--element", element, "element type")
            ->check(CLI::IsMember(names(registry::elements(), &registry::Element::suffix)));
    }
    void addFamily(CLI::App& app, const std::vector<std::string>& further = {}) {
        std::vector<std::string> known = names(registry::families(), &registry::Family::name);
        known.insert(known.end(), further.begin(), further.end());
        app.add_option("--family", family, "family of functions")->check(CLI::IsMember(known));
    }

    bool hasFamily(std::string_view name) const { return family.empty() || family == name; }
    bool hasElement(std::string_view suffix) const { return element.empty() || element == suffix; }
    bool hasLength(int length) const { return first <= length && length <= last; }

    static void require(bool some) {
        if (!some) throw std::runtime_error("no function has this family, element type and length");
    }
    // The functions of fixed length.
    std::vector<const registry::Function*> functions() const {
        std::vector<const registry::Function*> result;
        for (const registry::Function& function : registry::functions())
            if (function.length != 0 && hasFamily(function.family) &&
                hasElement(function.element) && hasLength(function.length))
                result.push_back(&function);
        require(!result.empty());
        return result;
    }

private:
    template <class Rows, class Field>
    static std::vector<std::string> names(const Rows& rows, Field field) {
        std::vector<std::string> result;
        for (const auto& row : rows) result.emplace_back(row.*field);
        return result;
    }
};

}   // namespace kfm::bench
