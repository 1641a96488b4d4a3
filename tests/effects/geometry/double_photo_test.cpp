#include "effects/geometry/mapped.h"
#include "support/journal_store.h"

#include <algorithm>

namespace pixano::test {
namespace {

// Row 1 gives j, l, n, p. j goes to columns 2 and 6, l to 3 and 5, n twice to 4, p to 5 and 3, over
// the two l. Row 0 and columns 0, 1 and 7 keep their letters.
TEST(DoppiaFotoVerticale, DrawsTwoCopiesThatMeetInThreeColumns)
{
    EXPECT_EQ(EffectRun({"abcdefgh", "ijklmnop"}).Apply(Vertdop).Result(),
              (Letters{"abcdefgh", "ijjpnpjp"}));
}

// Larg becomes 6, Alt 2: row 2 is the row Alt, but still a row of the canvas. Row 1 gives i, k, m:
// i to columns 2 and 4, k twice to 3, m to 4 and 2.
TEST(DoppiaFotoVerticale, LeavesTheLastColumnOfAnOddPictureAlone)
{
    EffectRun run({"abcdefg", "hijklmn", "opqrstu"});
    EXPECT_EQ(run.Apply(Vertdop).Result(), (Letters{"abcdefg", "himkmmn", "optrttu"}));
}

TEST(DoppiaFotoOrizzontale, DrawsTwoCopiesThatMeetInTwoRows)
{
    // Row 1 goes to rows 2 and 5, row 3 to rows 3 and 4, row 5 to rows 4 and 3, over row 3. Rows 0
    // and 1 and column 0 keep their letters.
    EXPECT_EQ(EffectRun({"abcd", "efgh", "ijkl", "mnop", "qrst", "uvwx"}).Apply(Orizdop).Result(),
              (Letters{"abcd", "efgh", "ifgh", "mvwx", "qvwx", "ufgh"}));
}

// Larg becomes 2, Alt 6: column 2 is the column Larg, but still a column of the canvas.
TEST(DoppiaFotoOrizzontale, LeavesTheLastRowOfAnOddPictureAlone)
{
    EffectRun run({"abc", "def", "ghi", "jkl", "mno", "pqr", "stu"});
    EXPECT_EQ(run.Apply(Orizdop).Result(),
              (Letters{"abc", "def", "gef", "jqr", "mqr", "pef", "stu"}));
}

/// Of the samples that reach a place the later one, that is the higher one, wins; 0 when none does.
int LaterSample(int straight, int mirrored, int count)
{
    const auto valid = [count](int sample) { return sample >= 1 && sample <= count ? sample : 0; };
    return std::max(valid(straight), valid(mirrored));
}

TEST(DoppiaFotoVerticale, TakesEveryPixelFromItsPlace)
{
    ExpectOnAllSizes(Vertdop, [](const Surface& old, int column, int row) {
        const int larg = old.Width() / 2 * 2;
        const int alt = old.Height() / 2 * 2;
        const int sample = LaterSample(column - 1, larg - 1 - column, larg / 2);
        const bool painted = sample != 0 && row >= 1 && row <= alt;
        return old.Point(painted ? 2 * sample - 1 : column, row);
    });
}

TEST(DoppiaFotoOrizzontale, TakesEveryPixelFromItsPlace)
{
    ExpectOnAllSizes(Orizdop, [](const Surface& old, int column, int row) {
        const int larg = old.Width() / 2 * 2;
        const int alt = old.Height() / 2 * 2;
        const int sample = LaterSample(row - 1, alt - row, alt / 2);
        const bool painted = sample != 0 && column >= 1 && column <= larg;
        return old.Point(column, painted ? 2 * sample - 1 : row);
    });
}

// Samples 1 to 47 lie on both sides, in columns 2 to 48 and 98 to 52; column 49 shows sample 50,
// column 50 sample 49, column 51 sample 50 once more.
TEST(DoppiaFotoVerticale, PutsTheSamplesOfAPictureAHundredWide)
{
    const Surface old = Varied(100, 4);
    JournalRun run(old);
    const Surface& result = run.Apply(Vertdop).work.Picture1;
    // Rows 1, 2, 3 and the row outside, columns 1, 3, ... 99 of each.
    ASSERT_EQ(run.written.size(), 4U * 50);
    for (int x = 1; x <= 50; ++x) {
        EXPECT_EQ(run.written[static_cast<std::size_t>(x - 1)], old.Point(2 * x - 1, 1));
        EXPECT_EQ(run.written[static_cast<std::size_t>(150 + x - 1)], Outside);
    }
    for (int x = 1; x <= 47; ++x) {
        EXPECT_EQ(result.Point(x + 1, 1), old.Point(2 * x - 1, 1));
        EXPECT_EQ(result.Point(99 - x, 1), old.Point(2 * x - 1, 1));
    }
    EXPECT_EQ(result.Point(49, 1), old.Point(99, 1));
    EXPECT_EQ(result.Point(50, 1), old.Point(97, 1));
    EXPECT_EQ(result.Point(51, 1), old.Point(99, 1));
}

// Samples 1 to 48 lie on both sides, in rows 2 to 49 and 99 to 52; rows 50 and 51 show sample 50.
TEST(DoppiaFotoOrizzontale, PutsTheSamplesOfAPictureAHundredHigh)
{
    const Surface old = Varied(4, 100);
    JournalRun run(old);
    const Surface& result = run.Apply(Orizdop).work.Picture1;
    // Rows 1, 3, ... 99, columns 1, 2, 3 and the column outside of each.
    ASSERT_EQ(run.written.size(), 4U * 50);
    EXPECT_EQ(run.written[0], old.Point(1, 1));
    EXPECT_EQ(run.written[3], Outside);
    EXPECT_EQ(run.written[4], old.Point(1, 3));
    for (int y = 1; y <= 48; ++y) {
        EXPECT_EQ(result.Point(2, y + 1), old.Point(2, 2 * y - 1));
        EXPECT_EQ(result.Point(2, 100 - y), old.Point(2, 2 * y - 1));
    }
    EXPECT_EQ(result.Point(2, 50), old.Point(2, 99));
    EXPECT_EQ(result.Point(2, 51), old.Point(2, 99));
}

TEST(DoublePhoto, MakesTheSizeInUseEvenForGoodAndKeepsTheCanvas)
{
    for (auto* const effect : {Vertdop, Orizdop}) {
        EffectRun run(Varied(101, 51));
        run.Apply(effect).Apply(effect);
        EXPECT_EQ(run.work.Larg, 100);
        EXPECT_EQ(run.work.Alt, 50);
        EXPECT_EQ(run.work.Picture1.Width(), 101);
        EXPECT_EQ(run.work.Picture1.Height(), 51);
    }
}

TEST(DoublePhoto, LeavesAPictureOfOnePixelAloneAndTellsNothing)
{
    for (auto* const effect : {Vertdop, Orizdop}) {
        EffectRun run({"a"});
        EXPECT_EQ(run.Apply(effect).Result(), Letters{"a"});
        EXPECT_EQ(run.work.Larg, 0);
        EXPECT_EQ(run.work.Alt, 0);
        EXPECT_TRUE(run.progress.values.empty());
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

TEST(DoppiaFotoVerticale, TellsEveryRow)
{
    EffectRun run(Varied(6, 51));
    EXPECT_EQ(run.Apply(Vertdop).progress.values, Steps(1, 50));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

TEST(DoppiaFotoOrizzontale, TellsEverySecondRow)
{
    EffectRun run(Varied(6, 100));
    EXPECT_EQ(run.Apply(Orizdop).progress.values, Steps(2, 100, 2));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

TEST(DoublePhoto, CapturesBeforeTheWindowIsShown)
{
    for (auto* const effect : {Vertdop, Orizdop})
        EXPECT_EQ(JournalRun(Varied(5, 5)).Apply(effect).diary,
                  (Diary{"create", "finish", "show", "open", "close", "kill"}));
}

}  // namespace
}  // namespace pixano::test
