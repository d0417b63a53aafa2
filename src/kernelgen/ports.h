// How the values of a kernel come in and go out, as C++: all that differs between a function on
// arrays of its caller and a codelet between a reader and a writer.
#pragma once

#include <string>

#include "kernelgen/graph.h"

namespace kfm::kernelgen {

class Ports {
public:
    virtual ~Ports() = default;

    // Expressions. Two loads are the halves of a vector, which come one by one if they are `apart`.
    virtual std::string load(const Node& node) const = 0;
    virtual std::string load(const Node& low, const Node& high, bool apart) const = 0;
    // Statements.
    virtual std::string store(const Output& output, const std::string& value) const = 0;
    virtual std::string store(const Output& low, const Output& high,
                              const std::string& value) const = 0;

    // The function that fetches a row of constants where there are lanes.
    virtual std::string rowAccess() const = 0;
    // Whether what goes out is multiplied by a factor `scale`, which takes its signs along.
    virtual bool scaled() const = 0;
    // Whether an output may stand in the place of an input that it does not depend on.
    virtual bool overlapping() const = 0;
};

}   // namespace kfm::kernelgen
