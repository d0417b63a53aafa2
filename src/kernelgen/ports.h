// How the values of a kernel come in and go out, as C++: all that differs between a function on
// arrays of its caller and a codelet between a reader and a writer.
#pragma once

#include <string>
#include <vector>

namespace kfm::kernelgen {

class Ports {
public:
    virtual ~Ports() = default;

    // An expression for a vector of elements, whose halves come one by one if they are `apart`.
    virtual std::string load(const std::vector<int>& elements, bool apart) const = 0;
    // A statement.
    virtual std::string store(const std::vector<int>& elements, const std::string& value) const = 0;

    // The function that fetches a row of constants where there are lanes.
    virtual std::string rowAccess() const = 0;
    // Whether what goes out is multiplied by a factor `scale`, which takes its signs along.
    virtual bool scaled() const = 0;
    // Whether an output may stand in the place of an input that it does not depend on.
    virtual bool overlapping() const = 0;
};

}   // namespace kfm::kernelgen
