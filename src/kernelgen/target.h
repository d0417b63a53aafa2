// What a kernel is generated for: the vector width and the register count are parameters of lane
// mapping and scheduling, so a wider instruction set is a new row here.
#pragma once

#include <span>
#include <string_view>

namespace kfm::kernelgen {

struct Target {
    std::string_view name;
    int vectorBytes;
    int vectorRegisters;
    bool movesAnywhere;          // vectors, as fast as from and to multiples of 16
    std::string_view likeness;   // whose schedules serve until its own are measured
};

std::span<const Target> targets();
const Target* findTarget(std::string_view name);

}   // namespace kfm::kernelgen
