#include "controls/item_number.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

using kite::itemNumber;

namespace {

struct NumberRow {
    double value;
    const char* text;
};

void expectAll(std::initializer_list<NumberRow> rows)
{
    for (const NumberRow& row : rows) EXPECT_EQ(itemNumber(row.value), row.text) << row.text;
}

}  // namespace

TEST(ItemNumber, HasUpToFourteenDigits)
{
    expectAll({{0.0, "0"},
               {-0.0, "-0"},
               {0.5, "0.5"},
               {-7.0, "-7"},
               {0.1, "0.1"},
               {123456789.125, "123456789.125"},
               {1.0 / 3.0, "0.33333333333333"},
               {2.0 / 3.0, "0.66666666666667"},
               {99999999999999.0, "99999999999999"},
               {123456789012345.0, "1.2345678901234E+14"},
               {1e14, "1E+14"},
               {1e100, "1E+100"}});
}

TEST(ItemNumber, WritesSmallNumbersOutToEightDecimals)
{
    expectAll({{0.00005, "0.00005"},
               {-0.00005, "-0.00005"},
               {0.00001234, "0.00001234"},
               {0.000012345678, "0.00001235"},
               {0.00002, "0.00002"},
               {1e-5, "0.00001"},
               {-1e-7, "-0.0000001"},
               {1.4e-8, "0.00000001"}});
}

TEST(ItemNumber, BeginsToWriteOutAtTenToTheMinusEight)
{
    expectAll({{1e-8, "0.00000001"}, {-1e-8, "-0.00000001"}, {9.5e-9, "9.5E-09"}, {1e-9, "1E-09"}});
    const double below = std::nextafter(1e-8, 0.0);
    EXPECT_EQ(itemNumber(below), "1E-08");
    EXPECT_EQ(itemNumber(-below), "-1E-08");
}

TEST(ItemNumber, EndsToWriteOutBelowTenToTheMinusFour)
{
    expectAll({{1e-4, "0.0001"},
               {-1e-4, "-0.0001"},
               {0.000123456789, "0.000123456789"},
               {0.00009999, "0.00009999"},
               {-0.00009999, "-0.00009999"}});
    // Rounded to eight decimals, and its noughts are gone.
    const double below = std::nextafter(1e-4, 0.0);
    EXPECT_EQ(itemNumber(below), "0.0001");
    EXPECT_EQ(itemNumber(-below), "-0.0001");
    EXPECT_EQ(itemNumber(0.000099999999), "0.0001");
}

TEST(ItemNumber, OfTheLimitsOfNumbers)
{
    expectAll({{DBL_MAX, "1.7976931348623E+308"},
               {-DBL_MAX, "-1.7976931348623E+308"},
               {DBL_MIN, "2.2250738585072E-308"},
               {std::numeric_limits<double>::infinity(), "INF"},
               {-std::numeric_limits<double>::infinity(), "-INF"},
               {std::numeric_limits<double>::quiet_NaN(), "NAN"}});
}
