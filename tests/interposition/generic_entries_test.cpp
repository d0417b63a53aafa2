// A program that defines every fixed-length function itself (replacements.cpp): each generic entry
// must call that one, whatever the length, and hand back its status.
#include <cstdio>
#include <string>

#include "interposition/replacements.h"
#include "registry/functions.h"

using namespace kfm;

int main() {
    int failures = 0;
    for (const registry::Function& function : registry::functions()) {
        if (function.length != 0) continue;
        using Generic = int (*)(const void*, void*, int, int, void*);
        const auto generic = reinterpret_cast<Generic>(function.address);
        const registry::Family& family = *registry::findFamily(function.family);
        for (int length = family.first; length <= family.last; ++length) {
            const std::string expected =
                registry::functionName(family, length, *registry::findElement(function.element));
            tests::lastReplacement = "the library's own";
            const int status = generic(nullptr, nullptr, length, 8, nullptr);
            if (status == tests::replaced && tests::lastReplacement == expected) continue;
            std::printf("%s of %d: called %s, status %d\n", function.name, length,
                        tests::lastReplacement, status);
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
