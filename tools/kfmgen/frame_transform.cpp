#include "frame_transform.h"

#include <cmath>
#include <sstream>

#include "fixed_transform.h"
#include "planned_transform.h"

namespace kfm::tool {

std::unique_ptr<const FrameTransform> makeTransform(const Choice& choice) {
    const std::string family = familyName(choice.family, choice.layout);
    if (family == plannedFamily)
        return plannedTransform(choice.length, choice.doublePrecision, choice.flag);
    return std::make_unique<FixedTransform>(family, choice.length, choice.doublePrecision,
                                            choice.flag);
}

template <class Real>
Real converted(double value) {
    const Real result = static_cast<Real>(value);
    if (std::isfinite(result)) return result;
    std::ostringstream message;
    message << "sample " << value << " has no finite value in this precision";
    throw InputError(message.str());
}

template float converted<float>(double);
template double converted<double>(double);

}   // namespace kfm::tool
