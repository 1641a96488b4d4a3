// "Distorsione 1": pixels that move right and down, and on when their pass meets them again.
#include "effects/colour/colour_run.h"
#include "support/reference_random.h"
#include "support/values.h"

#include <algorithm>
#include <array>

namespace pixano::test {
namespace {

/// The reading after which the draws give these moves, dx and dy in turn, each 1 to 5.
template <std::size_t N>
std::uint64_t ReadingOfMoves(const std::array<int, N>& moves)
{
    return FirstReadingWhere([&moves](std::uint64_t reading) {
        ReferenceRandom random(reading);
        return std::all_of(moves.begin(), moves.end(),
                           [&random](int move) { return random.Whole(5) + 1 == move; });
    });
}

// (0, 0) and (1, 0), then (0, 1) and (1, 1): 'a' moved to (1, 1) in row 0 moves on to (2, 2).
TEST(Distorsione1, MovesAPixelOnWhenItsPassMeetsItAgain)
{
    EffectRun run({"abcdefg", "hijklmn", "opqrstu", "vwxyzAB", "CDEFGHI", "JKLMNOP", "QRSTUVW"},
                  ReadingOfMoves<8>({1, 1, 5, 5, 1, 1, 1, 1}) - 1);
    EXPECT_EQ(
        ApplyRow(run, "Distorsione 1").Result(),
        (Letters{"abcdefg", "hajklmn", "oharstu", "vwxyzAB", "CDEFGHI", "JKLMNOb", "QRSTUVW"}));
    EXPECT_EQ(run.progress.values, Steps(0, 1));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

// (0, 0), (1, 0) and (2, 0) only.
TEST(Distorsione1, ReadsThreeColumnsOfEightAndOneRowOfSix)
{
    EffectRun run({"abcdefgh", "ijklmnop", "qrstuvwx", "yzABCDEF", "GHIJKLMN", "OPQRSTUV"},
                  ReadingOfMoves<6>({5, 5, 1, 1, 1, 5}) - 1);
    EXPECT_EQ(ApplyRow(run, "Distorsione 1").Result(),
              (Letters{"abcdefgh", "ijblmnop", "qrstuvwx", "yzABCDEF", "GHIJKLMN", "OPQcSaUV"}));
}

TEST(Distorsione1, MovesOnePixelOfSixBySix)
{
    EffectRun run({"abcdef", "ghijkl", "mnopqr", "stuvwx", "yzABCD", "EFGHIJ"},
                  ReadingOfMoves<2>({3, 2}) - 1);
    EXPECT_EQ(ApplyRow(run, "Distorsione 1").Result(),
              (Letters{"abcdef", "ghijkl", "mnoaqr", "stuvwx", "yzABCD", "EFGHIJ"}));
}

TEST(Distorsione1, ChangesNothingOnFiveColumnsOrRows)
{
    for (const Size size : {Size{5, 5}, Size{1, 1}, Size{1, 8}, Size{9, 1}, Size{5, 50}}) {
        const Surface picture = Varied(size.width, size.height);
        EffectRun run(picture);
        ApplyRow(run, "Distorsione 1");
        EXPECT_EQ(run.work.Picture1, picture);
        EXPECT_EQ(run.progress.values, Steps(0, size.height - 6));
    }
}

TEST(Distorsione1, NeverChangesTheFirstColumnAndTheFirstRow)
{
    const Surface picture = Varied(40, 30);
    EffectRun run(picture);
    ApplyRow(run, "Distorsione 1");
    for (int x = 0; x < 40; ++x)
        EXPECT_EQ(run.work.Picture1.Point(x, 0), picture.Point(x, 0));
    for (int y = 0; y < 30; ++y)
        EXPECT_EQ(run.work.Picture1.Point(0, y), picture.Point(0, y));
}

TEST(Distorsione1, EveryMoveOnAllSizes)
{
    for (const Size size : SmallSizes) {
        const Surface picture = Varied(size.width, size.height);
        ReferenceRandom random(41);
        Sheet sheet(picture);
        for (int y = 0; y + 5 < size.height; ++y)
            for (int x = 0; x + 5 < size.width; ++x) {
                const int right = x + 1 + random.Whole(5);
                const int below = y + 1 + random.Whole(5);
                sheet.Paint(right, below, sheet.At(x, y));
            }
        EffectRun run(picture, 40);
        ApplyRow(run, "Distorsione 1");
        EXPECT_TRUE(sheet.Shows(run.work.Picture1)) << size.width << "x" << size.height;
        EXPECT_EQ(run.work.Rnd(), random.Rnd()) << "draws left or taken too many";
    }
}

}  // namespace
}  // namespace pixano::test
