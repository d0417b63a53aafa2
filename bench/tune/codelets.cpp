#include "codelets.h"

#include "codelet_calls.h"

namespace kfm::tune {
namespace {

struct Codelets {
    std::string_view function;
    int first, last;
};

constexpr Codelets all[] = {
#define KFM_CODELET(function, first, last) {#function, first, last},
#include "dct4/codelets.def"
#undef KFM_CODELET
};

}   // namespace

std::vector<std::string> codeletFunctions() {
    std::vector<std::string> result;
    for (const Codelets& row : all) result.emplace_back(row.function);
    return result;
}

std::vector<KernelSource> codelets(std::string_view function, const registry::Element& element,
                                   const bench::Selection& selection) {
    std::vector<KernelSource> result;
    for (const Codelets& row : all)
        for (int size = row.first; row.function == function && size <= row.last; size *= 2)
            if (selection.hasLength(size)) {
                KernelSource& codelet = result.emplace_back();
                codelet.source = function;
                codelet.element = element.suffix;
                codelet.length = size;
                codelet.arrayLength = codeletArrayLength;
                codelet.functions = {"calledCodelet"};
                codelet.furtherText = "#include \"" KFM_TUNE_FOLDER
                                      "/codelet_calls.h\"\nKFM_CALL_CODELET(" +
                                      codelet.source + ", " + element.realType() + ", " +
                                      std::to_string(size) + ")\n";
            }
    return result;
}

}   // namespace kfm::tune
