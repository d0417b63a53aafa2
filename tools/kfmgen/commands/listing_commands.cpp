// `kfmgen info` and `kfmgen list`.
#include "commands/commands.h"
#include "listing.h"

namespace kfm::tool {

void addListings(CLI::App& app, std::ostream& page) {
    app.add_subcommand("info", "Show which build of the library this is")->callback([&page] {
        printInfo(page);
    });
    CLI::App& list = *app.add_subcommand("list", "Show families, lengths and element types");
    const CLI::Option* names =
        list.add_flag("--names")->description("names of all functions instead");
    list.callback(
        [names, &page] { names->count() > 0 ? printFunctionNames(page) : printFamilies(page); });
}

}   // namespace kfm::tool
