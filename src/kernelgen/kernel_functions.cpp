#include "kernelgen/kernel_functions.h"

namespace kfm::kernelgen {

using registry::Element;
using registry::Family;

std::string parameters(const Family& family, const Element& element, bool generic) {
    const std::string type(element.type);
    return "const " + type + " *src, " + type + " *dst, " +
           (generic ? "int " + family.lengthName() + ", " : "") + "int flag" +
           (family.byOrder ? ", Kfm8u *buffer" : "");
}

std::string arguments(const Family& family) {
    return std::string("src, dst, flag") + (family.byOrder ? ", buffer" : "");
}

std::string kernelFunctions(const Family& family, int length, const Element& element,
                            const Target& target, const std::string& kernel) {
    const std::string head = "(" + parameters(family, element) + ") {\n";
    const auto status = [&](const std::string& memory) {
        return "kfm::runKernel<" + kernel + ", kfm::simd::" + memory +
               (element.doublePrecision ? "Double" : "Single") + ">(" + arguments(family) + ");\n";
    };
    const std::string name = "KfmStatus " + registry::functionName(family, length, element);
    if (target.movesAnywhere || !registry::testsAlignment(family, length, element))
        return name + head + "    return " + status("Unaligned") + "}\n";
    const std::string copy = registry::unalignedName(family, length, element);
    const bool hasCopy = registry::hasUnalignedCopy(family, length, element);
    std::string text;
    if (hasCopy) text += "KfmStatus " + copy + head + "    return " + status("Unaligned") + "}\n";
    text += name + head;
    text += "    if (kfm::misaligned(src) || kfm::misaligned(dst))";
    // Without its end the compiler lets both paths share the moves that suit either.
    text += hasCopy ? "\n        return " + copy + "(" + arguments(family) + ");\n"
                    : " {\n        const KfmStatus status = " + status("Unaligned") +
                          "        asm volatile(\"\" : : : \"memory\");\n"
                          "        return status;\n    }\n";
    return text + "    return " + status("Aligned") + "}\n";
}

}   // namespace kfm::kernelgen
