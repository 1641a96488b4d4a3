#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "support/reference_random.h"
#include "support/values.h"

#include <cmath>

namespace pixano::test {
namespace {

constexpr int ForbiciSelector = 5;
// With a first draw of exactly one half these strengths stretch by 0.25 and by 0.5 a row:
// (51 + 49) / 2 / 200 and (51 + 149) / 2 / 200.
constexpr double ByAQuarter = -10000;
constexpr double ByAHalf = -30000;

std::uint64_t SeedOfOneHalf()
{
    static const std::uint64_t seed = FirstReadingWhere(
        [](std::uint64_t reading) { return ReferenceRandom(reading).Rnd() == 0.5; });
    return seed;
}

// Larg = 6, Alt = 3. Row 0 steps by 0.5 and reads 0, 1, 2, 2, 2, 3: "abcccd", into row 0.
// Row 1 by 1: 1, 2, 3, 4, 5, 6: "hijkl~", into rows 1 and 2. Row 2 by 1.5: 2, 3, 4, 6, then 7.5 is
// cut off: "opq~", into rows 2 and 1. Row 3, outside, by 2: white from 0 to 2, into row 0.
TEST(Forbici, OddHeightWorkedOutByHand)
{
    EffectRun run({"abcdef", "ghijkl", "mnopqr"}, SeedOfOneHalf());
    Use(run, ForbiciSelector, ByAHalf).Apply(Forbici);
    EXPECT_EQ(run.Result(), (Letters{"~~~ccd", "opq~l~", "opq~l~"}));
}

// Larg = Alt = 4. "abcc" into row 0; "fgh~" into rows 1 and 3; "kl" into row 2, its own mirror row;
// "o~" into rows 3 and 1; one white pixel into row 0.
TEST(Forbici, EvenSidesWorkedOutByHand)
{
    EffectRun run({"abcd", "efgh", "ijkl", "mnop"}, SeedOfOneHalf());
    Use(run, ForbiciSelector, ByAHalf).Apply(Forbici);
    EXPECT_EQ(run.Result(), (Letters{"~bcc", "o~h~", "klkl", "o~h~"}));
}

// 0.25, 0.5, 0.75, 1, 1.25, 1.5, 1.75, 2 read 0, 0, 1, 1, 1, 2, 2, 2. The row outside would paint
// row 0 last; its first step, 37 x 0.25, is beyond column 8 already.
TEST(Forbici, FirstRowAtAStretchOfOneQuarter)
{
    Letters rows(36, "ijklmnop");
    rows[0] = "abcdefgh";
    EffectRun run(rows, SeedOfOneHalf());
    Use(run, ForbiciSelector, ByAQuarter).Apply(Forbici);
    EXPECT_EQ(run.Result()[0], "aabbbccc");
}

/// The stretch that the strength gives: `rows` is 51 - Int(P' / 200).
double StretchOf(double rows, std::uint64_t seed)
{
    return rows * ReferenceRandom(seed).Rnd() / 200;
}

/// The effect told row by row: which source column each place takes, up to the cut.
Sheet Cut(const Surface& picture, double stretch)
{
    const Sheet before(picture);
    Sheet after(picture);
    const int w = picture.Width();
    const int h = picture.Height();
    double step = 0;
    for (int y = 0; y <= h; ++y) {
        step += stretch;
        double at = step;
        for (int x = 0; x <= w && at <= w; ++x, at += step) {
            const double below = std::floor(at);
            int column = static_cast<int>(below);
            if (at - below > 0.5 || (at - below == 0.5 && column % 2 == 1)) ++column;
            after.Paint(x, y, before.At(column, y));
            after.Paint(x, h - y, before.At(column, y));
        }
    }
    return after;
}

// Row `Alt` - r is drawn over row r last, and both alike as far as it goes; here it goes all the
// way, the stretch being small.
TEST(Forbici, MakesMirroredRowsAlikeUpToTheCutOfTheUpperOne)
{
    const std::uint64_t seed = 12;
    const double stretch = StretchOf(50, seed);
    EffectRun run(Varied(40, 31), seed);
    Use(run, ForbiciSelector, 200).Apply(Forbici);
    for (int r = 1; 2 * r < 31; ++r)
        for (int x = 0; x < 40 && (x + 1) * (r + 1) * stretch <= 40; ++x)
            EXPECT_EQ(run.work.Picture1.Point(x, r), run.work.Picture1.Point(x, 31 - r));
}

TEST(Forbici, RaisesOnlyStrengthsBelowTwoHundred)
{
    struct Case {
        double strength;
        double rows;
    };
    const Surface picture = Varied(64, 48);
    for (const auto& [strength, rows] :
         {Case{0, 50}, Case{199.5, 50}, Case{200, 50}, Case{399, 50}, Case{400, 49}, Case{9999, 2},
          Case{10000, 1}, Case{-200, 51}, Case{-1, 51}}) {
        EffectRun run(picture, 6);
        Use(run, ForbiciSelector, strength).Apply(Forbici);
        EXPECT_TRUE(Cut(picture, StretchOf(rows, 6)).Shows(run.work.Picture1)) << strength;
    }
}

TEST(Forbici, EveryRowOnAllSizes)
{
    for (const auto& sizes : {SmallSizes, MatrixSizes})
        for (const Size size : sizes)
            for (const std::uint64_t seed : {1, 2, 3}) {
                const Surface picture = Varied(size.width, size.height);
                EffectRun run(picture, seed);
                Use(run, ForbiciSelector, 5000).Apply(Forbici);
                EXPECT_TRUE(Cut(picture, StretchOf(26, seed)).Shows(run.work.Picture1))
                    << size.width << "x" << size.height << ", seed " << seed;
            }
}

// At a stretch of 26 / 2 / 200 = 0.065 row 4, added up, passes column 59 at 19.49999999999998 and
// reads column 19; 60 steps of 0.325 would be 19.5 and read column 20. At 35 / 2 / 200 it is the
// order of product and quotient that decides about column 23.
TEST(Forbici, AddsUpStepsAndPlaces)
{
    const Surface picture = Varied(101, 81);
    EffectRun run(picture, SeedOfOneHalf());
    Use(run, ForbiciSelector, 5000).Apply(Forbici);
    EXPECT_EQ(run.work.Picture1.Point(59, 4), picture.Point(19, 4));
    EXPECT_TRUE(Cut(picture, StretchOf(26, SeedOfOneHalf())).Shows(run.work.Picture1));

    EffectRun other(picture, SeedOfOneHalf());
    Use(other, ForbiciSelector, 3200).Apply(Forbici);
    EXPECT_TRUE(Cut(picture, StretchOf(35, SeedOfOneHalf())).Shows(other.work.Picture1));
}

// From 10200 on nothing is stretched: every place takes column 0, the lower row of two wins, and
// the row outside paints row 0 white.
TEST(Forbici, DrawsTheFirstColumnAlongTheRowsWithoutStretch)
{
    EffectRun run({"ab", "cd", "ef"});
    Use(run, ForbiciSelector, 10200).Apply(Forbici);
    EXPECT_EQ(run.Result(), (Letters{"~~", "ee", "ee"}));
}

// From 10400 on the row runs backwards and leaves the matrix. With a draw of one half a row 0 of
// step -0.0025 is at -0.5, still index 0, in column 199, and beyond in column 200.
TEST(Forbici, FailsWhereARowRunsBackwardsOutOfTheMatrix)
{
    Surface picture = Varied(300, 4);
    EffectRun run(picture, SeedOfOneHalf());
    Use(run, ForbiciSelector, 10400);
    EXPECT_EQ(FaultOf(run, Forbici), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.progress.values, Steps(0, 0));
    EXPECT_EQ(run.progress.shownAfter, 0);
    for (int x = 0; x <= 190; ++x)
        EXPECT_EQ(run.work.Picture1.Point(x, 0), picture.Point(0, 0));
    for (int x = 210; x < 300; ++x)
        EXPECT_EQ(run.work.Picture1.Point(x, 0), picture.Point(x, 0));
}

TEST(Forbici, FailsBeyondTheMatrixBeforeAnythingIsShown)
{
    for (const Size size : {Size{1501, 8}, Size{8, 1501}}) {
        const Surface picture = Varied(size.width, size.height);
        EffectRun run(picture);
        Use(run, ForbiciSelector, 5000);
        EXPECT_EQ(FaultOf(run, Forbici), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(run.work.Picture1, picture);
        EXPECT_EQ(run.progress.shownAfter, -1);
    }
}

// One reading a row from 0 to 3, two draws after each.
TEST(Forbici, ReseedsInEveryRowAndDrawsTwice)
{
    EffectRun run(Varied(5, 3), 70);
    Use(run, ForbiciSelector, 5000).Apply(Forbici);
    ReferenceRandom random(74);
    random.Rnd();
    random.Rnd();
    EXPECT_EQ(run.work.Rnd(), random.Rnd());
    EXPECT_EQ(run.progress.values, Steps(0, 3));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

}  // namespace
}  // namespace pixano::test
