#include "rows/kernels/rows_records.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <vector>

namespace kfm::kernelgen {

using registry::Element;

RowsForms widestForms(const Element& element, const Target& target) {
    const RowsForm widest = !(element.complex && element.doublePrecision) ? RowsForm::lanes
                            : target.vectorBytes > 16                     ? RowsForm::pairs
                                                                          : RowsForm::single;
    return {widest, widest, widest};
}

RowsForms rowsForms(std::string_view source, int length, const Element& element,
                    const Target& target) {
    struct Row {
        std::string_view target, source, element, spacing;
        const char* lengths;
    };
    static constexpr Row singly[] = {
#define KFM_ROWS_SINGLY(target, source, element, spacing, lengths) \
    {#target, #source, #element, #spacing, #lengths},
#include "rows/singly.def"
#undef KFM_ROWS_SINGLY
        {}};
    RowsForms forms = widestForms(element, target);
    const bool own = std::ranges::find(singly, target.name, &Row::target) != std::end(singly);
    const std::string_view name = own ? target.name : target.likeness;
    for (const auto& row : singly) {
        if (row.target != name || row.source != source || row.element != element.suffix) continue;
        std::istringstream lengths(row.lengths);
        const std::vector<int> all{std::istream_iterator<int>(lengths), {}};
        if (std::ranges::count(all, length) == 0) continue;
        if (row.spacing == "spaced") forms.spaced = RowsForm::single;
        else forms.far = RowsForm::single;
        if (row.spacing == "contiguous") forms.contiguous = RowsForm::single;
    }
    return forms;
}

ScheduleChoice rowsSchedule(std::string_view source, int length, const Element& element,
                            const Target& target) {
    static constexpr struct {
        std::string_view target, source;
        int length;
        std::string_view element, choice;
    } rows[] = {
#define KFM_SCHEDULE(target, source, length, element, choice) \
    {#target, #source, length, #element, #choice},
#include "rows/schedules.def"
#undef KFM_SCHEDULE
        {}};
    const auto matches = [&](const auto& row) {
        return row.source == source && row.length == length && row.element == element.suffix;
    };
    // The graph is the same on all targets, and so are the orders of it that spill little.
    const bool own = std::ranges::any_of(rows, [&](const auto& row) {
        return row.target == target.name && matches(row);
    });
    return recordedChoice(rows, own ? target : *findTarget("avx2-x86-64"), matches);
}

}   // namespace kfm::kernelgen
