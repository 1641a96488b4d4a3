#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "support/values.h"

#include <cmath>

namespace pixano::test {
namespace {

constexpr int VetroSelector = 3;

// P = 2010 makes Q = 4000: a colour moves by as many pixels as it has four millions.
// 4000000 = &H3D0900 moves by 1, its neighbours by a hair more; 2000000 = &H1E8480 by a half, which
// is the lower pixel; 8000000 = &H7A1200 by 2; black and &H123456 (0.3) stay.
// To (2, 2) come (0, 0), then (1, 1); to (2, 1) comes (1, 0) before black (1, 2) is redrawn.
TEST(Vetro, OddSidesWorkedOutByHand)
{
    EXPECT_EQ(After(Vetro, VetroSelector, 2010,
                    {{0x7A1200, 0x3D0900, 0x000000},
                     {0x1E8480, 0x3D0901, 0x3D0902},
                     {0x3D0903, 0x000000, 0x7A1200}}),
              (Values{{0x7A1200, 0x3D0900, 0x000000},
                      {0x1E8480, 0x3D0901, 0x3D0900},
                      {0x3D0903, 0x000000, 0x3D0901}}));
}

// P = 7010 makes Q = 2000. 2000000 = &H1E8480 moves by 1; 3000000 = &H2DC6C0 by 1.5, the lower
// pixel; 3000001 by 1.5000005, the upper one.
TEST(Vetro, EvenSidesWorkedOutByHand)
{
    EXPECT_EQ(
        After(Vetro, VetroSelector, 7010,
              {{0x1E8480, 0x2DC6C0, 0x000000, 0x000001}, {0x000002, 0x000003, 0x000004, 0x000005}}),
        (Values{{0x1E8480, 0x2DC6C0, 0x000000, 0x000001},
                {0x000002, 0x000003, 0x000004, 0x000005}}))
        << "row 1 is redrawn over what came there";
    EXPECT_EQ(
        After(Vetro, VetroSelector, 7010,
              {{0x1E8480, 0x2DC6C0, 0x000000, 0x000001}, {0x000002, 0xFFFFFF, 0xFFFFFF, 0x000005}}),
        (Values{{0x1E8480, 0x2DC6C0, 0x000000, 0x000001},
                {0x000002, 0x1E8480, 0x2DC6C0, 0x000005}}));
    EXPECT_EQ(After(Vetro, VetroSelector, 7010,
                    {{2, 3000001, 4, 5}, {6, 7, 8, 0xFFFFFF}, {9, 10, 11, 0xFFFFFF}}),
              (Values{{2, 3000001, 4, 5}, {6, 7, 8, 0xFFFFFF}, {9, 10, 11, 3000001}}));
}

TEST(Vetro, RedrawsBlackAtItsOwnPlace)
{
    EffectRun run(Surface(4, 3, 0));
    Use(run, VetroSelector, 5000).Apply(Vetro);
    EXPECT_EQ(run.work.Picture1, Surface(4, 3, 0));
}

// 16777215 / 4800 / 1000 = 3.495.
TEST(Vetro, MovesWhiteByThreePixelsAtAStrengthOfTen)
{
    Surface picture(6, 5, 0xFFFFFF);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 6; ++x)
            if (x + y > 0) picture.PSet(x, y, 16777000);
    EffectRun run(picture);
    Use(run, VetroSelector, 10).Apply(Vetro);
    EXPECT_EQ(run.work.Picture1.Point(3, 3), 0xFFFFFF);
    EXPECT_EQ(run.work.Picture1.Point(0, 0), 0xFFFFFF);
    EXPECT_EQ(run.work.Picture1.Point(4, 3), 16777000);
}

// 2000001 moves by 0.50000025: at row 0 that is the next row; at column 1000 it is too little for a
// Single and the column stays.
TEST(Vetro, RoundsEachPlaceToASingleOnce)
{
    Surface picture(1002, 2, 0);
    picture.PSet(1000, 0, 2000001);
    for (int x = 0; x < 1002; ++x)
        picture.PSet(x, 1, 0xFFFFFF);  // moves out of the picture
    EffectRun run(picture);
    Use(run, VetroSelector, 2010).Apply(Vetro);
    EXPECT_EQ(run.work.Picture1.Point(1000, 1), 2000001);
    EXPECT_EQ(run.work.Picture1.Point(1001, 1), 0xFFFFFF);
}

// P = -27990 makes Q = 16000; 8000001 moves by 0.5000000625. From column 1 that is 1.5000000625, in
// Single 1.50000012 and so pixel 2; the way made Single first would end on 1.5 and pixel 1.
TEST(Vetro, AddsTheWayBeforeItIsMadeSingle)
{
    EXPECT_EQ(After(Vetro, VetroSelector, -27990, {{0, 8000001, 0}, {0, 0, 0xFFFFFF}}),
              (Values{{0, 8000001, 0}, {0, 0, 8000001}}));
}

// This strength puts 8388609 / Q / 1000 a last bit above the double that a Single would round down
// to one half; divided by 1000 Q at once it would be that double.
TEST(Vetro, DividesTwice)
{
    EXPECT_EQ(After(Vetro, VetroSelector, -29933.042499999843, {{8388609, 0}, {0, 0xFFFFFF}}),
              (Values{{8388609, 0}, {0, 8388609}}));
}

// P = 14510 makes Q = -1000.
TEST(Vetro, MovesUpAndLeftBeyondTheStrengthOf12010)
{
    EXPECT_EQ(After(Vetro, VetroSelector, 14510, {{1, 2, 3}, {4, 1000000, 6}, {7, 8, 2000000}}),
              (Values{{2000000, 2, 3}, {4, 1000000, 6}, {7, 8, 2000000}}));
}

// P = 12010 - 1 / 256 makes -1 move by -0.64: from the column and the row outside, white comes back
// in, after the black pixels there have been redrawn.
TEST(Vetro, PaintsTheOutsideColourUpAndLeftOfItsPlace)
{
    const Colour w = White;
    EXPECT_EQ(After(Vetro, VetroSelector, 12010 - 1.0 / 256, {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}),
              (Values{{0, 0, w}, {0, 0, w}, {w, w, w}}));
}

TEST(Vetro, FailsWithADivisionByZeroAtItsFirstPixel)
{
    EffectRun run({"ab", "cd"});
    Use(run, VetroSelector, 12010);
    EXPECT_EQ(FaultOf(run, Vetro), FaultKind::DivisionByZero);
    EXPECT_EQ(run.Result(), (Letters{"ab", "cd"}));
    EXPECT_EQ(run.progress.values, Steps(0, 0));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

TEST(Vetro, WorksOnAfterAFault)
{
    EffectRun run({"ab", "cd"});
    Use(run, VetroSelector, 12010);
    EXPECT_TRUE(FaultOf(run, Vetro));
    run.Load(Surface(2, 2, 0));
    EXPECT_EQ(Use(run, 2, -1).Apply(Colorazione).work.Picture1, Surface(2, 2, 1000));
}

TEST(Vetro, EveryPixelOnAllSizes)
{
    for (const Size size : SmallSizes)
        for (const double strength : {0.0, 1000.0, 5000.0, 10000.0, 11900.0}) {
            const Surface picture = Varied(size.width, size.height);
            Sheet sheet(picture);
            for (int y = 0; y <= size.height; ++y)
                for (int x = 0; x <= size.width; ++x) {
                    const Colour c = picture.Point(x, y);
                    const double d = c / ((12010 - strength) * 0.4) / 1000;
                    const auto pixel = [d](int start) {
                        return static_cast<int>(
                            std::ceil(static_cast<double>(static_cast<float>(start + d)) - 0.5));
                    };
                    sheet.Paint(pixel(x), pixel(y), c);
                }
            EffectRun run(picture);
            Use(run, VetroSelector, strength).Apply(Vetro);
            EXPECT_TRUE(sheet.Shows(run.work.Picture1))
                << size.width << "x" << size.height << " by " << strength;
        }
}

}  // namespace
}  // namespace pixano::test
