// "Distorsione 2" on small pictures: tiles that overlap, reach outside and pile up on the edges.
#include "canvas/captures.h"
#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "effects/colour/tile_draws.h"

#include <gtest/gtest.h>

#include <string>

namespace pixano::test {
namespace {

// One tile of the whole picture, moved right by one and up by one. Column 0 is painted over column
// 1, then column 1 and at last column 2 over column 2; of rows 0 and 1, row 1 stays.
TEST(Distorsione2, PilesATileUpOnTheEdges)
{
    EffectRun run({"abc", "def", "ghi"}, SeedOfTiles(2, {{1, -1}}));
    EXPECT_EQ(ApplyRow(run, "Distorsione 2").Result(), (Letters{"adf", "dgi", "ghi"}));
    EXPECT_EQ(run.progress.values, Steps(0, 0));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

// Tiles of columns 0 to 2 and 2 to 4; the second moves left by one, over the first.
TEST(Distorsione2, LetsTheLaterTileWinWhereTwoOverlap)
{
    EffectRun run({"abcde", "fghij", "klmno"}, SeedOfTiles(2, {{0, 0}, {-1, 0}}));
    EXPECT_EQ(ApplyRow(run, "Distorsione 2").Result(), (Letters{"acdee", "fhijj", "kmnoo"}));
}

// The tile reads column 2 and row 2 too, which the copy left out, and piles them up on the edge.
TEST(Distorsione2, ReadsBlackFromCellsNeverWritten)
{
    EffectRun run({"ab", "cd"}, SeedOfTiles(2, {{0, 0}}));
    EXPECT_EQ(ApplyRow(run, "Distorsione 2").Result(), (Letters{"a#", "##"}));
}

TEST(Distorsione2, ReadsWhatAnEarlierEffectLeftBesideItsCopy)
{
    EffectRun run(Drawn({"zzz", "zzz", "zzz"}), SeedOfTiles(2, {{0, 0}}));
    CattuVett(run.work);
    run.Load(Drawn({"ab", "cd"}));
    EXPECT_EQ(ApplyRow(run, "Distorsione 2").Result(), (Letters{"az", "zz"}));
}

// A step of 4 on 3 x 3: cells 0 to 4 would be the tile, 0 to 3 are read.
TEST(Distorsione2, StopsATileAfterTheColumnAndTheRowOutside)
{
    EffectRun run({"abc", "def", "ghi"}, SeedOfTiles(4, {{0, 0}}));
    for (int i = 0; i <= 4; ++i) {
        run.work.Vettore(i, 3) = run.work.Vettore(3, i) = ColourOf('z');
        run.work.Vettore(i, 4) = run.work.Vettore(4, i) = ColourOf('x');
    }
    EXPECT_EQ(ApplyRow(run, "Distorsione 2").Result(), (Letters{"abz", "dez", "zzz"}));
}

// The first tile row starts at 0, the next ones at multiples of the step up to (Alt - 1) - S / 2.
TEST(Distorsione2, TilesEveryTwoPixelsAtTheSmallestStep)
{
    EffectRun run(Varied(9, 10), SeedOfTiles(2, {}));
    ApplyRow(run, "Distorsione 2");
    EXPECT_EQ(run.progress.values, Steps(0, 8, 2));
}

TEST(Distorsione2, TilesEveryThirtyNinePixelsAtTheLargestStep)
{
    EffectRun high(Varied(50, 59), SeedOfTiles(39, {}));  // 58 - 19.5 = 38.5
    ApplyRow(high, "Distorsione 2");
    EXPECT_EQ(high.progress.values, Steps(0, 0));
    EffectRun higher(Varied(50, 60), SeedOfTiles(39, {}));  // 59 - 19.5 = 39.5
    ApplyRow(higher, "Distorsione 2");
    EXPECT_EQ(higher.progress.values, Steps(0, 39, 39));
}

TEST(Distorsione2, LeavesAPictureNarrowerThanHalfATileAlone)
{
    const Surface picture = Varied(20, 60);
    EffectRun run(picture, SeedOfTiles(39, {}));
    ApplyRow(run, "Distorsione 2");
    EXPECT_EQ(run.work.Picture1, picture);
    EXPECT_EQ(run.progress.values, Steps(0, 39, 39));
}

/// A run whose first reseeding gives that offset.
std::uint64_t SeedOfOffset(Offset offset)
{
    return FirstReadingWhere([=](std::uint64_t reading) { return IsOffset(reading, offset); }) - 1;
}

TEST(Sposta, PilesTheFirstColumnsOfATileMovedLeftUpOnTheEdge)
{
    const std::string letters = "abcdefghijklmn";
    EffectRun run(Letters{letters}, SeedOfOffset({-10, 0}));
    for (int i = 0; i < 14; ++i)
        for (int j = 0; j <= 1; ++j)
            run.work.Vettore(i, j) = ColourOf(letters[static_cast<std::size_t>(i)]);
    sposta(run.work, 0, 0, 12);
    EXPECT_EQ(run.Result(), (Letters{"klmdefghijklmn"}));
}

TEST(Sposta, MovesATileAnywhereAndReseedsOnce)
{
    EffectRun run({"abcd", "efgh", "ijkl", "mnop"}, SeedOfOffset({1, -1}));
    const std::uint64_t reading = SeedOfOffset({1, -1}) + 1;
    CattuVett(run.work);
    sposta(run.work, 1, 1, 1);
    EXPECT_EQ(run.Result(), (Letters{"abfg", "efjk", "ijkl", "mnop"}));
    ReferenceRandom random(reading);
    random.Rnd();
    random.Rnd();
    EXPECT_EQ(run.work.Rnd(), random.Rnd());
}

}  // namespace
}  // namespace pixano::test
