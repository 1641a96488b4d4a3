// "Deformazione Casuale" on patterns worked out by hand, and where it fails.
#include "effects/composite/composite.h"
#include "effects/composite/deformation_draws.h"
#include "effects/geometry/geometry.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace pixano::test {
namespace {

// R1 = 15: columns 0 to 14 and 16 are C = 16 cells; FX = 17 / (17 - 16) / 4.7 = 3.617, so U is
// 0, 3.617, 7.234, 10.851, 14.468, then 18.085, beyond C. R2 = 10: rows 0 to 9 and 11 are T = 11
// cells; FY = 12 / (12 - 11) / 4.5 = 2.667, so V is 0, 2.667, 5.333, 8, 10.667, then 13.333, beyond
// T.
TEST(DeformazioneCasuale, SpreadsFiveByFiveCellsOverTheSmallestPictureThatItCanSqueeze)
{
    const Surface before = Varied(18, 13);
    Surface expected = before;
    constexpr std::array<int, 5> Columns{0, 4, 7, 11, 14};
    constexpr std::array<int, 4> Rows{0, 3, 5, 8};
    for (int x = 0; x < 5; ++x) {
        for (int y = 0; y < 4; ++y)
            expected.PSet(x, y,
                          before.Point(Columns.at(static_cast<std::size_t>(x)),
                                       Rows.at(static_cast<std::size_t>(y))));
        // V = 10.667 is row 11 of the matrix, which the squeeze did not write.
        expected.PSet(x, 4, 0);
    }
    EffectRun run(before, SeedFor({15, 10, 2, 2}));
    EXPECT_EQ(run.Apply(MulStepRnd).work.Picture1, expected);
    EXPECT_EQ(run.progress.values, Steps(0, 4));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

// The same with an earlier capture in the matrix: its row 11 is painted.
TEST(DeformazioneCasuale, PaintsARowThatAnEarlierCaptureLeft)
{
    EffectRun run(Surface(20, 20, 0x123456), SeedFor({15, 10, 2, 2}));
    run.Apply(RotazPiu);
    run.Load(Varied(18, 13));
    run.Apply(MulStepRnd);
    EXPECT_EQ(run.work.Picture1.Point(0, 4), 0x123456);
    EXPECT_EQ(run.work.Picture1.Point(4, 4), 0x123456);
    EXPECT_EQ(run.work.Picture1.Point(5, 4), Varied(18, 13).Point(5, 4));
}

// R2 = 10, R4 = 3, Alt = 46: rows 0 to 9, 11 to 29 by 2, 32 to 44 by 3 are T = 25 cells, and
// FY = 45 / (45 - 25) / 4.5 is exactly one half: cells 0, 0 (0.5), 1, 2 (1.5), 2, 2 (2.5), 3, 4
// (3.5) and so on.
TEST(DeformazioneCasuale, RoundsHalvesToTheEvenCell)
{
    const Surface before = Varied(40, 46);
    EffectRun run(before, SeedFor({15, 10, 2, 3}));
    run.Apply(MulStepRnd);
    constexpr std::array<int, 8> Cells{0, 0, 1, 2, 2, 2, 3, 4};
    for (int y = 0; y < 8; ++y)
        EXPECT_EQ(run.work.Picture1.Point(0, y),
                  before.Point(0, Cells.at(static_cast<std::size_t>(y))));
    // The last row reads cell 22 (22.5): 20 cells up to row 29, then rows 32, 35 and 38.
    EXPECT_EQ(run.work.Picture1.Point(0, 45), before.Point(0, 38));
}

// R1 = 15, R3 = 2: columns 0 to 14, 16 to 44 by 2; the step of 3 is taken once, to 47, before it
// starts again at 1: 47, 48, ... R2 = 10, R4 = 3: rows 0 to 9, 11 to 29 by 2, 32 to 59 by 3,
// 63, 64.
TEST(DeformazioneCasuale, TakesTheStepThatIsTooLargeOnce)
{
    const Surface before = Varied(60, 70);
    EffectRun run(before, SeedFor({15, 10, 2, 3}));
    run.Apply(MulStepRnd);
    const auto column = [&](int cell) { return run.work.Vettore(cell, 0); };
    EXPECT_EQ(column(14), before.Point(14, 0));
    EXPECT_EQ(column(15), before.Point(16, 0));
    EXPECT_EQ(column(29), before.Point(44, 0));
    EXPECT_EQ(column(30), before.Point(47, 0));
    EXPECT_EQ(column(31), before.Point(48, 0));
    EXPECT_EQ(column(42), before.Point(59, 0));
    EXPECT_EQ(column(43), 0);
    const auto row = [&](int cell) { return run.work.Vettore(0, cell); };
    EXPECT_EQ(row(9), before.Point(0, 9));
    EXPECT_EQ(row(10), before.Point(0, 11));
    EXPECT_EQ(row(19), before.Point(0, 29));
    EXPECT_EQ(row(20), before.Point(0, 32));
    EXPECT_EQ(row(29), before.Point(0, 59));
    EXPECT_EQ(row(30), before.Point(0, 63));
    EXPECT_EQ(row(31), before.Point(0, 64));
    EXPECT_EQ(row(36), before.Point(0, 69));
    EXPECT_EQ(row(37), 0);
}

// R2 = 10, R4 = 2, Alt = 30: rows 0 to 9, 11 to 29 by 2 are T = 20 cells; FY = 29 / 9 / 4.5 =
// 0.716: V is 19.33 in row 27 and 20.05, beyond T, after it. R1 = 15, R3 = 2, Larg = 36: columns 0
// to 14, 16 to 34 by 2 are C = 25 cells; FX = 35 / 10 / 4.7 = 0.745: U is 24.57 at column 33 (a
// cell that the squeeze did not write) and 25.32 after it.
TEST(DeformazioneCasuale, KeepsWhatLiesBehindTheLastCells)
{
    const Surface before = Varied(36, 30);
    EffectRun run(before, SeedFor({15, 10, 2, 2}));
    const Surface after = run.Apply(MulStepRnd).work.Picture1;
    EXPECT_EQ(after.Point(32, 0), before.Point(34, 0));  // U = 23.83: cell 24
    for (int y = 0; y < 28; ++y) {
        EXPECT_EQ(after.Point(33, y), 0);
        EXPECT_EQ(after.Point(34, y), before.Point(34, y));
        EXPECT_EQ(after.Point(35, y), before.Point(35, y));
    }
    EXPECT_EQ(after.Point(0, 27), before.Point(0, 29));  // V = 19.33: cell 19
    for (int x = 0; x < 36; ++x)
        for (int y = 28; y < 30; ++y)
            EXPECT_EQ(after.Point(x, y), before.Point(x, y));
    EXPECT_EQ(run.progress.values, Steps(0, 27));
}

// R1 = 26, R3 = 2, Larg = 48: columns 0 to 25, 27 to 47 by 2 are C = 37 cells and FX = 47 / 10
// / 4.7 is exactly 1. R2 = 14, R4 = 2, Alt = 28: rows 0 to 13, 15 to 27 by 2 are T = 21 cells and
// FY = 27 / 6 / 4.5 is exactly 1. Only beyond C and T the picture is kept: the cells 37 and 21,
// which the squeeze did not write, are painted.
TEST(DeformazioneCasuale, GoesOnWherePositionAndCountAreEqual)
{
    const Surface before = Varied(48, 28);
    EffectRun run(before, SeedFor({26, 14, 2, 2}));
    const Surface after = run.Apply(MulStepRnd).work.Picture1;
    EXPECT_EQ(after.Point(36, 0), before.Point(47, 0));
    EXPECT_EQ(after.Point(37, 0), 0);
    EXPECT_EQ(after.Point(38, 0), before.Point(38, 0));
    EXPECT_EQ(after.Point(0, 20), before.Point(0, 27));
    EXPECT_EQ(after.Point(0, 21), 0);
    EXPECT_EQ(after.Point(0, 22), before.Point(0, 22));
    EXPECT_EQ(run.progress.values, Steps(0, 21));
}

// Larg - 1 or Alt - 1 is 0: the factor is 0 / -1, and cell 0 is painted all over.
TEST(DeformazioneCasuale, OfOnePixel)
{
    EXPECT_EQ(EffectRun({"a"}).Apply(MulStepRnd).Result(), (Letters{"a"}));
}

// FX = 1 / (1 - 2) / 4.7 = -0.21, which rounds to cell 0 in the second column; FY likewise.
TEST(DeformazioneCasuale, OfTwoByTwoPixelsPaintsTheFirstOneAllOver)
{
    EXPECT_EQ(EffectRun({"ab", "cd"}).Apply(MulStepRnd).Result(), (Letters{"aa", "aa"}));
}

// FX = 2 / (2 - 3) / 4.7 = -0.43: columns 0, 0 (-0.43) and -1 (-0.85).
TEST(DeformazioneCasuale, FailsInTheFirstRowOfAPictureThatCouldNotBeSqueezed)
{
    EffectRun run({"abc", "def", "ghi"});
    EXPECT_EQ(FaultOf(run, MulStepRnd), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.Result(), (Letters{"aac", "def", "ghi"}));
    EXPECT_EQ(run.progress.values, Steps(0, 0));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

// FY = 2 / (2 - 3) / 4.5 = -0.44: rows 0, 0 (-0.44) and -1 (-0.89).
TEST(DeformazioneCasuale, FailsInALaterRowOfAColumnThatCouldNotBeSqueezed)
{
    EffectRun run({"a", "b", "c"});
    EXPECT_EQ(FaultOf(run, MulStepRnd), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.Result(), (Letters{"a", "a", "c"}));
    EXPECT_EQ(run.progress.values, Steps(0, 2));
}

// R1 = 15: 16 columns give cells 0 to 14, 17 columns give one more; both are one cell less than
// columns. R2 = 10 does the same to 11 and 12 rows.
TEST(DeformazioneCasuale, FailsWithADivisionByZeroBeforeAnythingIsShown)
{
    for (const auto& [width, height] :
         {std::pair(16, 40), std::pair(17, 40), std::pair(40, 11), std::pair(40, 12)}) {
        const Surface picture = Varied(width, height);
        EffectRun run(picture, SeedFor({15, 10, 2, 2}));
        EXPECT_EQ(FaultOf(run, MulStepRnd), FaultKind::DivisionByZero) << width << "x" << height;
        EXPECT_EQ(run.work.Picture1, picture);
        EXPECT_EQ(run.progress.shownAfter, -1);
    }
}

// R1 = 15, R3 = 2: every 47 columns make 30 cells, so 2400 make more than 1501. R2 = 10, R4 = 2:
// every 32 rows make 20 cells.
TEST(DeformazioneCasuale, FailsWhereTheSqueezedPictureDoesNotFitIntoTheMatrix)
{
    for (const auto& [width, height] : {std::pair(2400, 30), std::pair(40, 2500)}) {
        const Surface picture = Varied(width, height);
        EffectRun run(picture, SeedFor({15, 10, 2, 2}));
        EXPECT_EQ(FaultOf(run, MulStepRnd), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(run.work.Picture1, picture);
        EXPECT_EQ(run.progress.shownAfter, -1);
    }
    EXPECT_NO_THROW(EffectRun(Varied(2200, 30), SeedFor({15, 10, 2, 2})).Apply(MulStepRnd));
}

}  // namespace
}  // namespace pixano::test
