// What the enlargements capture of a picture, and what they tell of their progress.
#include "effects/geometry/mapped.h"
#include "support/journal_store.h"

namespace pixano::test {
namespace {

TEST(IngrCentro, CapturesTheMiddle)
{
    JournalRun run({"abcdefg", "hijklmn", "opqrstu", "vwxyzAB", "CDEFGHI", "JKLMNOP", "QRSTUVW"});
    EXPECT_EQ(run.Apply(Incentro).written, ColoursOf("ijklmpqrstwxyzADEFGHKLMNO"));
}

TEST(Enlargements, CaptureTheRegionWithTheOutsideItReaches)
{
    const Letters rows{"abc", "def"};  // rows 0 to 1, 1 to 2; columns 0 to 1.5, 1.5 to 3
    const auto captured = [&rows](void (*effect)(Work&)) {
        return JournalRun(rows).Apply(effect).written;
    };
    EXPECT_EQ(captured(Top), ColoursOf("abc!def!!!!!"));
    EXPECT_EQ(captured(Bottom), ColoursOf("def!!!!!"));
    EXPECT_EQ(captured(Sini), ColoursOf("abde!!"));
    EXPECT_EQ(captured(Destro), ColoursOf("bcef!!"));
    EXPECT_EQ(captured(Sintop), ColoursOf("abde"));
    EXPECT_EQ(captured(Destop), ColoursOf("bcef"));
    EXPECT_EQ(captured(Sinbot), ColoursOf("de!!"));
    EXPECT_EQ(captured(Desbot), ColoursOf("ef!!"));
}

TEST(IngrDestro, ReadsFiftyColumnsOfAPictureNinetyNineWide)
{
    const Surface old = Varied(99, 99);
    JournalRun run(old);
    run.Apply(Destro);
    ASSERT_EQ(run.written.size(), 100U * 50);
    for (int k = 0; k < 50; ++k) {
        EXPECT_EQ(run.written[static_cast<std::size_t>(k)], old.Point(49 + k, 0));
        EXPECT_EQ(run.work.Picture1.Point(2 * k, 98), old.Point(49 + k, 98));
    }
}

TEST(IngrBottom, ReadsFiftyRowsOfAPictureNinetyNineHigh)
{
    const Surface old = Varied(99, 99);
    JournalRun run(old);
    run.Apply(Bottom);
    ASSERT_EQ(run.written.size(), 50U * 100);
    EXPECT_EQ(run.written[0], old.Point(0, 49));
    EXPECT_EQ(run.written[49 * 100], old.Point(0, 98));
    for (int y = 0; y < 98; y += 2)
        EXPECT_EQ(run.work.Picture1.Point(7, y), run.work.Picture1.Point(7, y + 1));
}

TEST(IngrTopSinistro, ReadsFiftyOneBySideOfAPictureAHundredBySide)
{
    const Surface old = Varied(100, 100);
    JournalRun run(old);
    run.Apply(Sintop);
    ASSERT_EQ(run.written.size(), 51U * 51);
    EXPECT_EQ(run.written[50], old.Point(50, 0));
    EXPECT_EQ(run.work.Picture1.Point(99, 99), old.Point(49, 49));
}

// Every row is told while it is captured; all of that is over when the window appears.
TEST(IngrSinistro, TellsItsCaptureBeforeTheWindowIsShownAndNothingAfterwards)
{
    for (const int height : {1, 4, 5}) {
        EffectRun run(Varied(6, height));
        EXPECT_EQ(run.Apply(Sini).progress.values, Steps(0, height));
        EXPECT_EQ(run.progress.shownAfter, height + 1);
    }
}

TEST(IngrDestro, TellsEveryRow)
{
    EffectRun run(Varied(6, 5));
    EXPECT_EQ(run.Apply(Destro).progress.values, Steps(0, 5));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

TEST(Enlargements, ThatDoubleRowsTellEverySecondRow)
{
    for (auto* const effect : {Top, Bottom, Sintop, Destop, Sinbot, Desbot, Incentro})
        for (const int height : {4, 5}) {
            EffectRun run(Varied(6, height));
            EXPECT_EQ(run.Apply(effect).progress.values, Steps(0, 4, 2));
            EXPECT_EQ(run.progress.shownAfter, 0);
        }
}

}  // namespace
}  // namespace pixano::test
