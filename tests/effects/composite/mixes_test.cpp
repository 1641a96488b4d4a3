#include "effects/composite/composite.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

// Column 1 takes column 4 of 5, column 3 takes column 2.
TEST(MixVerticale, TakesOddColumnsFromTheMirrorImageOfAnOddWidth)
{
    EXPECT_EQ(EffectRun({"abcde", "fghij"}).Apply(MixVert).Result(), (Letters{"aecce", "fjhhj"}));
}

// Column 1 takes column 5 of 6, column 3 itself, column 5 column 1.
TEST(MixVerticale, ExchangesOddColumnsOfAnEvenWidth)
{
    EXPECT_EQ(EffectRun({"abcdef", "ghijkl"}).Apply(MixVert).Result(),
              (Letters{"afcdeb", "glijkh"}));
}

TEST(MixOrizzontale, TakesOddRowsFromTheUpsideDownImageOfAnOddHeight)
{
    EXPECT_EQ(EffectRun({"ab", "cd", "ef", "gh", "ij"}).Apply(MixOriz).Result(),
              (Letters{"ab", "ij", "ef", "ef", "ij"}));
}

TEST(MixOrizzontale, ExchangesOddRowsOfAnEvenHeight)
{
    EXPECT_EQ(EffectRun({"abc", "def", "ghi", "jkl"}).Apply(MixOriz).Result(),
              (Letters{"abc", "jkl", "ghi", "def"}));
}

// Odd rows come whole from row Alt - Y; in even rows column 1 takes column 3 and the reverse.
TEST(MixMultifoto, MixesBothWaysAndTheRowsWin)
{
    EXPECT_EQ(EffectRun({"abcd", "efgh", "ijkl", "mnop"}).Apply(MixMultif).Result(),
              (Letters{"adcb", "mnop", "ilkj", "efgh"}));
    EXPECT_EQ(EffectRun({"abc", "def", "ghi", "jkl", "mno"}).Apply(MixMultif).Result(),
              (Letters{"acc", "mno", "gii", "ghi", "moo"}));
}

TEST(MixVerticale, TwiceRestoresAnEvenWidthAndIsLikeOnceOnAnOddOne)
{
    const Surface even = Varied(16, 7);
    EXPECT_EQ(EffectRun(even).Apply(MixVert).Apply(MixVert).work.Picture1, even);
    const Surface odd = Varied(101, 81);
    EXPECT_EQ(EffectRun(odd).Apply(MixVert).Apply(MixVert).work.Picture1,
              EffectRun(odd).Apply(MixVert).work.Picture1);
}

TEST(MixOrizzontale, TwiceRestoresAnEvenHeightAndIsLikeOnceOnAnOddOne)
{
    const Surface even = Varied(7, 16);
    EXPECT_EQ(EffectRun(even).Apply(MixOriz).Apply(MixOriz).work.Picture1, even);
    const Surface odd = Varied(99, 99);
    EXPECT_EQ(EffectRun(odd).Apply(MixOriz).Apply(MixOriz).work.Picture1,
              EffectRun(odd).Apply(MixOriz).work.Picture1);
}

TEST(Mixes, KeepColumn0OrRow0)
{
    for (const auto& [width, height] : {std::pair(7, 5), std::pair(16, 16), std::pair(1, 9)}) {
        const Surface before = Varied(width, height);
        const Surface vert = EffectRun(before).Apply(MixVert).work.Picture1;
        const Surface oriz = EffectRun(before).Apply(MixOriz).work.Picture1;
        for (int y = 0; y < height; ++y)
            EXPECT_EQ(vert.Point(0, y), before.Point(0, y));
        for (int x = 0; x < width; ++x)
            EXPECT_EQ(oriz.Point(x, 0), before.Point(x, 0));
    }
}

TEST(Mixes, LeaveOnePixelAlone)
{
    for (auto* const effect : {MixVert, MixOriz, MixMultif})
        EXPECT_EQ(EffectRun({"a"}).Apply(effect).Result(), (Letters{"a"}));
}

TEST(Mixes, OfOneRowOrOneColumn)
{
    EXPECT_EQ(EffectRun({"abcd"}).Apply(MixOriz).Result(), (Letters{"abcd"}));
    EXPECT_EQ(EffectRun({"abcd"}).Apply(MixMultif).Result(), (Letters{"adcb"}));
    EXPECT_EQ(EffectRun({"a", "b", "c", "d"}).Apply(MixVert).Result(),
              (Letters{"a", "b", "c", "d"}));
    EXPECT_EQ(EffectRun({"a", "b", "c", "d"}).Apply(MixMultif).Result(),
              (Letters{"a", "d", "c", "b"}));
}

// After an effect that made the size even, column Larg and row Alt lie on the canvas.
TEST(Mixes, PaintColumnLargAndRowAltWhereTheCanvasHasThem)
{
    EffectRun oriz({"abcde", "fghij", "klmno", "pqrst"});
    oriz.work.Larg = 4;
    EXPECT_EQ(oriz.Apply(MixOriz).Result(), (Letters{"abcde", "pqrst", "klmno", "fghij"}));
    // Larg - X with the smaller Larg: columns 1 and 3 change places.
    EffectRun vert({"abcde", "fghij", "klmno"});
    vert.work.Larg = 4;
    vert.work.Alt = 2;
    EXPECT_EQ(vert.Apply(MixVert).Result(), (Letters{"adcbe", "fihgj", "knmlo"}));
}

// The rows that are exchanged come with column Larg; in even rows it stays, as 4 is even.
TEST(MixMultifoto, PaintsColumnLargWhereTheCanvasHasIt)
{
    EffectRun run({"abcde", "fghij", "klmno", "pqrst"});
    run.work.Larg = 4;
    EXPECT_EQ(run.Apply(MixMultif).Result(), (Letters{"adcbe", "pqrst", "knmlo", "fghij"}));
}

// Columns 1 and 3, which is column Larg, take columns 2 and 0.
TEST(MixVerticale, PaintsAnOddColumnLargWhereTheCanvasHasIt)
{
    EffectRun run({"abcd"});
    run.work.Larg = 3;
    EXPECT_EQ(run.Apply(MixVert).Result(), (Letters{"acca"}));
}

TEST(Mixes, TellOneProgressValueARowAfterTheCapture)
{
    for (auto* const effect : {MixVert, MixOriz, MixMultif}) {
        EffectRun run(Varied(4, 6));
        run.Apply(effect);
        EXPECT_EQ(run.progress.values, Steps(0, 6));
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

TEST(Mixes, FailBeyondTheMatrixBeforeAnythingIsShown)
{
    for (auto* const effect : {MixVert, MixOriz, MixMultif}) {
        for (const Surface& picture : {Varied(1501, 8), Varied(8, 1501)}) {
            EffectRun run(picture);
            EXPECT_EQ(FaultOf(run, effect), FaultKind::SubscriptOutOfRange);
            EXPECT_EQ(run.work.Picture1, picture);
            EXPECT_EQ(run.progress.shownAfter, -1);
        }
    }
}

TEST(Mixes, WorkAtTheFullSizeOfTheMatrix)
{
    const Surface before = Varied(1500, 1500);
    const Surface after = EffectRun(before).Apply(MixMultif).work.Picture1;
    EXPECT_EQ(after.Point(1499, 0), before.Point(1, 0));
    EXPECT_EQ(after.Point(1499, 1), before.Point(1499, 1499));
    EXPECT_EQ(after.Point(1498, 1498), before.Point(1498, 1498));
}

// A picture of one row that an earlier effect made even has no height left.
TEST(Mixes, FailWithADivisionByZeroWithoutHeight)
{
    EffectRun run({"abcd"});
    run.work.Alt = 0;
    EXPECT_EQ(FaultOf(run, MixVert), FaultKind::DivisionByZero);
    EXPECT_EQ(run.Result(), (Letters{"abcd"}));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

}  // namespace
}  // namespace pixano::test
