#include "canvas/captures.h"
#include "support/faults.h"
#include "support/journal_store.h"

namespace pixano::test {
namespace {

std::vector<Colour> Captured(void (*capture)(Work&), const Letters& rows)
{
    return JournalRun(rows).Apply(capture).written;
}

TEST(Cattura, OfOnePixelWritesItAndThreeTimesTheOutside)
{
    EXPECT_EQ(Captured(Cattura, {"a"}), ColoursOf("a!!!"));
}

TEST(Cattura, WritesRowByRowWithTheColumnAndTheRowOutside)
{
    EXPECT_EQ(Captured(Cattura, {"abc", "def"}), ColoursOf("abc!def!!!!!"));
}

TEST(Cattura, ReadsThePixelsOfALargerCanvas)
{
    JournalRun run({"abc", "def", "ghi"});
    run.work.Larg = 2;
    run.work.Alt = 1;
    EXPECT_EQ(run.Apply(Cattura).written, ColoursOf("abcdef"));
}

TEST(CatturaMez, WritesOddRowsAndColumns)
{
    EXPECT_EQ(Captured(CatturaMez, {"abcd", "efgh", "ijkl", "mnop"}), ColoursOf("fhnp"));
}

// Columns 1 and 3, rows 1 and 3: of an odd side the last one lies outside.
TEST(CatturaMez, EndsOutsideAPictureOfOddSides)
{
    EXPECT_EQ(Captured(CatturaMez, {"abc", "def", "ghi"}), ColoursOf("e!!!"));
    EXPECT_EQ(Captured(CatturaMez, {"a"}), ColoursOf("!"));
}

TEST(CatturaMez, WritesNothingWithoutHeight)
{
    JournalRun run({"ab"});
    run.work.Alt = 0;
    EXPECT_TRUE(run.Apply(CatturaMez).written.empty());
}

TEST(Captures, ToTheFileCloseItAndLeaveTheCanvasAlone)
{
    const Surface picture = Varied(5, 4);
    for (auto* const capture : {Cattura, CatturaMez}) {
        JournalRun run(picture);
        EXPECT_EQ(run.Apply(capture).diary, (Diary{"create", "finish", "kill"}));
        EXPECT_EQ(run.work.Picture1, picture);
    }
}

TEST(CattuVett, FillsColumnsAndRowsWithTheOutsideBesideThem)
{
    JournalRun run({"abc", "def"});
    run.Apply(CattuVett);
    const Letters rows{"abc!", "def!", "!!!!"};
    for (int y = 0; y <= 2; ++y) {
        const std::vector<Colour> expected = ColoursOf(rows[static_cast<std::size_t>(y)]);
        for (int x = 0; x <= 3; ++x)
            EXPECT_EQ(run.work.Vettore(x, y), expected[static_cast<std::size_t>(x)]);
    }
    EXPECT_EQ(run.work.Vettore(4, 0), 0);
    EXPECT_EQ(run.work.Vettore(0, 3), 0);
    EXPECT_TRUE(run.diary.empty());
}

TEST(CattuVett, LeavesCellsBeyondThePictureAsTheyWere)
{
    EffectRun run({"abcd", "efgh", "ijkl", "mnop"});
    run.Apply(CattuVett);
    run.Load(Drawn({"z"}));
    run.Apply(CattuVett);
    EXPECT_EQ(run.work.Vettore(0, 0), ColourOf('z'));
    EXPECT_EQ(run.work.Vettore(1, 1), Outside);
    EXPECT_EQ(run.work.Vettore(2, 0), ColourOf('c'));
    EXPECT_EQ(run.work.Vettore(3, 3), ColourOf('p'));
}

TEST(CattuVett, TakesFifteenHundredBySide)
{
    EffectRun run(Surface(1500, 1500, 5));
    EXPECT_EQ(FaultIn([&] { run.Apply(CattuVett); }), std::nullopt);
    EXPECT_EQ(run.work.Vettore(1499, 1499), 5);
    EXPECT_EQ(run.work.Vettore(1500, 1500), Outside);
}

TEST(CattuVett, FailsAtTheFirstColumnAboveFifteenHundred)
{
    EffectRun run(Surface(1501, 2, 5));
    EXPECT_EQ(FaultIn([&] { run.Apply(CattuVett); }), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.work.Vettore(1500, 0), 5);
    EXPECT_EQ(run.work.Vettore(0, 1), 0);
}

TEST(CattuVett, FailsAtTheFirstRowAboveFifteenHundred)
{
    EffectRun run(Surface(2, 1501, 5));
    EXPECT_EQ(FaultIn([&] { run.Apply(CattuVett); }), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.work.Vettore(2, 1500), Outside);
}

TEST(CattuRiga, CopiesPartOfARowToAnyRow)
{
    EffectRun run({"abc", "def"});
    CattuRiga(run.work, 1, 2, 5);
    EXPECT_EQ(run.work.Vettore(0, 5), ColourOf('d'));
    EXPECT_EQ(run.work.Vettore(1, 5), ColourOf('e'));
    EXPECT_EQ(run.work.Vettore(2, 5), 0);
    EXPECT_EQ(run.work.Vettore(0, 1), 0);
}

}  // namespace
}  // namespace pixano::test
