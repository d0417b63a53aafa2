#include "kernelgen/emit.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "kernelgen/program.h"

namespace kfm::kernelgen {
namespace {

constexpr int operationsPerLaundering = 12;

class BodyPrinter {
public:
    BodyPrinter(Program& program, const ScheduleChoice& choice, bool overlapping)
        : program_(program), choice_(choice), overlapping_(overlapping) {}

    Body print() {
        const std::string operations = text();   // fills the tables
        return {tables(), pointers() + operations};
    }

private:
    std::string text() {
        out_ << program_.scales();
        const std::vector<Operation>& operations = program_.operations();
        int count = 0;
        auto loads = std::ranges::count_if(operations, &Operation::isLoad);
        std::vector<int> ready;
        for (const int number : schedule(program_.operands(), choice_)) {
            const Operation& operation = operations[number];
            if (choice_.relaunder && ++count % operationsPerLaundering == 0)
                out_ << launderTables();
            print(operation, number);
            ready.insert(ready.end(), operation.outputs.begin(), operation.outputs.end());
            loads -= operation.isLoad();
            if (overlapping_ && loads > 0) continue;
            for (const int output : ready) out_ << "        " << program_.store(output);
            ready.clear();
        }
        return out_.str();
    }

    std::string tables() const {
        std::string result;
        for (const ConstantTable& table : program_.tables())
            if (!table.empty()) result += table.text();
        return result;
    }

    std::string pointers() const {
        std::string result;
        for (const ConstantTable& table : program_.tables())
            if (!table.empty())
                result += "        const auto* " + table.pointer() + " = " + table.name() + ";\n";
        return result + launderTables();
    }

    std::string launderTables() const {
        std::string result;
        for (const ConstantTable& table : program_.tables())
            if (!table.empty()) result += "        launder(" + table.pointer() + ");\n";
        return result;
    }

    void print(const Operation& operation, int number) {
        const bool pinned =
            choice_.pin == Pin::all || (choice_.pin == Pin::sums && operation.isSum());
        out_ << "        " << (pinned ? "" : "const ") << "auto " << operation.name << " = "
             << program_.expression(number) << ";\n";
        if (pinned) out_ << "        pin(" << operation.name << ");\n";
    }

    Program& program_;
    const ScheduleChoice& choice_;
    bool overlapping_;
    std::ostringstream out_;
};

}   // namespace

Body emitBody(Graph g, const registry::Element& element, const ScheduleChoice& choice,
              const Ports& ports) {
    Program operations = program(std::move(g), element, ports, choice.pairings);
    return BodyPrinter(operations, choice, ports.overlapping()).print();
}

std::string emitTransform(Graph g, std::string_view name, const registry::Element& element,
                          const ScheduleChoice& choice, Packed packed) {
    const Body body = emitBody(std::move(g), element, choice, ArrayPorts(element, packed));
    const std::string type(element.type);
    std::ostringstream out;
    out << "struct " << name << " {\n"
        << body.tables << "\n"
        << "    template <class Memory, class Factor>\n"
        << "    [[gnu::always_inline]] static void transform(const " << type << "* src, " << type
        << "* dst, const Factor* factor) {\n"
        << "        const auto scale = broadcast(factor);\n"
        << body.statements << "    }\n};\n";
    return out.str();
}

}   // namespace kfm::kernelgen
