#include "canvas/rounding.h"
#include "support/faults.h"

#include <limits>

namespace pixano::test {
namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();

TEST(CLng, RoundsHalvesToTheEvenNeighbour)
{
    EXPECT_EQ(CLng(0.5), 0);
    EXPECT_EQ(CLng(1.5), 2);
    EXPECT_EQ(CLng(2.5), 2);
    EXPECT_EQ(CLng(-0.5), 0);
    EXPECT_EQ(CLng(-1.5), -2);
    EXPECT_EQ(CLng(-2.5), -2);
}

TEST(CLng, RoundsOtherFractionsToTheNearest)
{
    EXPECT_EQ(CLng(0.49), 0);
    EXPECT_EQ(CLng(0.51), 1);
    EXPECT_EQ(CLng(2.500001), 3);
    EXPECT_EQ(CLng(-0.51), -1);
    EXPECT_EQ(CLng(16777215), 16777215);
}

TEST(CLng, ReachesBothEndsOfThirtyTwoBits)
{
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(-2147483648.5), std::numeric_limits<std::int32_t>::min());
}

TEST(CLng, OverflowsBeyondThirtyTwoBits)
{
    for (const double value :
         {2147483647.5, 2147483648.0, -2147483648.51, -2147483649.0, 1e20, -1e300, Infinite,
          -Infinite, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(FaultIn([value] { CLng(value); }), FaultKind::Overflow) << value;
}

TEST(Int, RoundsDown)
{
    EXPECT_EQ(Int(2.9), 2);
    EXPECT_EQ(Int(-0.1), -1);
    EXPECT_EQ(Int(-3), -3);
    EXPECT_EQ(Int(177 / 5.9), 29);
}

TEST(Quotient, IsExact)
{
    EXPECT_EQ(Quotient(99, 2), 49.5);
    EXPECT_EQ(Quotient(-1, 4), -0.25);
}

TEST(Quotient, FailsByZeroEvenOfZero)
{
    EXPECT_EQ(FaultIn([] { Quotient(1, 0); }), FaultKind::DivisionByZero);
    EXPECT_EQ(FaultIn([] { Quotient(0, 0); }), FaultKind::DivisionByZero);
    EXPECT_EQ(FaultIn([] { Quotient(1, -0.0); }), FaultKind::DivisionByZero);
}

}  // namespace
}  // namespace pixano::test
