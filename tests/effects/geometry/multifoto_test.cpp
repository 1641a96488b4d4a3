#include "effects/geometry/mapped.h"
#include "support/faults.h"
#include "support/journal_store.h"

#include <algorithm>

namespace pixano::test {
namespace {

TEST(Multifoto, DrawsFourMirroredCopies)
{
    EffectRun run({"abcdef", "ghijkl", "mnopqr", "stuvwx"});
    EXPECT_EQ(run.Apply(Multifoto).Result(), (Letters{"abcdef", "ghjljh", "mtvxvt", "shjljh"}));
}

TEST(Multifoto, LeavesTheLastRowAndColumnOfAnOddPictureAlone)
{
    EffectRun run({"abcdefg", "hijklmn", "opqrstu", "vwxyzAB", "CDEFGHI"});
    EXPECT_EQ(run.Apply(Multifoto).Result(),
              (Letters{"abcdefg", "hikmkin", "owyAywu", "vikmkiB", "CDEFGHI"}));
}

TEST(Multifoto, CapturesOddRowsAndColumns)
{
    JournalRun run({"abcdefg", "hijklmn", "opqrstu", "vwxyzAB", "CDEFGHI"});
    EXPECT_EQ(run.Apply(Multifoto).written, ColoursOf("ikmwyA"));
    EXPECT_EQ(run.diary, (Diary{"create", "finish", "show", "open", "close", "kill"}));
}

/// The place in `side` (made even) that the place `at` shows; `at` itself where nothing is painted.
int Sampled(int at, int side)
{
    const int even = side / 2 * 2;
    return at >= 1 && at <= even - 1 ? 2 * std::min(at, even - at) - 1 : at;
}

TEST(Multifoto, TakesEveryPixelFromItsPlace)
{
    ExpectOnAllSizes(Multifoto, [](const Surface& old, int column, int row) {
        const bool painted =
            column >= 1 && column < old.Width() / 2 * 2 && row >= 1 && row < old.Height() / 2 * 2;
        if (!painted) return old.Point(column, row);
        return old.Point(Sampled(column, old.Width()), Sampled(row, old.Height()));
    });
}

TEST(Multifoto, IsSymmetricalAboutTheMiddleRowAndColumn)
{
    EffectRun run(Varied(100, 80));
    const Surface& result = run.Apply(Multifoto).work.Picture1;
    for (int y = 1; y < 80; ++y)
        for (int x = 1; x < 100; ++x) {
            ASSERT_EQ(result.Point(x, y), result.Point(100 - x, y));
            ASSERT_EQ(result.Point(x, y), result.Point(x, 80 - y));
        }
}

TEST(Multifoto, TellsEverySecondRow)
{
    for (const int height : {80, 81}) {
        EffectRun run(Varied(height + 20, height));
        EXPECT_EQ(run.Apply(Multifoto).progress.values, Steps(2, 80, 2));
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

TEST(Multifoto, TreatsAnOddPictureAsOneSmallerFromThenOn)
{
    const Surface odd = Varied(101, 81);
    Surface even(100, 80);
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 100; ++x)
            even.PSet(x, y, odd.Point(x, y));
    EffectRun oddRun(odd);
    EffectRun evenRun(even);
    oddRun.Apply(Multifoto);
    evenRun.Apply(Multifoto);
    EXPECT_EQ(oddRun.work.Larg, 100);
    EXPECT_EQ(oddRun.work.Alt, 80);
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 100; ++x)
            ASSERT_EQ(oddRun.work.Picture1.Point(x, y), evenRun.work.Picture1.Point(x, y));
}

// Larg = Alt = 2 on a canvas of 3 x 3: the only sample lands on itself. "Capovolgi" then reads
// column and row 2 inside the canvas: a b c d e f g h i fills row 1 and then row 0 from the right.
TEST(Multifoto, LetsLaterEffectsReadPixelsAtTheOldLastColumnAndRow)
{
    EffectRun run({"abc", "def", "ghi"});
    EXPECT_EQ(run.Apply(Multifoto).Result(), (Letters{"abc", "def", "ghi"}));
    EXPECT_EQ(run.Apply(Capov).Result(), (Letters{"fed", "cba", "ghi"}));
    EXPECT_EQ(run.work.Larg, 2);
    EXPECT_EQ(run.work.Alt, 2);
}

// Larg = 4, Alt = 2 on a canvas of 5 x 3. Samples g and i: g to columns 1 and 3, i to column 2, row
// 1 alone. Then column x goes to column 3 - x in rows 0 to 2, and column 4 to -1, outside.
TEST(Multifoto, ThenSpecchioMirrorsWithinTheEvenWidth)
{
    EffectRun run({"abcde", "fghij", "klmno"});
    EXPECT_EQ(run.Apply(Multifoto).Result(), (Letters{"abcde", "fgigj", "klmno"}));
    EXPECT_EQ(run.Apply(Specchio).Result(), (Letters{"dcbae", "gigfj", "nmlko"}));
}

TEST(Multifoto, OnAPictureOneRowHighLeavesTheNextProgressADivisionByZero)
{
    for (auto* const effect : {Specchio, Super, Infer, Destro, Incentro}) {
        EffectRun run({"abc"});
        run.Apply(Multifoto);
        EXPECT_EQ(run.work.Alt, 0);
        EXPECT_EQ(FaultIn([&] { run.Apply(effect); }), FaultKind::DivisionByZero);
        EXPECT_EQ(run.progress.shownAfter, 0);
        EXPECT_EQ(run.Result(), Letters{"abc"});
    }
}

TEST(Multifoto, OnAPictureOneRowHighMakesTheCaptureOfSinistroFailBeforeTheWindow)
{
    EffectRun run({"abc"});
    run.Apply(Multifoto);
    EXPECT_EQ(FaultIn([&] { run.Apply(Sini); }), FaultKind::DivisionByZero);
    EXPECT_EQ(run.progress.shownAfter, -1);
}

TEST(Multifoto, WorksAgainAfterAFaultAndANewPicture)
{
    EffectRun run({"abc"});
    run.Apply(Multifoto);
    EXPECT_EQ(FaultIn([&] { run.Apply(Specchio); }), FaultKind::DivisionByZero);
    run.Load(Drawn({"abcd", "efgh"}));
    EXPECT_EQ(run.Apply(Multifoto).Result(), (Letters{"abcd", "efhf"}));
    EXPECT_EQ(run.Apply(Specchio).Result(), (Letters{"dcba", "fhfe"}));
}

}  // namespace
}  // namespace pixano::test
