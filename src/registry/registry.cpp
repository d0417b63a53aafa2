#include "registry/registry.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace kfm::registry {
namespace {

constexpr std::array<Element, 4> allElements = {{
    {"32f", "Kfm32f", 4, false, false},
    {"64f", "Kfm64f", 8, false, true},
    {"32fc", "Kfm32fc", 8, true, false},
    {"64fc", "Kfm64fc", 16, true, true},
}};

std::vector<const Element*> parseElements(const std::string& suffixes) {
    std::vector<const Element*> result;
    std::istringstream words(suffixes);
    for (std::string word; words >> word;) result.push_back(findElement(word));
    return result;
}

}   // namespace

std::span<const Element> elements() { return allElements; }

const Element* findElement(std::string_view suffix) {
    const auto found = std::ranges::find(allElements, suffix, &Element::suffix);
    return found == allElements.end() ? nullptr : &*found;
}

std::span<const Family> families() {
    static const std::vector<Family> all = {
#define KFM_FAMILY(name, folder, source, first, last, elements) \
    {#name, #folder, #source, first, last, parseElements(#elements), false},
#define KFM_ORDER_FAMILY(name, folder, source, first, last, elements) \
    {#name, #folder, #source, first, last, parseElements(#elements), true},
#define KFM_FUNCTION(name)
#include "registry/families.def"
#undef KFM_FAMILY
#undef KFM_ORDER_FAMILY
#undef KFM_FUNCTION
    };
    return all;
}

const Family* findFamily(std::string_view name) {
    const auto found = std::ranges::find(families(), name, &Family::name);
    return found == families().end() ? nullptr : &*found;
}

std::vector<const Family*> familiesOf(std::string_view kernelSource) {
    std::vector<const Family*> result;
    for (const Family& family : families())
        if (family.kernelSource == kernelSource) result.push_back(&family);
    return result;
}

std::string transformName(const Family& family, int length, const Element& element) {
    return std::string(family.name) + "_" + std::to_string(length) + "_" +
           std::string(element.suffix);
}

std::string functionName(const Family& family, int length, const Element& element) {
    return "kfmg" + transformName(family, length, element);
}

std::string genericName(const Family& family, const Element& element) {
    return "kfmg" + std::string(family.name) + "_" + std::string(element.suffix);
}

std::string rowsName(const Family& family, const Element& element) {
    return "kfmr" + std::string(family.name) + "_" + std::string(element.suffix);
}

std::string unalignedName(const Family& family, int length, const Element& element) {
    return "owng" + transformName(family, length, element) + "_unaligned";
}

bool testsAlignment(const Family& family, int length, const Element& element) {
    if (family.byOrder) return length > (element.doublePrecision ? 2 : 3);
    return element.complex && (element.doublePrecision || length > 5);
}

bool hasUnalignedCopy(const Family& family, int length, const Element& element) {
    return testsAlignment(family, length, element) && length > (family.byOrder ? 3 : 4);
}

bool usesBuffer(const Family& family, int length) { return family.byOrder && length > 7; }

std::vector<std::string> exportedNames() {
    std::vector<std::string> names;
    for (const Family& family : families())
        for (const Element* element : family.elements)
            for (int length = family.first; length <= family.last; ++length)
                names.push_back(functionName(family, length, *element));
    for (const Family& family : families())
        for (const Element* element : family.elements)
            names.push_back(genericName(family, *element));
#define KFM_FAMILY(name, folder, source, first, last, elements)
#define KFM_ORDER_FAMILY(name, folder, source, first, last, elements)
#define KFM_FUNCTION(name) names.push_back(#name);
#include "registry/families.def"
#undef KFM_FAMILY
#undef KFM_ORDER_FAMILY
#undef KFM_FUNCTION
    return names;
}

std::vector<std::string> exportedRowsNames() {
    std::vector<std::string> names;
    for (const Family& family : families())
        for (const Element* element : family.elements) names.push_back(rowsName(family, *element));
    for (const char* name :
         {"WHTGetBufferSize_32f", "WHTGetBufferSize_64f", "DCT4_32f", "DCT4_64f"})
        names.push_back(std::string("kfmr") + name);
    return names;
}

}   // namespace kfm::registry
