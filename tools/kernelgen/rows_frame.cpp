#include "rows_frame.h"

#include <sstream>

#include "frame.h"
#include "rows/kernels/rows_kernel.h"

namespace kfm::kernelgen {

using registry::Element;
using registry::Family;

namespace {

std::string rowsParameters(const Family& family, const Element& element) {
    const std::string type(element.type), indent = "\n    ";
    return "(" + indent + "const " + type + " *src, ptrdiff_t srcStride, ptrdiff_t srcDistance," +
           indent + type + " *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance," + indent + "int " +
           family.lengthName() + ", ptrdiff_t rows, int flag" +
           (family.byOrder ? ", Kfm8u *buffer" : "") + ")";
}

}   // namespace

std::string rowsEntries() {
    std::ostringstream out;
    out << "// Made by kernelgen from the registry. Do not edit.\n#include \"rows/entry.h\"\n\n";
    forEachVariant([&](const Family& family, const Element& element) {
        if (family.byOrder) return;
        out << "namespace kfm::rows {\n";
        for (int length = family.first; length <= family.last; ++length)
            out << rowsFunction(family, length, element) << ";\n";
        out << "}\n\nextern \"C\" KfmStatus " << registry::rowsName(family, element)
            << rowsParameters(family, element) << " {\n"
            << "    static constexpr kfm::rows::Function<" << element.type
            << ">* functions[] = {\n";
        for (int length = family.first; length <= family.last; ++length)
            out << "        kfm::rows::" << registry::transformName(family, length, element)
                << ",\n";
        out << "    };\n    return kfm::rows::call<" << element.type << ">(functions, "
            << family.first
            << ", length,\n        {{src, srcStride, srcDistance}, {dst, dstStride, dstDistance}, rows, "
               "flag});\n}\n\n";
    });
    return out.str();
}

std::string withRowsDeclarations(std::string_view header) {
    std::string text;
    forEachVariant([&](const Family& family, const Element& element) {
        text += "KFM_API KfmStatus " + registry::rowsName(family, element) +
                rowsParameters(family, element) + ";\n";
    });
    return renewed(std::string(header), "/* declarations of families */\n", text);
}

}   // namespace kfm::kernelgen
