// The factor trees of the Hartley transform, the same in both element types. A number is the direct
// module of that length (a power of two from 8 up: radix two); pfa needs no twiddle factors, ct has
// them, rader turns the prime one above its argument's length into that convolution. Where a
// primitive root and a shift are named they are what `kernelgen errors` found to round best.
#include "hartley/factors.h"

#include <bit>
#include <map>
#include <stdexcept>

namespace kfm::hartley {

using namespace kernelgen;

RealRow row(int n) {
    static const Plan five = factored5(), nine = ct(3, 3), fifteen = pfa(3, five);
    static const Plan thirteen = rader(pfa(4, 3)), seventeen = rader(16);
    static const Plan nineteen = rader(pfa(2, nine), 14, 5), twentyThree = rader(pfa(2, 11));
    static const Plan twentyNine = rader(pfa(4, 7)), thirtyOne = rader(pfa(2, fifteen));
    static const std::map<int, Plan> table = {
        {6, pfa(3, 2)},
        {9, nine},
        {10, pfa(five, 2)},
        {12, pfa(4, 3)},
        {13, thirteen},
        {14, pfa(2, 7)},
        {15, fifteen},
        {17, seventeen},
        {18, pfa(nine, 2)},
        {19, nineteen},
        {20, pfa(4, five)},
        {21, pfa(3, 7)},
        {22, pfa(2, 11)},
        {24, pfa(8, 3)},
        {25, ct(five, five)},
        {26, pfa(thirteen, 2)},
        {27, ct(3, nine)},
        {28, pfa(7, 4)},
        {29, twentyNine},
        {30, pfa(fifteen, 2)},
        {31, thirtyOne},
        {33, pfa(3, 11)},
        {34, pfa(2, seventeen)},
        {35, pfa(five, 7)},
        {36, pfa(4, nine)},
        {37, rader(pfa(4, nine), 17)},
        {38, pfa(nineteen, 2)},
        {39, pfa(thirteen, 3)},
        {40, pfa(8, five)},
        {41, rader(pfa(8, five), 29)},
        {42, pfa(pfa(3, 7), 2)},
        {43, rader(pfa(2, pfa(3, 7)), 19)},
        {44, pfa(4, 11)},
        {45, pfa(nine, five)},
        {46, pfa(2, twentyThree)},
        {48, pfa(3, evenOdd(16))},
        {49, ct(7, 7)},
        {50, pfa(ct(five, five), 2)},
        {51, pfa(seventeen, 3)},
        {52, pfa(thirteen, 4)},
        {53, rader(pfa(4, rader(pfa(4, 3), 2, 4)), 20, 6)},   // impulses 3.86
        {54, pfa(ct(3, nine), 2)},
        {55, pfa(five, 11)},
        {56, pfa(8, 7)},
        {57, pfa(nineteen, 3)},
        {58, pfa(twentyNine, 2)},
        {59, rader(pfa(2, rader(pfa(4, 7), 11)), 40, 10)},   // impulses 4.48
        {60, pfa(4, pfa(five, 3))},
        {61, rader(pfa(4, fifteen), 17)},
        {62, pfa(thirtyOne, 2)},
        {63, pfa(nine, 7)},
    };
    const auto found = table.find(n);
    const Plan plan = found == table.end() ? Plan(n) : found->second;
    if (plan.n != n) throw std::invalid_argument("no factor tree of length " + std::to_string(n));
    return RealRow(plan);
}

Arithmetic arithmetic(int n, bool singlePrecision) {
    Arithmetic result{.mixed = singlePrecision};
    if (!singlePrecision) return result;
    result.rounding = unsigned(Border::result);
    if (std::has_single_bit(unsigned(n))) result.rounding = Border::rotation | Border::result;
    return result;
}

}   // namespace kfm::hartley
