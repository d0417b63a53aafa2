// The built libraries as the dynamic loader sees them: what they export and need, and how their
// memory is protected; and the header against the registry.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "registry/loaded_library.h"
#include "registry/registry.h"
#include "support/command.h"
#include "support/rows_library.h"

namespace kfm::tests {
namespace {

using registry::loadedLibrary;

using Names = std::multiset<std::string>;

Names asNames(const std::vector<std::string>& names) { return Names(names.begin(), names.end()); }

struct Library {
    std::string file, name;
    Names exports, needed;
};

void PrintTo(const Library& library, std::ostream* out) { *out << library.name; }

const Library libraries[] = {
    {loadedLibrary().file,
     "libkfmgenw7.so.6.1",
     asNames(registry::exportedNames()),
     {"libm.so.6", "libc.so.6", "libkfmcore.so.6.1"}},
    {rowsLibrary(),
     "libkfmrows.so.6.1",
     asNames(registry::exportedRowsNames()),
     {"libc.so.6", "libkfmgenw7.so.6.1", "libkfmcore.so.6.1"}},
    {KFM_CORE_FILE, "libkfmcore.so.6.1", {"kfmMalloc", "kfmFree"}, {"libc.so.6"}},
};

class SharedLibrary : public testing::TestWithParam<Library> {
protected:
    std::vector<std::string> readelf(const std::string& options) const {
        return linesOf(KFM_READELF " -W " + options + " '" + GetParam().file + "'");
    }
};

// Address of each defined dynamic symbol. Names of symbol versions are no functions.
std::map<std::string, std::string> dynamicSymbols(const std::string& file) {
    std::map<std::string, std::string> addresses;
    for (const std::string& line : linesOf(KFM_NM " -D --defined-only '" + file + "'")) {
        std::istringstream words(line);
        std::string address, type, name;
        words >> address >> type >> name;
        if (type != "A") addresses[name.substr(0, name.find('@'))] = address;
    }
    return addresses;
}

TEST_P(SharedLibrary, ExportsExactlyTheRegisteredNamesAtAddressesOfTheirOwn) {
    Names names;
    std::set<std::string> addresses;
    for (const auto& [name, address] : dynamicSymbols(GetParam().file)) {
        names.insert(name);
        EXPECT_TRUE(addresses.insert(address).second) << name << " shares its address";
    }
    EXPECT_EQ(names, GetParam().exports);
}

TEST_P(SharedLibrary, NeedsOnlySystemLibrariesAndBindsEverythingAtLoad) {
    static const std::regex entry(R"(\((\w+)\)\s+(.*))");
    static const std::regex bracketed(R"(\[(.*)\])");
    bool bindsNow = false;
    for (const std::string& line : readelf("-d")) {
        std::smatch match, value;
        if (!std::regex_search(line, match, entry)) continue;
        const std::string tag = match[1], text = match[2];
        const std::string name = std::regex_search(text, value, bracketed) ? value[1].str() : text;
        if (tag == "NEEDED") {
            EXPECT_TRUE(GetParam().needed.contains(name) || name.starts_with("ld-linux")) << name;
        }
        if (tag == "SONAME") {
            EXPECT_EQ(name, GetParam().name);
        }
        bindsNow |= tag == "FLAGS" && text.find("BIND_NOW") != std::string::npos;
        EXPECT_NE(tag, "TEXTREL") << "code is written to while loading";
        EXPECT_NE(tag, "SYMBOLIC") << "exported functions could not be replaced";
        if (tag == "RPATH" || tag == "RUNPATH") {
            const bool isVariant = GetParam().file != KFM_CORE_FILE && loadedLibrary().variant;
            EXPECT_EQ(name, isVariant ? "$ORIGIN:$ORIGIN/../.." : "$ORIGIN");
        }
    }
    EXPECT_TRUE(bindsNow);
    EXPECT_TRUE(GetParam().file.ends_with("/" + GetParam().name)) << GetParam().file;
}

// Sine and cosine for plans, and memory from the companion: no function can allocate by another
// way, read a file or start a thread. Names with two underscores are the compiler's.
TEST(TransformLibrary, CallsNothingOfTheSystemButMathematics) {
    const std::set<std::string> allowed = {"cos",     "cosf",    "sin",       "sinf",
                                           "sincos",  "sincosf", "floor",     "memcpy",
                                           "memmove", "memset",  "kfmMalloc", "kfmFree"};
    for (const std::string& file : {loadedLibrary().file, rowsLibrary()})
        for (const std::string& line : linesOf(KFM_NM " -D --undefined-only '" + file + "'")) {
            std::istringstream words(line);
            std::string type, name;
            words >> type >> name;
            name = name.substr(0, name.find('@'));
            if (type != "U" || name.starts_with("__") || name.starts_with("kfmg")) continue;
            EXPECT_TRUE(allowed.contains(name)) << name;
        }
}

TEST_P(SharedLibrary, ProtectsItsMemory) {
    bool relro = false, plainStack = false;
    for (const std::string& line : readelf("-l")) {
        relro |= line.find("GNU_RELRO") != std::string::npos;
        plainStack |=
            line.find("GNU_STACK") != std::string::npos && line.find("RWE") == std::string::npos;
    }
    EXPECT_TRUE(relro);
    EXPECT_TRUE(plainStack);
}

// One word each: the start-up objects of the compiler keep a handle and a flag there.
TEST_P(SharedLibrary, KeepsNoWritableDataOfItsOwn) {
    static const std::regex section(R"(\] (\S+) +\S+ +[0-9a-f]+ [0-9a-f]+ ([0-9a-f]+) \S+ +(\w*))");
    for (const std::string& line : readelf("-S")) {
        std::smatch match;
        if (!std::regex_search(line, match, section)) continue;
        const std::string name = match[1], flags = match[3];
        const bool relro = name == ".init_array" || name == ".fini_array" || name == ".dynamic" ||
                           name == ".got" || name == ".data.rel.ro";
        if (flags.find('W') == std::string::npos || relro) continue;
        EXPECT_TRUE(name == ".data" || name == ".bss") << name;
        EXPECT_LE(std::stoul(match[2], nullptr, 16), sizeof(void*)) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(, SharedLibrary, testing::ValuesIn(libraries), [](const auto& info) {
    return info.param.name.substr(0, info.param.name.find('.'));
});

std::string withoutComments(const std::string& text) {
    std::string result;
    for (std::size_t at = 0; at != std::string::npos;) {
        const std::size_t open = text.find("/*", at);
        result += text.substr(at, open - at);
        at = open == std::string::npos ? open : text.find("*/", open);
    }
    return result;
}

TEST(Header, DeclaresExactlyTheRegisteredFunctions) {
    std::ifstream in(KFM_HEADER);
    const std::string text((std::istreambuf_iterator<char>(in)), {});
    const std::string code = withoutComments(text);
    static const std::regex declaration(R"(\b(kfmg\w+)\s*\()");
    Names declared;
    for (std::sregex_iterator at(code.begin(), code.end(), declaration), end; at != end; ++at)
        declared.insert((*at)[1]);
    EXPECT_EQ(declared, libraries[0].exports);

    std::string section;   // of one family, up to an empty line
    std::size_t sections = 0;
    for (const std::string& line : linesOf("'" KFM_KERNELGEN "' declarations")) {
        if (!line.empty()) {
            section += line + "\n";
            continue;
        }
        EXPECT_NE(text.find(section), std::string::npos) << "not in the header:\n" << section;
        section.clear();
        ++sections;
    }
    EXPECT_EQ(sections, registry::families().size());
}

}   // namespace
}   // namespace kfm::tests
