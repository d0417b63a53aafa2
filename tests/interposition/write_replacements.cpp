// Writes a definition of every fixed-length function into the file that is its argument.
#include <fstream>

#include "registry/registry.h"

using namespace kfm::registry;

int main(int, char** arguments) {
    std::ofstream out(arguments[1]);
    out << "#include \"interposition/replacements.h\"\n\nextern \"C\" {\n";
    for (const Family& family : families())
        for (const Element* element : family.elements)
            for (int length = family.first; length <= family.last; ++length) {
                const std::string name = functionName(family, length, *element);
                out << "int " << name << "() {\n    kfm::tests::lastReplacement = \"" << name
                    << "\";\n    return kfm::tests::replaced;\n}\n";
            }
    out << "}\n";
    return out ? 0 : 1;
}
