// "Distorsione 2" on all sizes, beside the same told tile by tile, and where it fails.
#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "effects/colour/tile_draws.h"
#include "support/values.h"

#include <algorithm>

namespace pixano::test {
namespace {

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

}  // namespace
}  // namespace pixano::test
