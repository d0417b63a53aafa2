// The Walsh-Hadamard transform for the generator, which writes one source per order and element
// type; the transform itself is the template in wht/kernel.h.
#pragma once

#include "kernelgen/generator.h"

namespace kfm::wht {

kernelgen::KernelFamily kernelFamily();

}   // namespace kfm::wht
