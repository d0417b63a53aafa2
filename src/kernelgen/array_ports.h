// Loads and stores of elements of the arrays `src` and `dst`, by their numbers.
#pragma once

#include <initializer_list>

#include "kernelgen/ports.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

// Which side of a kernel on real data is a packed spectrum.
enum class Packed { neither, source, destination };

class ArrayPorts : public Ports {
public:
    ArrayPorts(int lanes, const registry::Element& element, Packed packed = Packed::neither)
        : lanes_(lanes), packed_(packed), single_(!element.doublePrecision),
          complex_(element.complex) {}

    std::string load(const Node& node) const override;
    std::string load(const Node& low, const Node& high, bool apart) const override;
    std::string store(const Output& output, const std::string& value) const override;
    std::string store(const Output& low, const Output& high,
                      const std::string& value) const override;
    std::string rowAccess() const override { return "constant"; }
    bool scaled() const override { return true; }
    bool overlapping() const override { return true; }

private:
    bool wholeElements() const { return complex_ && !single_; }   // in vectors of 16 bytes
    bool wholeVector(int first, int second) const;
    std::string address(Packed side, int element) const;   // after "src + " or "dst + "
    std::string addresses(Packed side, std::initializer_list<int> elements) const;
    template <class Access>
    std::string addresses(Packed side, const Access& low, const Access& high) const;

    int lanes_;
    Packed packed_;
    bool single_, complex_;
};

}   // namespace kfm::kernelgen
