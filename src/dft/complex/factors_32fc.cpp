// The factor trees of the single-precision kernels and how they fill the lanes. A number is the
// direct module of that length (a power of two from 8 up: split radix); pfa needs no twiddle
// factors, ct has them, rader turns the prime one above its argument's length into that convolution
// (a named primitive root and shift are what `kernelgen errors` found to round best; the mean error
// that it gave stands beside the row). In the outermost step the first factor runs along the rows,
// the second across them.
#include <map>
#include <stdexcept>

#include "dft/complex/factors.h"

namespace kfm::dft::complex {

using namespace kernelgen;

SinglePrecisionRow singlePrecisionRow(int n) {
    using enum LaneMapping;
    static const Plan nine = ct(3, 3), fifteen = ct(3, 5), twentySeven = ct(3, nine);
    static const Plan thirteen = rader(pfa(4, 3)), seventeen = rader(ct(4, 4), 3, 1);
    static const Plan twentyNine = rader(pfa(4, 7)), thirtyOne = rader(pfa(2, pfa(3, 5)));
    // 24, 40, 48 and 56 as 8 x 3, 8 x 5, 16 x 3 and 8 x 7 leave lanes empty: 7 to 25 % more
    // operations, at their best schedules 1.09 to 1.48 times the time of these rows.
    static const std::map<int, SinglePrecisionRow> table = {
        {2, {2, element}},
        {3, {3, element}},
        {4, {4, element}},
        {5, {5, element}},
        {6, {pfa(2, 3), rows}},
        {7, {rader(pfa(2, 3)), raderMirror}},
        {8, {ct(2, 4), rowPairs}},
        {9, {ct(3, 3), rows}},
        {10, {pfa(2, 5), symmetric}},
        {11, {rader(pfa(2, 5), 8, 3), raderMirror}},   // 1.38
        {12, {pfa(3, 4), rowPairs}},
        {13, {thirteen, raderPair}},
        {14, {pfa(2, 7), symmetric}},
        {15, {pfa(5, 3), rows}},
        {16, {ct(4, 4), rowPairs}},
        {17, {seventeen, raderRows}},   // 1.65
        {18, {pfa(2, nine), joinedRows}},
        {19, {rader(pfa(2, nine), 14, 7), raderHalf}},   // 1.60
        {20, {pfa(5, 4), rows}},
        {21, {pfa(7, 3), rows}},
        {22, {pfa(2, 11), symmetric}},
        {23, {rader(pfa(2, 11), 19, 8), raderMirror}},   // 1.64
        {24, {ct(pfa(2, 3), 4), rowPairs}},
        {25, {ct(5, 5), rows}},
        {26, {pfa(2, thirteen), raderPair}},
        {27, {ct(nine, 3), rows}},
        {28, {pfa(7, 4), rows}},
        {29, {twentyNine, raderPair}},
        {30, {pfa(pfa(2, 5), 3), rows}},
        {31, {rader(pfa(3, pfa(2, 5))), raderRows}},
        {32, {ct(8, 4), rows}},
        {33, {pfa(3, 11), rows}},
        {34, {pfa(2, seventeen), raderRows}},   // 1.69
        {35, {pfa(5, 7), rows}},
        {36, {pfa(4, nine), rows}},
        {37, {rader(pfa(4, nine), 13), raderPair}},
        {38, {pfa(2, rader(pfa(2, nine), 10, 5)), raderTwo}},   // 1.69
        {39, {pfa(thirteen, 3), rows}},
        {40, {ct(pfa(2, 5), 4), rowPairs}},
        {41, {rader(ct(pfa(2, 5), 4), 12, 19), raderRows}},   // 2.00
        {42, {pfa(pfa(2, 3), 7), rows}},
        {43, {rader(pfa(7, pfa(2, 3)), 19, 15), raderRows}},   // 1.91
        {44, {pfa(11, 4), rows}},
        {45, {ct(3, fifteen), rows}},
        {46, {pfa(2, rader(pfa(2, 11), 21, 4)), raderTwo}},   // 1.62
        {47, {paddedRader(47, pfa(8, 3)), raderPadded}},
        {48, {ct(pfa(4, 3), 4), rows}},
        {49, {ct(7, 7), rows}},
        {50, {pfa(ct(5, 5), 2), joinedRows}},
        {51, {pfa(3, rader(16)), rows}},
        {52, {pfa(thirteen, 4), rows}},
        {53, {rader(pfa(4, thirteen), 12), raderPair}},
        {54, {pfa(twentySeven, 2), joinedRows}},
        {55, {pfa(5, 11), rows}},
        {56, {ct(pfa(2, 7), 4), rowPairs}},
        {57, {pfa(3, rader(pfa(2, nine), 2, 4)), rows}},   // 1.73
        {58, {pfa(2, twentyNine), raderPair}},
        {59, {paddedRader(59, 32), raderPadded}},
        {60, {pfa(fifteen, 4), rows}},
        {61, {rader(pfa(4, fifteen), 17), raderPair}},
        {62, {pfa(2, thirtyOne), raderTwo}},
        {63, {pfa(nine, 7), rows}},
        {64, {ct(8, 8), rows}},
    };
    const auto found = table.find(n);
    if (found == table.end() || found->second.plan.n != n)
        throw std::invalid_argument("no single-precision factor tree of length " +
                                    std::to_string(n));
    return found->second;
}

}   // namespace kfm::dft::complex
