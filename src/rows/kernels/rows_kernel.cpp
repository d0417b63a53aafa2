#include "rows/kernels/rows_kernel.h"

#include <set>
#include <sstream>

#include "kernelgen/emit.h"
#include "kernelgen/kernel_file.h"
#include "kernelgen/rows_graphs.h"

namespace kfm::kernelgen {
namespace {

using registry::Element;
using registry::Family;

// Vectors by their numbers, whatever fills their lanes.
class RowPorts : public Ports {
public:
    explicit RowPorts(RowsForm form) : form_(form) {}

    std::string load(const std::vector<int>& elements, bool) const override {
        return elements[0] < 0 ? "in.zero()" : "in.load(" + std::to_string(elements[0]) + ")";
    }
    std::string store(const std::vector<int>& elements, const std::string& value) const override {
        return "out.store(" + std::to_string(elements[0]) + ", " + value + ");\n";
    }
    std::string rowAccess() const override { return "in.constants"; }
    bool scaled() const override { return true; }
    // Pairs of rows may be transformed in place; lanes are filled and emptied in buffers.
    bool overlapping() const override { return form_ == RowsForm::pairs; }

private:
    RowsForm form_;
};

int rowsAtOnce(const Graph& g, const Element& element, const Target& target) {
    return target.vectorBytes / (element.doublePrecision || g.arithmetic().mixed ? 8 : 4);
}

// What a vector has one of for every row, and how many of them an element is.
std::string values(const Element& element, RowsForm form) {
    const bool lanes = form == RowsForm::lanes;
    return "    using Value = " + (lanes ? element.realType() : std::string(element.type)) +
           ";\n    static constexpr int perElement = " + (lanes && element.complex ? "2" : "1") +
           ";\n";
}

std::string direction(const Family& family) {
    if (family.inverse()) return "inverse";
    return family.name.starts_with("DFTFwd") ? "forward" : "both";
}

// The transform of one direction as a struct, for as many rows as it takes at a time.
std::string transformStruct(const KernelFamily& kernels, const Family& family, int length,
                            const Element& element, const Target& target, RowsForm form,
                            const ScheduleChoice& choice) {
    const Graph single = kernels.graph(length, element, target, family.inverse());
    const int rows = form == RowsForm::pairs ? 2 : rowsAtOnce(single, element, target);
    const RowPorts ports(form);
    const Body body =
        emitBody(form == RowsForm::pairs ? twoRowsGraph(single, length) : spreadGraph(single, rows),
                 element, choice, ports);
    std::ostringstream out;
    out << "struct " << direction(family) << "Transform {\n"
        << values(element, form) << "    static constexpr int rows = " << rows << ";\n"
        << "    static constexpr bool overlapping = " << (ports.overlapping() ? "true" : "false")
        << ";\n"
        << "    static constexpr kfm::Direction direction = kfm::Direction::" << direction(family)
        << ";\n    " << scaleFactors(length, kernels.inverseSqrt(length), element, 0) << body.tables
        << "\n    template <class In, class Out>\n"
        << "    [[gnu::always_inline]] static void run(const In& in, const Out& out, const "
        << element.realType() << "* factor) {\n"
        << "        const auto scale = in.everywhere(factor);\n"
        << body.statements << "    }\n};\n\n";
    return out.str();
}

// How source and destination of a family are laid out.
std::string layouts(const Family& family, int length) {
    const std::string plain = "Plain<" + std::to_string(length) + ">";
    const std::string packed = packedLayout(family, length);
    if (packed.empty()) return plain + ", " + plain;
    return family.inverse() ? packed + ", " + plain : plain + ", " + packed;
}

std::string function(const Family& family, int length, const Element& element,
                     const RowsForms& forms) {
    const std::string transform = direction(family) + "Transform, " + std::to_string(length) + ", ";
    const std::string places = layouts(family, length);
    const std::string single = registry::functionName(family, length, element);
    const std::string singly = "contiguousSingly<" + places + ">(job, " + single + ")";
    const std::string contiguous =
        forms.contiguous == RowsForm::single
            ? singly
            : (forms.contiguous == RowsForm::pairs ? "contiguousInPairs<" : "contiguousInLanes<") +
                  transform + places + ">(job, " + single + ")";
    const std::string spaced = forms.spaced == RowsForm::single
                                   ? "spacedSingly<" + places + ">(job, " + single + ")"
                                   : "spacedInGroups<" + transform + places + ">(job)";
    std::string text =
        rowsFunction(family, length, element) + " {\n    if (!job.contiguous()) " + spaced + ";\n";
    if (forms.far != forms.contiguous)
        text += "    else if (isFar<" + places + ">(job)) " + singly + ";\n";
    return text + "    else " + contiguous + ";\n}\n";
}

}   // namespace

std::string rowsFunction(const Family& family, int length, const Element& element) {
    return "void " + registry::transformName(family, length, element) + "(const Job<" +
           std::string(element.type) + ">& job)";
}

std::string describeRows(const KernelFamily& kernels, int length, const Element& element,
                         const Target& target) {
    const auto describe = [&](RowsForm form) -> std::string {
        switch (form) {
        case RowsForm::single: return "one after the other";
        case RowsForm::pairs: return "2 in the halves of vectors";
        case RowsForm::lanes: break;
        }
        const Graph graph = kernels.graph(length, element, target, false);
        return std::to_string(rowsAtOnce(graph, element, target)) + " in lanes";
    };
    const auto [contiguous, far, spaced] = rowsForms(kernels.source, length, element, target);
    std::string text = describe(contiguous);
    if (far != contiguous) text += "; beyond the caches " + describe(far);
    if (spaced != contiguous) text += "; with strides " + describe(spaced);
    if (contiguous == RowsForm::single && spaced == RowsForm::single) return text;
    return text + "; " + rowsSchedule(kernels.source, length, element, target).text();
}

std::string rowsKernelSource(const KernelFamily& kernels, int length, const Element& element,
                             const Target& target, const RowsForms& forms,
                             const ScheduleChoice& choice) {
    const RowsForm groups = forms.contiguous == RowsForm::single ? forms.spaced : forms.contiguous;
    std::ostringstream out, functions;
    out << "// Generated by kernelgen; do not edit.\n"
        << "// Rows of " << length << ": " << kernels.describe(length, element) << "\n"
        << "#include \"rows/run.h\"\n\nnamespace kfm::rows {\nnamespace {\n\n";
    std::set<std::string> written;
    for (const Family* family : registry::familiesOf(kernels.source)) {
        if (groups != RowsForm::single && written.insert(direction(*family)).second)
            out << transformStruct(kernels, *family, length, element, target, groups, choice);
        functions << function(*family, length, element, forms) << "\n";
    }
    out << "}   // namespace\n\n" << functions.str() << "}   // namespace kfm::rows\n";
    return out.str();
}

}   // namespace kfm::kernelgen
