// A picture pixel by pixel: where there is one, and which colour it takes.
#include "canvas/surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace pixano::test {
namespace {

constexpr float Huge = std::numeric_limits<float>::max();
constexpr float InfinitePlace = std::numeric_limits<float>::infinity();
constexpr float NoPlace = std::numeric_limits<float>::quiet_NaN();
constexpr int Largest = std::numeric_limits<int>::max();
constexpr int Smallest = std::numeric_limits<int>::min();

/// Sixty by sixty; each pixel's colour is its column + 1000 times its row.
Surface Numbered()
{
    Surface surface(60, 60);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 60; ++x)
            surface.PSet(x, y, x + 1000 * y);
    return surface;
}

TEST(Surface, GivesThePixelAtAColumnAndARow)
{
    const Surface surface = Numbered();
    EXPECT_EQ(surface.Point(0, 0), 0);
    EXPECT_EQ(surface.Point(59, 0), 59);
    EXPECT_EQ(surface.Point(0, 59), 59000);
    EXPECT_EQ(surface.Point(17, 42), 42017);
}

TEST(Surface, GivesMinusOneOutside)
{
    const Surface surface = Numbered();
    for (const int outside : {-1, 60, 61, -32768, Largest, Smallest}) {
        EXPECT_EQ(surface.Point(outside, 5), -1);
        EXPECT_EQ(surface.Point(5, outside), -1);
    }
    EXPECT_EQ(surface.Point(-1, 60), -1);
}

TEST(Surface, TakesTheNearestPixelAndOfAHalfTheLower)
{
    const Surface surface = Numbered();
    EXPECT_EQ(surface.Point(49.5F, 0.0F), 49);
    EXPECT_EQ(surface.Point(49.51F, 0.0F), 50);
    EXPECT_EQ(surface.Point(50.5F, 0.0F), 50);
    EXPECT_EQ(surface.Point(0.5F, 0.0F), 0);
    EXPECT_EQ(surface.Point(0.51F, 0.0F), 1);
    EXPECT_EQ(surface.Point(0.0F, 49.5F), 49000);
    EXPECT_EQ(surface.Point(0.0F, 49.51F), 50000);
    EXPECT_EQ(surface.Point(3.0F, 4.0F), 4003);
    EXPECT_EQ(surface.Point(1e-30F, -1e-30F), 0);
}

TEST(Surface, TellsEverySingleBesideAHalfFromIt)
{
    const Surface surface = Numbered();
    for (int x = 0; x < 59; ++x) {
        const float half = static_cast<float>(x) + 0.5F;
        EXPECT_EQ(surface.Point(std::nextafter(half, 0.0F), 0.0F), x);
        EXPECT_EQ(surface.Point(half, 0.0F), x);
        EXPECT_EQ(surface.Point(std::nextafter(half, InfinitePlace), 0.0F), x + 1);
    }
    EXPECT_EQ(surface.Point(std::nextafter(-0.5F, 0.0F), 0.0F), 0);
}

TEST(Surface, BeginsAndEndsHalfAPixelBesideTheFirstAndLast)
{
    const Surface surface = Numbered();
    EXPECT_EQ(surface.Point(-0.49F, 0.0F), 0);
    EXPECT_EQ(surface.Point(-0.5F, 0.0F), -1);
    EXPECT_EQ(surface.Point(0.0F, -0.5F), -1);
    EXPECT_EQ(surface.Point(59.5F, 0.0F), 59);
    EXPECT_EQ(surface.Point(59.51F, 0.0F), -1);
    EXPECT_EQ(surface.Point(-0.99F, 0.0F), -1);
    EXPECT_EQ(surface.Point(-1.0F, 0.0F), -1);
}

TEST(Surface, HasNoPixelAtWhatIsNoPlace)
{
    Surface surface = Numbered();
    const Surface before = surface;
    for (const float place : {NoPlace, InfinitePlace, -InfinitePlace, Huge, -Huge, 4294967296.0F,
                              2147483648.0F, 16777216.0F, -16777216.0F}) {
        EXPECT_EQ(surface.Point(place, 1.0F), -1);
        EXPECT_EQ(surface.Point(1.0F, place), -1);
        surface.PSet(place, 1.0F, White);
        surface.PSet(1.0F, place, White);
    }
    EXPECT_EQ(surface, before);
}

TEST(Surface, PaintsAtTheNearestPixel)
{
    Surface surface(3, 3, 0);
    surface.PSet(0.5F, 1.5F, 7);
    surface.PSet(1.51F, -0.49F, 8);
    surface.PSet(-0.5F, 0.0F, 9);
    surface.PSet(0.0F, 2.51F, 9);
    EXPECT_EQ(surface.Point(0, 1), 7);
    EXPECT_EQ(surface.Point(2, 0), 8);
    int painted = 0;
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x)
            painted += surface.Point(x, y) != 0 ? 1 : 0;
    EXPECT_EQ(painted, 2);
}

TEST(Surface, IgnoresWhatIsPaintedOutside)
{
    Surface surface = Numbered();
    const Surface before = surface;
    for (const int outside : {-1, 60, -32768, Largest, Smallest}) {
        surface.PSet(outside, 5, White);
        surface.PSet(5, outside, White);
    }
    EXPECT_EQ(surface, before);
}

TEST(Surface, PaintsMinusOneAsWhite)
{
    Surface surface(1, 1, 0);
    surface.PSet(0, 0, -1);
    EXPECT_EQ(surface.Point(0, 0), 0xFFFFFF);
}

TEST(Surface, PaintsTheLowThreeBytes)
{
    const auto painted = [](Colour colour) {
        Surface surface(1, 1);
        surface.PSet(0, 0, colour);
        return surface.Point(0, 0);
    };
    EXPECT_EQ(painted(0x01000000), 0);
    EXPECT_EQ(painted(0x01ABCDEF), 0xABCDEF);
    EXPECT_EQ(painted(0x7FFFFFFF), 0xFFFFFF);
    EXPECT_EQ(painted(-2), 0xFFFFFE);
    EXPECT_EQ(painted(-16777216), 0);
    EXPECT_EQ(painted(-16777217), 0xFFFFFF);
    EXPECT_EQ(painted(std::numeric_limits<Colour>::min()), 0);
}

TEST(Surface, IsClearedToTheBackground)
{
    Surface surface = Numbered();
    surface.Cls();
    EXPECT_EQ(surface, Surface(60, 60));
    EXPECT_EQ(surface.Point(59, 59), 0xC0C0C0);
    EXPECT_EQ(surface.Width(), 60);
}

TEST(Surface, OfNoPixelsIsOutsideEverywhere)
{
    Surface surface;
    surface.PSet(0, 0, 5);
    surface.Cls();
    surface.PaintRow(0, std::vector<Colour>{5});
    EXPECT_EQ(surface.Point(0, 0), -1);
    std::vector<Colour> colours(1);
    surface.ReadRow(0, colours);
    EXPECT_EQ(colours[0], -1);
    EXPECT_EQ(surface.Width(), 0);
    EXPECT_EQ(surface.Height(), 0);
}

TEST(Surface, IsAlikeOnlyInSizeAndColours)
{
    EXPECT_EQ(Surface(2, 3, 9), Surface(2, 3, 9));
    EXPECT_NE(Surface(2, 3, 9), Surface(3, 2, 9));
    EXPECT_NE(Surface(2, 3, 9), Surface(2, 3, 8));
}

}  // namespace
}  // namespace pixano::test
