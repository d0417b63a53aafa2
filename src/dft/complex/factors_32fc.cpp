#include "dft/complex/factors.h"
namespace kfm::dft::complex {
SinglePrecisionRow singlePrecisionRow(int n) { return {doublePrecisionPlan(n), {LaneMapping::Kind::element}}; }
}
