#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "support/reference_random.h"
#include "support/values.h"

#include <cmath>

namespace pixano::test {
namespace {

constexpr int ColorRndSelector = 4;

/// What one trial draws; the last three only when there is a copy to paste.
struct Trial {
    bool pastes;
    int s;
    int x0 = 0;
    int y0 = 0;
    int k = 0;
};

Trial Draw(ReferenceRandom& random, int chances, int larg, int alt)
{
    Trial trial{};
    trial.pastes = std::floor(chances * random.Rnd()) == 1;
    trial.s = random.Whole(15) + 3;
    if (!trial.pastes) return trial;
    trial.x0 = static_cast<int>(std::floor(larg * random.Rnd() / 1.5)) + 1;
    trial.y0 = static_cast<int>(std::floor(alt * random.Rnd() / 1.5)) + 1;
    trial.k = random.Whole(2000000);
    return trial;
}

/// A run in which the first trial alone pastes, every third pixel, right of and below (1, 1).
std::uint64_t SeedOfOneCopy(int larg, int alt)
{
    const auto reading = FirstReadingWhere([=](std::uint64_t first) {
        ReferenceRandom random(first);
        const Trial trial = Draw(random, 57, larg, alt);
        if (!trial.pastes || trial.s != 3 || trial.x0 != 1 || trial.y0 != 1) return false;
        for (int i = 1; i <= alt; ++i) {
            random.Randomize();
            if (Draw(random, 57, larg, alt).pastes) return false;
        }
        return true;
    });
    return reading - 1;
}

Colour ShiftOfFirstCopy(std::uint64_t seed, int larg, int alt)
{
    ReferenceRandom random(seed + 1);
    return Draw(random, 57, larg, alt).k;
}

// Columns 0, 3, 6 of rows 0, 3 come to columns 2, 3, 4 of rows 2, 3.
TEST(ColorRnd, EvenSidesWorkedOutByHand)
{
    const Values before{{0xA00000, 1, 2, 0xB00000, 4, 5, 0xC00000, 7},
                        {10, 11, 12, 13, 14, 15, 16, 17},
                        {20, 21, 22, 23, 24, 25, 26, 27},
                        {0x00FFFF, 31, 32, 0xFFFFFF, 34, 35, 0x000000, 37}};
    const std::uint64_t seed = SeedOfOneCopy(8, 4);
    const Colour k = ShiftOfFirstCopy(seed, 8, 4);
    EffectRun run(Painted(before), seed);
    Use(run, ColorRndSelector, 0).Apply(ColorRnd);

    Values after = before;
    after[2] = {20, 21, 0xA00000 - k, 0xB00000 - k, 0xC00000 - k, 25, 26, 27};
    // &HFFFF and black go below zero and come round from the top.
    const auto below = [k](Colour c) { return c < k ? 0x1000000 + c - k : c - k; };
    after[3] = {0x00FFFF, 31, below(0x00FFFF), 0xFFFFFF - k, below(0), 35, 0x000000, 37};
    EXPECT_EQ(ValuesOf(run.work.Picture1), after);
    EXPECT_GT(k, 0xFFFF) << "else nothing goes below zero";
}

// Larg = 9 and Alt = 6 are multiples of 3: a fourth column and a third row of the outside colour.
TEST(ColorRnd, PastesTheColumnAndTheRowOutsideWhereItsStepMeetsThem)
{
    const std::uint64_t seed = SeedOfOneCopy(9, 6);
    const Colour k = ShiftOfFirstCopy(seed, 9, 6);
    const Surface picture = Varied(9, 6);
    EffectRun run(picture, seed);
    Use(run, ColorRndSelector, 0).Apply(ColorRnd);

    Sheet after(picture);
    after.Paint(2, 2, picture.Point(0, 0) - k);
    after.Paint(3, 2, picture.Point(3, 0) - k);
    after.Paint(4, 2, picture.Point(6, 0) - k);
    after.Paint(5, 2, -1 - k);
    after.Paint(2, 3, picture.Point(0, 3) - k);
    after.Paint(3, 3, picture.Point(3, 3) - k);
    after.Paint(4, 3, picture.Point(6, 3) - k);
    after.Paint(5, 3, -1 - k);
    for (int x = 2; x <= 5; ++x)
        after.Paint(x, 4, -1 - k);
    EXPECT_TRUE(after.Shows(run.work.Picture1));
}

/// The effect told trial by trial; `chances` is 57 - Int(P / 200).
Sheet Strewn(const Surface& picture, int chances, std::uint64_t seed)
{
    const Sheet before(picture);
    Sheet after(picture);
    ReferenceRandom random(seed);
    for (int i = 0; i <= picture.Height(); ++i) {
        random.Randomize();
        const Trial trial = Draw(random, chances, picture.Width(), picture.Height());
        if (!trial.pastes) continue;
        for (int row = 0; row * trial.s <= picture.Height(); ++row)
            for (int column = 0; column * trial.s <= picture.Width(); ++column)
                after.Paint(trial.x0 + 1 + column, trial.y0 + 1 + row,
                            before.At(column * trial.s, row * trial.s) - trial.k);
    }
    return after;
}

TEST(ColorRnd, EveryCopyOnAllSizes)
{
    for (const auto& sizes : {SmallSizes, MatrixSizes})
        for (const Size size : sizes)
            for (const std::uint64_t seed : {1, 2, 3}) {
                const Surface picture = Varied(size.width, size.height);
                EffectRun run(picture, seed);
                Use(run, ColorRndSelector, 10000).Apply(ColorRnd);
                EXPECT_TRUE(Strewn(picture, 7, seed).Shows(run.work.Picture1))
                    << size.width << "x" << size.height << ", seed " << seed;
            }
}

TEST(ColorRnd, TakesItsChancesFromWholeTwoHundredsOfStrength)
{
    struct Case {
        double strength;
        int chances;
    };
    const Surface picture = Varied(60, 500);
    for (const auto& [strength, chances] :
         {Case{0, 57}, Case{199, 57}, Case{199.9, 57}, Case{200, 56}, Case{5000, 32},
          Case{11199, 2}, Case{-1, 58}}) {
        EffectRun run(picture, 9);
        Use(run, ColorRndSelector, strength).Apply(ColorRnd);
        EXPECT_TRUE(Strewn(picture, chances, 9).Shows(run.work.Picture1)) << strength;
        EXPECT_FALSE(Sheet(picture).Shows(run.work.Picture1)) << strength;
    }
}

TEST(ColorRnd, PastesNothingFromAStrengthOf11200On)
{
    const Surface picture = Varied(60, 500);
    for (const double strength : {11200.0, 11399.0, 11400.0, 11600.0, 20000.0, 1e12}) {
        EffectRun run(picture, 9);
        EXPECT_EQ(Use(run, ColorRndSelector, strength).Apply(ColorRnd).work.Picture1, picture);
    }
}

// One reading a trial from 0 to 3; a trial without a copy draws twice.
TEST(ColorRnd, ReseedsInEveryTrial)
{
    EffectRun run(Varied(5, 3), 70);
    Use(run, ColorRndSelector, 20000).Apply(ColorRnd);
    ReferenceRandom random(74);
    random.Rnd();
    random.Rnd();
    EXPECT_EQ(run.work.Rnd(), random.Rnd());
    EXPECT_EQ(run.progress.values, Steps(0, 3));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

TEST(ColorRnd, FailsBeyondTheMatrixBeforeAnythingIsShown)
{
    for (const Size size : {Size{1501, 8}, Size{8, 1501}}) {
        const Surface picture = Varied(size.width, size.height);
        EffectRun run(picture);
        Use(run, ColorRndSelector, 5000);
        EXPECT_EQ(FaultOf(run, ColorRnd), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(run.work.Picture1, picture);
        EXPECT_EQ(run.progress.shownAfter, -1);
    }
}

}  // namespace
}  // namespace pixano::test
