#include "dct4/networks/network_printer.h"

#include <sstream>

#include "kernelgen/emit.h"

namespace kfm::dct4 {
namespace {

using namespace kernelgen;

// Frames see to it that no result is stored in the place of an input that is still to be read.
class SlotPorts : public Ports {
public:
    std::string load(const Node& node) const override {
        return "in.load(" + std::to_string(node.first) + ")";
    }
    std::string load(const Node& low, const Node& high, bool apart) const override {
        return (apart ? "in.loadApart(" : "in.load(") + slots(low, high) + ")";
    }
    std::string store(const Output& output, const std::string& value) const override {
        return "out.store(" + std::to_string(output.first) + ", " + value + ");\n";
    }
    std::string store(const Output& low, const Output& high,
                      const std::string& value) const override {
        return "out.store(" + slots(low, high) + ", " + value + ");\n";
    }
    std::string rowAccess() const override { return "constantRow<Vector>"; }
    bool scaled() const override { return false; }
    bool overlapping() const override { return false; }

private:
    template <class Access>
    static std::string slots(const Access& low, const Access& high) {
        return std::to_string(low.first) + ", " + std::to_string(high.first);
    }
};

}   // namespace

std::unique_ptr<Ports> slotPorts(int, const registry::Element&) {
    return std::make_unique<SlotPorts>();
}

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
