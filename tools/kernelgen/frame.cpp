#include "frame.h"

#include <stdexcept>

#include "kernelgen/kernel_functions.h"
#include "registry/registry.h"

namespace kfm::kernelgen {
namespace {

using registry::Element;
using registry::Family;

constexpr std::string_view doNotEdit = "// Made by kernelgen from the registry. Do not edit.\n";
constexpr std::string_view endMarker = "/* end of declarations */\n";

std::string beginMarker(const Family& family) {
    return "/* declarations: " + std::string(family.name) + " */\n";
}

std::string declaration(const std::string& name, const std::string& parameters) {
    return "KFM_API KfmStatus " + name + "(" + parameters + ");\n";
}

std::string familyDeclarations(const Family& family) {
    std::string text;
    for (const Element* element : family.elements) {
        for (int length = family.first; length <= family.last; ++length)
            text += declaration(registry::functionName(family, length, *element),
                                parameters(family, *element));
        text += declaration(registry::genericName(family, *element),
                            parameters(family, *element, true));
    }
    return text;
}

std::string genericEntry(const Family& family, const Element& element) {
    const std::string table = std::string(family.name) + "_" + std::string(element.suffix);
    std::string text =
        "static KfmStatus (*const " + table + "[])(" + parameters(family, element) + ") = {\n";
    for (int length = family.first; length <= family.last; ++length)
        text += "    " + registry::functionName(family, length, element) + ",\n";
    return text + "};\n\nextern \"C\" KfmStatus " + registry::genericName(family, element) + "(" +
           parameters(family, element, true) + ") {\n    return kfm::callByLength(" + table + ", " +
           std::to_string(family.first) + ", " + family.lengthName() + ", " + arguments(family) +
           ");\n}\n\n";
}

std::string functionRow(const std::string& name, const Family& family, const Element& element,
                        int length) {
    return "        {\"" + name + "\", \"" + std::string(family.name) + "\", \"" +
           std::string(element.suffix) + "\", " + std::to_string(length) +
           ",\n         reinterpret_cast<void (*)()>(&" + name + ")},\n";
}

}   // namespace

std::string symbolMap(const std::vector<std::string>& names) {
    std::string text = "{\n  global:\n";
    for (const std::string& name : names) text += "    " + name + ";\n";
    return text + "  local:\n    *;\n};\n";
}

std::string genericEntries() {
    std::string text(doNotEdit);
    text += "#include \"core/generic_entry.h\"\n\n";
    forEachVariant([&](const Family& family, const Element& element) {
        text += genericEntry(family, element);
    });
    return text;
}

std::string functionsTable() {
    std::string text(doNotEdit);
    text += "#include \"registry/functions.h\"\n\n"
            "#include \"kfmgen.h\"\n\n"
            "std::span<const kfm::registry::Function> kfm::registry::functions() {\n"
            "    static const Function all[] = {\n";
    forEachVariant([&](const Family& family, const Element& element) {
        for (int length = family.first; length <= family.last; ++length)
            text += functionRow(registry::functionName(family, length, element), family, element,
                                length);
        text += functionRow(registry::genericName(family, element), family, element, 0);
    });
    return text + "    };\n    return all;\n}\n";
}

std::string declarations() {
    std::string text;
    for (const Family& family : registry::families())
        text += beginMarker(family) + familyDeclarations(family) + std::string(endMarker) + "\n";
    return text;
}

std::string withDeclarations(std::string_view header) {
    std::string text(header);
    for (const Family& family : registry::families())
        text = renewed(std::move(text), beginMarker(family), familyDeclarations(family));
    return text;
}

std::string renewed(std::string header, const std::string& marker, const std::string& text) {
    const std::size_t begin = header.find(marker);
    const std::size_t end = header.find(endMarker, begin);
    if (begin == std::string::npos || end == std::string::npos)
        throw std::runtime_error("the header has no place for " + marker);
    const std::size_t body = begin + marker.size();
    return header.replace(body, end - body, text);
}

}   // namespace kfm::kernelgen
