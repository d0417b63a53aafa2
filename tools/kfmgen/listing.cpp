#include "listing.h"

#include <iomanip>

#include "kfmgen.h"
#include "registry/functions.h"
#include "registry/loaded_library.h"
#include "transform/planned_transform.h"

namespace kfm::tool {

void printInfo(std::ostream& out) {
    const KfmLibraryVersion& version = *kfmgenGetLibVersion();
    const registry::LoadedLibrary& loaded = registry::loadedLibrary();
    out << "library    " << version.libraryName << '\n'
        << "file       " << loaded.file << '\n'
        << "version    " << version.versionMajor << '.' << version.versionMinor << ", build "
        << version.buildMajor << '.' << version.buildNumber << " (" << version.versionText << ")\n"
        << "date       " << version.buildDate << '\n'
        << "target     " << version.targetCode << ", " << loaded.target << ", "
        << loaded.instructions << ", vectors of " << loaded.vectorBits << " bits\n"
        << "functions  " << registry::functions().size() << " in " << registry::families().size()
        << " families\n";
}

void printFamilies(std::ostream& out) {
    out << std::left << std::setw(16) << "family" << std::setw(10) << "lengths"
        << "element types\n";
    for (const registry::Family& family : registry::families()) {
        out << std::setw(16) << family.name << std::setw(10)
            << std::to_string(family.samples(family.first)) + ".." +
                   std::to_string(family.samples(family.last));
        const char* separator = "";
        for (const registry::Element* element : family.elements) {
            out << separator << element->suffix;
            separator = ", ";
        }
        if (family.byOrder)
            out << "; powers of two, orders " << family.first << ".." << family.last;
        out << '\n';
    }
    out << std::setw(16) << plannedFamily << plannedLengths()
        << "   32f, 64f; powers of two, from 33 on one more as well\n";
}

void printFunctionNames(std::ostream& out) {
    for (const std::string& name : registry::exportedNames()) out << name << '\n';
}

}   // namespace kfm::tool
