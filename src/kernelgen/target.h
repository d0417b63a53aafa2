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
    std::string_view likeness;   // whose schedules serve until its own are measured

    // Processors with longer vectors than 16 bytes move them from and to any address at full speed.
    bool splitsByAlignment() const { return vectorBytes == 16; }
};

std::span<const Target> targets();
const Target* findTarget(std::string_view name);

}   // namespace kfm::kernelgen
