#include "transform/inverse_choice.h"

#include "failure.h"
#include "transform/fixed_transform.h"
#include "transform/planned_transform.h"

namespace kfm::tool {
namespace {

std::string inverseFamily(const std::string& name) {
    if (!name.starts_with("DFT")) return name;   // each is its own inverse
    if (!name.starts_with("DFTFwd"))
        throw UsageError("--inverse: name the family that it undoes, which is not " + name);
    const registry::Family* family = registry::findFamily(name);
    const auto layout = family ? spectrumLayout(*family) : std::nullopt;
    return layout ? familyName("DFTInv", layout) : "DFTInv_" + name.substr(name.find('_') + 1);
}

// So that both together divide by N.
int otherFlag(const std::string& name, int flag) {
    if (flag == kfmScaleBySqrtN) return flag;
    const bool oneWay = name.starts_with("DFT");
    const bool divided = flag == kfmScaleFwdByN || (flag == kfmScaleInvByN && !oneWay);
    return divided ? kfmScaleNone : kfmScaleInvByN;
}

}   // namespace

InverseChoice inverseOf(const Choice& forward) {
    const std::string name = familyName(forward.family, forward.layout);
    InverseChoice inverse{forward, 1};
    inverse.choice.family = inverseFamily(name);
    inverse.choice.layout.reset();
    if (name == plannedFamily) inverse.factor = 2.0 / forward.length;
    else inverse.choice.flag = otherFlag(name, forward.flag);
    return inverse;
}

}   // namespace kfm::tool
