// Band powers as a page of text for a terminal of 90 columns.
#pragma once

#include <ostream>

#include "band_power.h"

namespace kfm::tool {

void printPage(const BandPower& power, std::ostream& out);

}   // namespace kfm::tool
