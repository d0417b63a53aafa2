// The factor trees of the real DFT, the same in both element types and directions. A number is the
// direct module of that length: symmetric pairs, which all primes are computed by. pfa needs no
// twiddle factors, ct has them, evenOdd is for powers of two; rader occurs inside composite lengths
// only.
#include "dft/real/factors.h"

#include <bit>
#include <map>
#include <stdexcept>

namespace kfm::dft::real {

using namespace kernelgen;

RealRow row(int n) {
    static const Plan five = factored5(), fifteen = pfa(3, five);
    static const Plan thirteen = rader(pfa(4, 3)), seventeen = rader(16);
    static const Plan nineteen = rader(pfa(2, ct(3, 3)), 3);
    static const Plan twentyThree = rader(pfa(2, 11)), twentyNine = rader(pfa(4, 7));
    static const Plan thirtyOne = rader(pfa(2, fifteen));
    static const std::map<int, Plan> composites = {
        {6, pfa(3, 2)},
        {9, ct(3, 3)},
        {10, pfa(5, 2)},
        {12, pfa(3, 4)},
        {14, pfa(7, 2)},
        {15, pfa(3, 5)},
        {16, evenOdd(16)},
        {18, pfa(ct(3, 3), 2)},
        {20, pfa(five, 4)},
        {21, pfa(3, 7)},
        {22, pfa(11, 2)},
        {24, pfa(3, evenOdd(8))},
        {25, ct(five, five)},
        {26, pfa(thirteen, 2)},
        {27, ct(3, ct(3, 3))},
        {28, pfa(7, 4)},
        {30, pfa(fifteen, 2)},
        {32, evenOdd(32)},
        {33, pfa(3, 11)},
        {34, pfa(seventeen, 2)},
        {35, pfa(five, 7)},
        {36, pfa(ct(3, 3), 4)},
        {38, pfa(nineteen, 2)},
        {39, pfa(thirteen, 3)},
        {40, pfa(five, evenOdd(8))},
        {42, pfa(pfa(3, 7), 2)},
        {44, pfa(4, 11)},
        {45, pfa(ct(3, 3), five)},
        {46, pfa(twentyThree, 2)},
        {48, pfa(3, evenOdd(16))},
        {49, ct(7, 7)},
        {50, pfa(ct(five, five), 2)},
        {51, pfa(seventeen, 3)},
        {52, pfa(thirteen, 4)},
        {54, pfa(ct(3, ct(3, 3)), 2)},
        {55, pfa(five, 11)},
        {56, pfa(8, 7)},
        {57, pfa(nineteen, 3)},
        {58, pfa(twentyNine, 2)},
        {60, pfa(fifteen, 4)},
        {62, pfa(thirtyOne, 2)},
        {63, pfa(ct(3, 3), 7)},
        {64, evenOdd(64)},
    };
    const auto composite = composites.find(n);
    const Plan plan = composite == composites.end() ? Plan(n) : composite->second;
    if (plan.n != n) throw std::invalid_argument("no factor tree of length " + std::to_string(n));
    return n == 8 ? RealRow(plan, 1) : RealRow(plan);   // 8 is fixed operation by operation
}

// Powers of two take the products of a rotation one by one before they are added; so do 6 and 9.
// The formulas of 4, 8 and 10 are kept to the signs of zeros.
Arithmetic forwardArithmetic(int n, bool singlePrecision) {
    const bool apart = std::has_single_bit(unsigned(n)) || n == 6 || n == 9;
    Arithmetic arithmetic{.mixed = singlePrecision,
                          .factoring = !apart,
                          .exactZeros = n == 4 || n == 8 || n == 10};
    if (!singlePrecision) return arithmetic;
    if (std::has_single_bit(unsigned(n))) arithmetic.rounding = unsigned(Border::rotation);
    if (n == 6 || n == 10) arithmetic.rounding = unsigned(Border::module);
    if (n == 9) arithmetic.rounding = Border::module | Border::rotation;
    return arithmetic;
}

Arithmetic inverseArithmetic(int n, bool singlePrecision) {
    Arithmetic arithmetic{.mixed = singlePrecision};
    if (!singlePrecision) return arithmetic;
    if (std::has_single_bit(unsigned(n))) arithmetic.rounding = unsigned(Border::rotation);
    if (n == 3) arithmetic.rounding = unsigned(Border::module);
    return arithmetic;
}

}   // namespace kfm::dft::real
