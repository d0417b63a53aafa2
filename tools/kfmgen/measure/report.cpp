#include "measure/report.h"

#include <fstream>
#include <set>

#include "failure.h"
#include "output/output_file.h"
#include "pictures/gnuplot.h"
#include "pictures/picture.h"
#include "registry/loaded_library.h"

namespace kfm::tool {
namespace {

std::string processor() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.starts_with("model name") && line.find(": ") != line.npos)
            return line.substr(line.find(": ") + 2);
    return "unknown processor";
}

// What was measured, where and beside what.
std::string circumstances(Figures figures) {
    const registry::LoadedLibrary& loaded = registry::loadedLibrary();
    std::set<std::string> peers;
    for (const Figure& figure : figures)
        if (figure.peer) peers.insert(figure.peerName);
    std::string text = processor() + ", " + loaded.instructions;
    const char* separator = "; beside ";
    for (const std::string& peer : peers) {
        text += separator + peer;
        separator = ", ";
    }
    if (!bench::findsFftw()) text += "; FFTW is not there (Debian: libfftw3-dev)";
    return text;
}

struct Drawing {
    PictureKind kind;
    Gnuplot gnuplot;
    OutputFile out;

    explicit Drawing(const std::string& picture)
        : kind(pictureKind(picture)), gnuplot(displayed(picture)), out(picture) {}
};

}   // namespace

void report(const ReportOptions& options, const Measure& measure, std::ostream& page,
            const std::function<std::vector<Figure>()>& figures) {
    std::optional<Drawing> drawing;
    if (!options.picture.empty()) drawing.emplace(options.picture);
    bench::setPeerFolders(options.peerFolders);
    const std::vector<Figure> measured = figures();
    const std::string details = circumstances(measured);
    if (options.format) {
        printRows(page, measure, *options.format, measured);
    } else {
        page << measure.title << '\n' << details << "\n\n";
        printPage(page, measure, measured);
    }
    if (!drawing) return;
    const Caption caption{measure.title, details, {}};
    drawing->out.write(
        drawing->gnuplot.draw(figuresScript(drawing->kind, caption, measure, measured)));
    drawing->out.complete();
}

}   // namespace kfm::tool
