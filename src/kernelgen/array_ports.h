// Loads and stores of elements of the arrays `src` and `dst`, by their numbers.
#pragma once

#include "kernelgen/ports.h"
#include "registry/registry.h"

namespace kfm::kernelgen {

// Which side of a kernel on real data is a packed spectrum.
enum class Packed { neither, source, destination };

class ArrayPorts : public Ports {
public:
    explicit ArrayPorts(const registry::Element& element, Packed packed = Packed::neither)
        : packed_(packed), single_(!element.doublePrecision), complex_(element.complex) {}

    std::string load(const std::vector<int>& elements, bool apart) const override;
    std::string store(const std::vector<int>& elements, const std::string& value) const override;
    std::string rowAccess() const override { return "constant"; }
    bool scaled() const override { return true; }
    bool overlapping() const override { return true; }

private:
    std::string address(Packed side, int element) const;   // after "src + " or "dst + "
    std::string addresses(Packed side, const std::vector<int>& elements) const;

    Packed packed_;
    bool single_, complex_;
};

}   // namespace kfm::kernelgen
