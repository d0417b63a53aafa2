#include "transform/frame_transform.h"

#include "transform/fixed_transform.h"
#include "transform/planned_transform.h"

namespace kfm::tool {

std::unique_ptr<FrameTransform> makeTransform(const Choice& choice) {
    const std::string family = familyName(choice.family, choice.layout);
    return family == plannedFamily
               ? plannedTransform(choice.length, choice.doublePrecision, choice.flag)
               : fixedTransform(family, choice.length, choice.doublePrecision, choice.flag);
}

}   // namespace kfm::tool
