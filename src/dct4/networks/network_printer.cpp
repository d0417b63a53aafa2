#include "dct4/networks/network_printer.h"

#include <sstream>

#include "kernelgen/emit.h"
#include "kernelgen/report.h"

namespace kfm::dct4 {
namespace {

using namespace kernelgen;

// Frames see to it that no result is stored in the place of an input that is still to be read.
class SlotPorts : public Ports {
public:
    std::string load(const std::vector<int>& elements, bool apart) const override {
        return (apart ? "in.loadApart(" : "in.load(") + listOf(elements) + ")";
    }
    std::string store(const std::vector<int>& elements, const std::string& value) const override {
        return "out.store(" + listOf(elements) + ", " + value + ");\n";
    }
    std::string rowAccess() const override { return "constantRow<Vector>"; }
    bool scaled() const override { return false; }
    bool overlapping() const override { return false; }
};

}   // namespace

std::unique_ptr<Ports> slotPorts(const registry::Element&) { return std::make_unique<SlotPorts>(); }

std::string printNetwork(const Graph& g, const registry::Element& element,
                         const ScheduleChoice& choice) {
    const Body body = emitBody(g, element, choice, SlotPorts());
    std::ostringstream out;
    out << "    static constexpr int lanes = " << g.lanes() << ";\n"
        << body.tables << "\n"
        << "    template <class Vector, class In, class Out>\n"
        << "    [[gnu::always_inline]] static void run(const In& in, const Out& out) {\n"
        << body.statements << "    }\n";
    return out.str();
}

}   // namespace kfm::dct4
