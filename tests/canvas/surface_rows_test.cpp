// A picture row by row, and as it lies in memory.
#include "canvas/surface.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace pixano::test {
namespace {

constexpr int OutsideRows[] = {-1, 2, std::numeric_limits<int>::max(),
                               std::numeric_limits<int>::min()};

TEST(Surface, GivesARowAndTheOutsideBehindIt)
{
    Surface surface(3, 2, 7);
    surface.PSet(0, 1, 5);
    std::vector<Colour> colours(2);
    surface.ReadRow(1, colours);
    EXPECT_EQ(colours, (std::vector<Colour>{5, 7}));
    colours.resize(4);
    surface.ReadRow(1, colours);
    EXPECT_EQ(colours, (std::vector<Colour>{5, 7, 7, -1}));
    for (const int outside : OutsideRows) {
        colours.assign(2, 0);
        surface.ReadRow(outside, colours);
        EXPECT_EQ(colours, (std::vector<Colour>{-1, -1}));
    }
}

TEST(Surface, PaintsARowAsFarAsItReaches)
{
    Surface surface(3, 2, 7);
    surface.PaintRow(1, std::vector<Colour>{1, -1});
    surface.PaintRow(0, std::vector<Colour>{1, 2, 0x01000003, 4});
    for (const int outside : OutsideRows)
        surface.PaintRow(outside, std::vector<Colour>{9});
    std::vector<Colour> colours(3);
    surface.ReadRow(0, colours);
    EXPECT_EQ(colours, (std::vector<Colour>{1, 2, 3}));
    surface.ReadRow(1, colours);
    EXPECT_EQ(colours, (std::vector<Colour>{1, White, 7}));
}

TEST(Surface, LiesInMemoryRowByRowWithAFullHighByte)
{
    Surface surface(2, 2, 0);
    surface.PSet(1, 1, 0x123456);
    EXPECT_EQ(surface.Row(1)[1], 0xFF123456U);
    EXPECT_EQ(surface.Pixels()[3], 0xFF123456U);
    EXPECT_EQ(surface.Pixels()[0], 0xFF000000U);
    surface.Row(0)[1] = 0xFF00FF00U;
    EXPECT_EQ(surface.Point(1, 0), 0x00FF00);
}

}  // namespace
}  // namespace pixano::test
