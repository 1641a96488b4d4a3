#include "effects/geometry/mapped.h"
#include "support/journal_store.h"

namespace pixano::test {
namespace {

const Letters Even{"abcd", "efgh", "ijkl", "mnop"};
const Letters Odd{"abcde", "fghij", "klmno", "pqrst", "uvwxy"};

TEST(RiflVertSinistro, MirrorsTheLeftHalfOntoTheRight)
{
    EXPECT_EQ(EffectRun(Even).Apply(Sinvert).Result(), (Letters{"abba", "effe", "ijji", "mnnm"}));
}

// Larg / 2 - 1 = Alt / 2 - 1 = 1.5: columns 0 and 1, rows 0 and 1 with rows 2 and 3.
TEST(RiflVertSinistro, LeavesTheLastRowOfAnOddPictureAlone)
{
    EXPECT_EQ(EffectRun(Odd).Apply(Sinvert).Result(),
              (Letters{"abcba", "fghgf", "klmlk", "pqrqp", "uvwxy"}));
}

TEST(RiflVertSinistro, TakesEveryPixelFromItsPlace)
{
    ExpectOnAllSizes(Sinvert, [](const Surface& old, int column, int row) {
        const bool lastOfOdd = old.Height() % 2 == 1 && row == old.Height() - 1;
        const int mirrored = old.Width() - 1 - column;
        return old.Point(mirrored < column && !lastOfOdd ? mirrored : column, row);
    });
}

TEST(RiflVertDestro, MirrorsTheRightHalfOntoTheLeft)
{
    EXPECT_EQ(EffectRun(Even).Apply(Desvert).Result(), (Letters{"dccd", "hggh", "lkkl", "poop"}));
}

TEST(RiflVertDestro, ReachesEveryRowOfAnOddPicture)
{
    EXPECT_EQ(EffectRun(Odd).Apply(Desvert).Result(),
              (Letters{"edcde", "jihij", "onmno", "tsrst", "yxwxy"}));
}

TEST(RiflVertDestro, TakesEveryPixelFromItsPlace)
{
    ExpectOnAllSizes(Desvert, [](const Surface& old, int column, int row) {
        return old.Point(std::max(column, old.Width() - 1 - column), row);
    });
}

// Rows 0, 1, 2 go to rows 4 (outside), 3 and 2.
TEST(RiflOrizSuperiore, MirrorsTheTopHalfOntoTheBottomOneRowTooLow)
{
    EXPECT_EQ(EffectRun(Even).Apply(Super).Result(), (Letters{"abcd", "efgh", "ijkl", "efgh"}));
}

// Rows 0, 1, 2 go to rows 5 (outside), 4 and 3.
TEST(RiflOrizSuperiore, MirrorsAnOddPicture)
{
    EXPECT_EQ(EffectRun(Odd).Apply(Super).Result(),
              (Letters{"abcde", "fghij", "klmno", "klmno", "fghij"}));
}

TEST(RiflOrizSuperiore, TakesEveryPixelFromItsPlace)
{
    ExpectOnAllSizes(Super, [](const Surface& old, int column, int row) {
        return old.Point(column, row > old.Height() / 2 ? old.Height() - row : row);
    });
}

TEST(RiflOrizSuperiore, SetsTheRowsOfAPictureAHundredHigh)
{
    const Surface old = Varied(10, 100);
    EffectRun run(old);
    run.Apply(Super);
    for (int column = 0; column < 10; ++column) {
        EXPECT_EQ(run.work.Picture1.Point(column, 99), old.Point(column, 1));
        EXPECT_EQ(run.work.Picture1.Point(column, 51), old.Point(column, 49));
        EXPECT_EQ(run.work.Picture1.Point(column, 0), old.Point(column, 0));
    }
    EXPECT_EQ(run.progress.values, Steps(0, 100, 2));
}

TEST(RiflOrizInferiore, MirrorsTheBottomHalfOntoTheTop)
{
    EXPECT_EQ(EffectRun(Even).Apply(Infer).Result(), (Letters{"mnop", "ijkl", "ijkl", "mnop"}));
}

TEST(RiflOrizInferiore, MirrorsAnOddPictureAboutItsMiddleRow)
{
    EXPECT_EQ(EffectRun(Odd).Apply(Infer).Result(),
              (Letters{"uvwxy", "pqrst", "klmno", "pqrst", "uvwxy"}));
}

TEST(RiflOrizInferiore, TakesEveryPixelFromItsPlace)
{
    ExpectOnAllSizes(Infer, [](const Surface& old, int column, int row) {
        return old.Point(column, std::max(row, old.Height() - 1 - row));
    });
}

TEST(Reflections, ThreeOfThemTwiceAreLikeOnce)
{
    for (auto* const effect : {Sinvert, Desvert, Infer})
        for (const auto [width, height] : Sizes) {
            EffectRun run(Varied(width, height));
            const Surface once = run.Apply(effect).work.Picture1;
            EXPECT_EQ(run.Apply(effect).work.Picture1, once);
        }
}

struct Told {
    void (*effect)(Work&);
    std::vector<double> even;
    std::vector<double> odd;
    std::vector<double> single;
};

// Rows 0 to Alt / 2 - 1; 0 to Alt / 2; 0 to Int(Alt / 2); Int(Alt / 2) to Alt, for Alt = 4, 5, 1.
const std::vector<Told> AllTold{
    {Sinvert, {0, 2}, {0, 2}, {}},
    {Desvert, {0, 2, 4}, {0, 2, 4}, {0}},
    {Super, {0, 2, 4}, {0, 2, 4}, {0}},
    {Infer, {1, 3, 5}, {0, 2, 4, 6}, {0, 2}},
};

TEST(Reflections, TellTwoRowsAPassAfterTheWindowIsShown)
{
    for (const Told& told : AllTold) {
        EffectRun run(Even);
        EXPECT_EQ(run.Apply(told.effect).progress.values, told.even);
        EXPECT_EQ(run.progress.shownAfter, 0);
        run.Load(Drawn(Odd));
        EXPECT_EQ(run.Apply(told.effect).progress.values, told.odd);
        run.Load(Drawn({"a"}));
        EXPECT_EQ(run.Apply(told.effect).progress.values, told.single);
    }
}

TEST(RiflOrizInferiore, TellsOneToAHundredAndOneOnAPictureAHundredHigh)
{
    EffectRun run(Varied(3, 100));
    EXPECT_EQ(run.Apply(Infer).progress.values, Steps(1, 101, 2));
}

TEST(Reflections, MakeNoPixelFile)
{
    for (const Told& told : AllTold)
        EXPECT_EQ(JournalRun(Odd).Apply(told.effect).diary, Diary{"show"});
}

struct Beyond {
    void (*effect)(Work&);
    Letters result;
};

// A canvas one column and one row larger than Larg = Alt = 4, as an earlier effect leaves it: what
// reaches column or row 4 finds pixels there.
const std::vector<Beyond> AllBeyond{
    {Sinvert, {"abbae", "fggfj", "kllko", "pqqpt", "uvwxy"}},
    {Desvert, {"dccde", "ihhij", "nmmno", "srrst", "xwwxy"}},  // rows to 2 + 2
    {Super, {"abcde", "fghij", "klmno", "fghij", "abcde"}},    // row 0 to row 4
    {Infer, {"pqrst", "klmno", "klmno", "pqrst", "uvwxy"}},    // columns to 2 + Int(4 / 1.6)
};

TEST(Reflections, ReachPixelsOfTheCanvasBeyondTheSizeInUse)
{
    for (const Beyond& beyond : AllBeyond) {
        EffectRun run(Odd);
        run.work.Larg = 4;
        run.work.Alt = 4;
        EXPECT_EQ(run.Apply(beyond.effect).Result(), beyond.result);
    }
}

// Larg = 100, canvas far wider: the second band of "Inferiore" ends at 50 + Int(62.5) = 112.
TEST(RiflOrizInferiore, CopiesColumnsUpToHalfAndFiveEighthsOfTheWidth)
{
    const Surface old = Varied(120, 2);
    EffectRun run(old);
    run.work.Larg = 100;
    run.Apply(Infer);
    for (int column = 0; column < 120; ++column)
        EXPECT_EQ(run.work.Picture1.Point(column, 0), old.Point(column, column <= 112 ? 1 : 0));
}

}  // namespace
}  // namespace pixano::test
