#include "canvas/fault.h"
#include "effects/geometry/geometry.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

// A square picture: (j, i) takes the old (Alt - i, j); row 0 and column 0 stay background. Column 2
// of the result takes the old row 2, column 3 would take row 3 and lies outside.
TEST(RotazMeno, TurnsASquareToTheLeftBesideABackgroundRowAndColumn)
{
    EXPECT_EQ(EffectRun({"abc", "def", "ghi"}).Apply(RotazMeno).Result(),
              (Letters{"...", ".fi", ".eh"}));
}

// A square picture: (j, i) takes the old (i + 1, Larg - j), so the last row takes the outside
// column.
TEST(RotazPiu, TurnsASquareToTheRightBesideABackgroundColumn)
{
    EXPECT_EQ(EffectRun({"abc", "def", "ghi"}).Apply(RotazPiu).Result(),
              (Letters{".he", ".if", ".~~"}));
}

// Larg = 4, Alt = 2: rx = 2, ry = 0.5. Row 1 is the second row written: a = -1 + 2 + 2 = 3; b runs
// 0.5, 1, 1.5 for columns 1, 2, 3, which round to rows 0, 1 and 2 (the outside row).
TEST(RotazMeno, SkipsColumnsAndRepeatsRowsOfAWidePicture)
{
    EXPECT_EQ(EffectRun({"abcd", "efgh"}).Apply(RotazMeno).Result(), (Letters{"....", ".dh~"}));
}

TEST(RotazMeno, KeepsTheSizeOfTheCanvas)
{
    EffectRun run(Varied(300, 100));
    run.Apply(RotazMeno);
    EXPECT_EQ(run.work.Picture1.Width(), 300);
    EXPECT_EQ(run.work.Picture1.Height(), 100);
}

// The first row index is CLng(1/3 - 1) = -1.
TEST(RotazPiu, FailsOnAPictureThreeTimesAsWideAsHighWithTheCanvasCleared)
{
    EffectRun run(Varied(300, 100));
    EXPECT_EQ(FaultOf(run, RotazPiu), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.work.Picture1, Surface(300, 100, Background));
    EXPECT_EQ(run.progress.values, Steps(0, 0));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

// The first column index is CLng(1/3 - 1) = -1.
TEST(RotazMeno, FailsOnAPictureThreeTimesAsHighAsWide)
{
    EffectRun run(Varied(100, 300));
    EXPECT_EQ(FaultOf(run, RotazMeno), FaultKind::SubscriptOutOfRange);
}

// A ratio of exactly one half gives index CLng(-0.5) = 0.
TEST(QuarterTurns, GoOnAtARatioOfExactlyOneHalf)
{
    EffectRun high(Varied(50, 100));
    EXPECT_NO_THROW(high.Apply(RotazMeno));
    EffectRun wide(Varied(100, 50));
    EXPECT_NO_THROW(wide.Apply(RotazPiu));
}

TEST(QuarterTurns, FailOnPicturesBeyondTheMatrixBeforeTheCanvasIsCleared)
{
    for (auto* const effect : {RotazMeno, RotazPiu}) {
        const Surface picture = Varied(1501, 1500);
        EffectRun run(picture);
        EXPECT_EQ(FaultOf(run, effect), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(run.work.Picture1, picture);
        EXPECT_EQ(run.progress.shownAfter, -1);
    }
}

// Larg = Alt = 1500: the last row reads column 1501.
TEST(RotazPiu, FailsInItsLastRowAtTheFullSizeOfTheMatrix)
{
    EffectRun run(Varied(1500, 1500));
    EXPECT_EQ(FaultOf(run, RotazPiu), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.progress.values.back(), 1500);
}

TEST(RotazMeno, WorksAtTheFullSizeOfTheMatrix)
{
    EffectRun run(Varied(1500, 1500));
    EXPECT_NO_THROW(run.Apply(RotazMeno));
    EXPECT_EQ(run.progress.values, Steps(0, 1499));
}

// Cells beyond the capture keep what a larger picture left there.
TEST(RotazPiu, ReadsCellsThatAnEarlierCaptureLeft)
{
    EffectRun run(Surface(5, 5, 0x123456));
    run.Apply(RotazPiu);
    run.Load(Drawn({"ab", "cd"}));
    run.Apply(RotazPiu);
    // i = 1: column 2 of the capture, the outside column; i = 2 lies outside the canvas.
    EXPECT_EQ(run.Result(), (Letters{".d", ".~"}));
}

TEST(QuarterTurns, FailWithADivisionByZeroOnAPictureWithoutWidth)
{
    EffectRun run({"a"});
    run.work.Larg = 0;
    EXPECT_EQ(FaultOf(run, RotazMeno), FaultKind::DivisionByZero);
}

}  // namespace
}  // namespace pixano::test
