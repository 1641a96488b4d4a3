// Pictures made smaller: sizes, and means worked out by hand.
#include "canvas/shrink.h"

#include "support/effect_run.h"
#include "support/letters.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

Surface Grey(const std::vector<std::vector<int>>& rows)
{
    Surface surface(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 0; y < surface.Height(); ++y)
        for (int x = 0; x < surface.Width(); ++x)
            surface.PSet(x, y,
                         0x010101 * rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    return surface;
}

TEST(ShrunkWithin, LeavesAPictureThatFitsAsItIs)
{
    const Surface picture = Drawn({"abc", "def"});
    for (const int side : {3, 4, 32767})
        EXPECT_EQ(ShrunkWithin(picture, side), picture) << side;
}

TEST(ShrunkWithin, KeepsTheProportionsAndNoSideLonger)
{
    struct Case {
        int width, height, side, newWidth, newHeight;
    };
    for (const auto& [width, height, side, newWidth, newHeight] :
         {Case{640, 480, 240, 240, 180}, Case{480, 640, 240, 180, 240}, Case{100, 100, 7, 7, 7},
          // 33 / 2 = 16.5 goes up, 31 / 3 = 10.33 down; nothing vanishes.
          Case{200, 33, 100, 100, 17}, Case{31, 300, 100, 10, 100}, Case{5, 5000, 50, 1, 50},
          Case{9, 9, 1, 1, 1}}) {
        const Surface small = ShrunkWithin(Surface(width, height), side);
        EXPECT_EQ(small.Width(), newWidth) << width << " x " << height;
        EXPECT_EQ(small.Height(), newHeight) << width << " x " << height;
    }
}

TEST(ShrunkWithin, TakesTheMeanOfWholePixels)
{
    // (10 + 20 + 30 + 40) / 4, and (0 + 1 + 0 + 1) / 4 = 0.5, which goes up.
    EXPECT_EQ(ShrunkWithin(Grey({{10, 20, 0, 1}, {30, 40, 0, 1}}), 2), Grey({{25, 1}}));
}

TEST(ShrunkWithin, WeighsPixelsByTheAreaThatIsCovered)
{
    // Each of the two covers one pixel and a half: (2 * 90 + 30) / 3 and (30 + 2 * 0) / 3.
    EXPECT_EQ(ShrunkWithin(Grey({{90, 30, 0}}), 2), Grey({{70, 10}}));
    // Both ways: the corner four ninths, the sides two, the middle one.
    // (4*9 + 2*18 + 2*27 + 1*36) / 9 = 18; (4*0 + 2*18 + 2*45 + 36) / 9 = 18;
    // (4*0 + 2*27 + 2*0 + 36) / 9 = 10; (4*9 + 2*45 + 2*0 + 36) / 9 = 18.
    EXPECT_EQ(ShrunkWithin(Grey({{9, 18, 0}, {27, 36, 45}, {0, 0, 9}}), 2),
              Grey({{18, 18}, {10, 18}}));
}

TEST(ShrunkWithin, KeepsTheChannelsApart)
{
    // Red 255 and 0, green 0 and 255, blue 1 and 2: 127.5, 127.5 and 1.5, all up.
    Surface picture(2, 1);
    picture.PSet(0, 0, 0x0100FF);
    picture.PSet(1, 0, 0x02FF00);
    EXPECT_EQ(ShrunkWithin(picture, 1).Point(0, 0), 0x028080);
}

TEST(ShrunkWithin, KeepsOneColourAtEverySize)
{
    for (const int side : {1, 2, 3, 7, 50, 99}) {
        const Surface small = ShrunkWithin(Surface(100, 61, 0x123456), side);
        EXPECT_EQ(small, Surface(small.Width(), small.Height(), 0x123456)) << side;
    }
}

TEST(ShrunkPart, IsThatPartOfTheWhole)
{
    const Surface picture = Varied(50, 40);
    const Surface whole = ShrunkPart(picture, 20, 13, {0, 0, 20, 13});
    EXPECT_EQ(whole.Width(), 20);
    EXPECT_EQ(whole.Height(), 13);
    for (const auto& [left, top, width, height] :
         {Part{0, 0, 1, 1}, Part{7, 5, 9, 4}, Part{19, 12, 1, 1}, Part{3, 0, 0, 0}}) {
        const Surface part = ShrunkPart(picture, 20, 13, {left, top, width, height});
        ASSERT_EQ(part.Width(), width);
        ASSERT_EQ(part.Height(), height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                EXPECT_EQ(part.Point(x, y), whole.Point(left + x, top + y)) << x << ", " << y;
    }
}

TEST(ShrunkPart, CoversTheSameAreaAsInTheWhole)
{
    EXPECT_EQ(ShrunkPart(Grey({{9, 18, 0}, {27, 36, 45}, {0, 0, 9}}), 2, 2, {0, 1, 2, 1}),
              Grey({{10, 18}}));
    EXPECT_EQ(ShrunkPart(Grey({{9, 18, 0}, {27, 36, 45}, {0, 0, 9}}), 2, 2, {1, 0, 1, 2}),
              Grey({{18}, {18}}));
}

}  // namespace
}  // namespace pixano::test
