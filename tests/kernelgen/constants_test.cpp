// Constants: exact relations hold exactly, and printing rounds once.
#include "kernelgen/constants.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

using kfm::kernelgen::Constant;

namespace {

TEST(Constants, EqualAnglesHaveEqualBits) {
    for (long n = 2; n <= 128; ++n)
        for (long k = 0; k < n; ++k) {
            EXPECT_EQ(Constant::cosTurn(k, n), Constant::cosTurn(n - k, n));
            EXPECT_EQ(Constant::sinTurn(k, n), -Constant::sinTurn(n - k, n));
            EXPECT_EQ(Constant::cosTurn(3 * k, 3 * n), Constant::cosTurn(k - 5 * n, n));
            EXPECT_EQ(Constant::sinTurn(k, n), Constant::cosTurn(4 * k - n, 4 * n));
        }
    EXPECT_EQ(Constant::cosTurn(1, 6), Constant::ratio(1, 2));
    EXPECT_TRUE(Constant::cosTurn(1, 4).isZero());
    EXPECT_TRUE(Constant::sinTurn(7, 14).isZero());
}

// The neighbours of the printed number are both farther away.
TEST(Constants, PrintedLiteralIsTheNearest) {
    for (long n = 3; n <= 64; ++n)
        for (long k = 1; k < n; ++k) {
            const Constant c = Constant::cosTurn(k, n);
            const double wide = std::strtod(c.asDouble().c_str(), nullptr);
            const float narrow = std::strtof(c.asFloat().c_str(), nullptr);
            const auto distance = [&](Constant::Wide value) {
                return value < c.value() ? c.value() - value : value - c.value();
            };
            for (const double side : {-2.0, 2.0}) {
                EXPECT_LE(distance(wide), distance(std::nextafter(wide, side)));
                EXPECT_LE(distance(narrow), distance(std::nextafterf(narrow, float(side))));
            }
        }
}

}   // namespace
