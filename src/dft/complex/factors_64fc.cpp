// The factor trees of the double-precision kernels. A number is the direct module of that length
// (a power of two from 8 up: split radix); pfa needs no twiddle factors, ct has them, rader turns
// the prime one above its argument's length into that convolution. Where a primitive root and a
// shift are named, or sums in pairs, they are what `kernelgen errors` found to round best; the mean
// error that it gave stands beside the row.
#include <map>
#include <stdexcept>

#include "dft/complex/factors.h"

namespace kfm::dft::complex {

using namespace kernelgen;

Plan doublePrecisionPlan(int n) {
    static const Plan nine = ct(3, 3), thirteen = rader(pfa(4, 3)), seventeen = rader(16);
    static const Plan twentyThree = rader(pfa(2, 11));
    static const Plan twentyFive = ct(5, 5), twentySeven = ct(3, nine);
    static const Plan twentyNine = rader(pfa(4, 7));
    static const Plan thirtyOne = rader(pfa(2, pfa(3, 5)));
    static const std::map<int, Plan> table = {
        {2, 2},
        {3, 3},
        {4, 4},
        {5, 5},
        {6, pfa(2, 3)},
        {7, 7},
        {8, 8},
        {9, nine},
        {10, pfa(2, factored5())},
        {11, 11},
        {12, pfa(4, 3)},
        {13, thirteen},
        {14, pfa(2, 7)},
        {15, pfa(3, 5)},
        {16, 16},
        {17, seventeen},
        {18, pfa(2, nine)},
        {19, rader(pfa(2, nine), 14, 5)},   // 1.71
        {20, pfa(4, 5)},
        {21, pfa(3, 7)},
        {22, pfa(2, 11)},
        {23, rader(pfa(2, paired(11)), 11, 8)},   // 1.65
        {24, pfa(8, 3)},
        {25, twentyFive},
        {26, pfa(2, thirteen)},
        {27, twentySeven},
        {28, pfa(4, 7)},
        {29, twentyNine},
        {30, pfa(2, pfa(3, 5))},
        {31, thirtyOne},
        {32, 32},
        {33, pfa(3, 11)},
        {34, pfa(2, seventeen)},
        {35, pfa(factored5(), rader(pfa(2, 3)))},
        {36, pfa(4, nine)},
        {37, rader(pfa(4, nine), 13, 17)},         // 1.82
        {38, pfa(2, rader(pfa(2, nine), 2, 8))},   // 1.70
        {39, pfa(3, thirteen)},
        {40, pfa(8, 5)},
        {41, rader(ct(8, 5), 29, 9)},   // 2.03
        {42, pfa(2, pfa(3, 7))},
        {43, rader(pfa(2, ct(3, 7)), 29)},   // 1.92
        {44, pfa(4, 11)},
        {45, pfa(nine, 5)},
        {46, pfa(2, twentyThree)},
        {47, rader(pfa(2, rader(pfa(2, 11), 19, 1)), 10, 19)},   // 2.46, impulses 4.33
        {48, pfa(16, 3)},
        {49, ct(7, 7)},
        {50, pfa(2, ct(factored5(), factored5()))},
        {51, pfa(3, seventeen)},
        {52, pfa(4, thirteen)},
        {53, rader(pfa(4, 13))},
        {54, pfa(2, twentySeven)},
        {55, pfa(5, 11)},
        {56, pfa(8, 7)},
        {57, pfa(3, rader(pfa(2, nine), 10, 1))},   // 1.81
        {58, pfa(2, twentyNine)},
        {59, rader(pfa(2, rader(pfa(4, 7), 11)))},
        {60, pfa(4, pfa(3, factored5()))},
        {61, rader(pfa(4, ct(3, 5)), 17)},
        {62, pfa(2, thirtyOne)},
        {63, pfa(7, nine)},
        {64, 64},
    };
    const auto row = table.find(n);
    if (row == table.end() || row->second.n != n)
        throw std::invalid_argument("no double-precision factor tree of length " +
                                    std::to_string(n));
    return row->second;
}

}   // namespace kfm::dft::complex
