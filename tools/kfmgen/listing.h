// What the library is and what it offers, as text.
#pragma once

#include <ostream>

namespace kfm::tool {

void printInfo(std::ostream& out);
void printFamilies(std::ostream& out);
void printFunctionNames(std::ostream& out);

}   // namespace kfm::tool
