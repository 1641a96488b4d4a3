#include "canvas/captures.h"
#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "support/reference_random.h"
#include "support/values.h"

#include <algorithm>
#include <array>

namespace pixano::test {
namespace {

// A row's run takes two readings of the timer before the effect: the generator's own and the
// reseeding. The scripted one is the second.
EffectRun& ApplyRow(EffectRun& run, const char* name)
{
    return run.Apply(*FindEffect(name));
}

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

struct Offset {
    int dx;
    int dy;
};

bool IsOffset(std::uint64_t reading, Offset offset)
{
    ReferenceRandom random(reading);
    return random.Whole(20) - 10 == offset.dx && random.Whole(20) - 10 == offset.dy;
}

int StepAt(std::uint64_t reading)
{
    return ReferenceRandom(reading).Whole(38) + 2;
}

/// A timer for a run of "Distorsione 2" with that tile step and those offsets of its first tiles.
std::uint64_t SeedOfTiles(int step, const std::vector<Offset>& offsets)
{
    const auto reading = FirstReadingWhere([&](std::uint64_t first) {
        if (StepAt(first) != step) return false;
        std::uint64_t tile = first;
        return std::all_of(offsets.begin(), offsets.end(),
                           [&tile](Offset offset) { return IsOffset(++tile, offset); });
    });
    return reading - 1;
}

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

/// The effect told tile by tile, pixel by pixel.
Sheet Shaken(const Surface& picture, std::uint64_t seed)
{
    const Sheet before(picture);
    Sheet after(picture);
    ReferenceRandom random(seed + 1);
    const int s = random.Whole(38) + 2;
    const int w = picture.Width();
    const int h = picture.Height();
    for (int y = 0; 2 * y <= 2 * (h - 1) - s; y += s)
        for (int x = 0; 2 * x <= 2 * (w - 1) - s; x += s) {
            random.Randomize();
            const int dx = random.Whole(20) - 10;
            const int dy = random.Whole(20) - 10;
            for (int n = 0; n < (s + 1) * (s + 1); ++n) {
                const int i = x + n / (s + 1);
                const int j = y + n % (s + 1);
                if (i > w || j > h) continue;
                const int u = std::min(std::max(i + dx, 0), w - 1);
                const int v = std::min(std::max(j + dy, 0), h - 1);
                after.Paint(u, v, before.Has(i, j) ? before.At(i, j) : 0);
            }
        }
    return after;
}

TEST(Distorsione2, EveryTileOnAllSizes)
{
    for (const Size size : SmallSizes)
        for (const std::uint64_t seed : {1, 2, 3, 4, 5}) {
            const Surface picture = Varied(size.width, size.height);
            EffectRun run(picture, seed);
            ApplyRow(run, "Distorsione 2");
            EXPECT_TRUE(Shaken(picture, seed).Shows(run.work.Picture1))
                << size.width << "x" << size.height << ", seed " << seed;
        }
}

TEST(Distorsione2, EveryTileAtTheSmallestAndTheLargestStep)
{
    for (const int step : {2, 39}) {
        const Surface picture = Varied(101, 81);
        const std::uint64_t seed = SeedOfTiles(step, {});
        EffectRun run(picture, seed);
        ApplyRow(run, "Distorsione 2");
        EXPECT_TRUE(Shaken(picture, seed).Shows(run.work.Picture1)) << step;
    }
}

TEST(Distorsione2, EveryTileOnTheLargestPictures)
{
    for (const Size size : MatrixSizes) {
        const Surface picture = Varied(size.width, size.height);
        const std::uint64_t seed = SeedOfTiles(8, {});
        EffectRun run(picture, seed);
        ApplyRow(run, "Distorsione 2");
        EXPECT_TRUE(Shaken(picture, seed).Shows(run.work.Picture1));
        EXPECT_FALSE(Sheet(picture).Shows(run.work.Picture1));
    }
}

TEST(Distorsione2, FailsInItsCopyBeyond1501PixelsBeforeAnythingIsShown)
{
    for (const Size size : {Size{1502, 8}, Size{8, 1502}}) {
        const Surface picture = Varied(size.width, size.height);
        EffectRun run(picture, 70);
        EXPECT_EQ(FaultOf(run, DisDue), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(run.work.Picture1, picture);
        EXPECT_EQ(run.progress.shownAfter, -1);
        EXPECT_EQ(run.work.Rnd(), ReferenceRandom(70).Rnd()) << "the tile step was drawn";
    }
}

// The copy of 1501 columns fits. With a step of 8 the last tile runs from 1496 to 1504 and reads
// column 1501; with a step of 2 from 1498 to 1500.
TEST(Distorsione2, FailsAt1501PixelsOnlyWhereATileReachesTheEdge)
{
    for (const Size size : {Size{1501, 8}, Size{8, 1501}}) {
        const Surface picture = Varied(size.width, size.height);
        EffectRun wide(picture, SeedOfTiles(8, {}));
        wide.work.Randomize();
        EXPECT_EQ(FaultOf(wide, DisDue), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(wide.progress.shownAfter, 0);
        EXPECT_FALSE(Sheet(picture).Shows(wide.work.Picture1)) << "the tiles before are moved";

        const std::uint64_t narrow = SeedOfTiles(2, {});
        EffectRun run(picture, narrow);
        ApplyRow(run, "Distorsione 2");
        EXPECT_TRUE(Shaken(picture, narrow).Shows(run.work.Picture1));
    }
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
