// The effects that squeeze a picture in bands, on small pictures worked out by hand.
#include "effects/composite/composite.h"
#include "effects/composite/squeezed.h"

#include <gtest/gtest.h>

#include <utility>

namespace pixano::test {
namespace {

// 6 pixels, a band of 1: after every read the step grows by 1. 0, 2, 5, over the edge with step 4;
// from 0 again: 0, 3 (step 3), 5 (step 2), over the edge with step 1; two more reads of 0 that are
// not painted.
TEST(MultiStepVerticale, SqueezesTheSmallestWidth)
{
    EffectRun run(Letters(6, "abcdef"));
    EXPECT_EQ(run.Apply(Vertstep).Result(), Letters(6, "acfadf"));
}

// 7 pixels, a band of 1: 0, 2, 5, over with step 4; 0, 3 (step 3), 5 (step 2), 6 (step 1), then for
// ever smaller targets.
TEST(MultiStepVerticale, SqueezesAnOddWidth)
{
    EffectRun run({"abcdefg", "hijklmn"});
    EXPECT_EQ(run.Apply(Vertstep).Result(), (Letters{"acfadfg", "hjmhkmn"}));
}

// 10 pixels, a band of 1: 0, 2, 5, 9, over with step 5; 0, 4 (step 4), 7, 9, over with step 1; 0,
// then once more 0 while the step is 0, then out. The restart counts anew, so its first step is the
// one that passed the edge, less 1.
TEST(MultiStepVerticale, ReadsALineAgainWhileTheStepIsZero)
{
    EXPECT_EQ(EffectRun({"abcdefghij"}).Apply(Vertstep).Result(), (Letters{"acfjaehjaa"}));
}

// 12 pixels, a band of 2: 0, 1, 3, 5, 8, 11, over with step 4; 0, 4, 7, 10, over with step 2; 0, 2.
TEST(MultiStepVerticale, SqueezesBandsOfTwo)
{
    EXPECT_EQ(EffectRun({"abcdefghijkl"}).Apply(Vertstep).Result(), (Letters{"abdfilaehkac"}));
}

// 100 columns, bands of 16: 0 to 15, 17 to 47 by 2, 50 to 95 by 3, 99; then from 0 by 4, which is
// the step reached at the edge, for one band: 0 to 60, and on by 3.
TEST(MultiStepVerticale, ReadsHundredColumnsInBandsOfSixteen)
{
    const Surface before = Varied(100, 6);
    const Surface after = After(before, Vertstep);
    const auto source = [](int target) {
        if (target < 16) return target;
        if (target < 32) return 17 + 2 * (target - 16);
        if (target < 48) return 50 + 3 * (target - 32);
        if (target == 48) return 99;
        if (target < 65) return 4 * (target - 49);
        if (target < 78) return 63 + 3 * (target - 65);
        return 3 * (target - 78);
    };
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 94; ++x)
            EXPECT_EQ(after.Point(x, y), before.Point(source(x), y)) << x << "," << y;
}

// 177 / 5.9 comes out just below 30 in double precision: column 28 is the last of the first band.
TEST(MultiStepVerticale, TakesTheFloorOfTheQuotientAsItComesOut)
{
    const Surface before = Varied(177, 1);
    const Surface after = After(before, Vertstep);
    EXPECT_EQ(after.Point(28, 0), before.Point(28, 0));
    EXPECT_EQ(after.Point(29, 0), before.Point(30, 0));
}

// 29 / 5.8 is a band of 5 rows; as columns (29 / 5.9) they would be bands of 4.
TEST(MultiStepOrizzontale, HasADivisorOfItsOwn)
{
    const Surface before = Varied(29, 29);
    const Surface rows = After(before, Orizstep);
    EXPECT_EQ(rows.Point(0, 4), before.Point(0, 4));
    EXPECT_EQ(rows.Point(0, 5), before.Point(0, 6));
    const Surface columns = After(before, Vertstep);
    EXPECT_EQ(columns.Point(3, 0), before.Point(3, 0));
    EXPECT_EQ(columns.Point(4, 0), before.Point(5, 0));
}

// The bands of these heights are those of the same widths, worked out above.
TEST(MultiStepOrizzontale, SqueezesRows)
{
    EXPECT_EQ(EffectRun({"ab", "cd", "ef", "gh", "ij", "kl"}).Apply(Orizstep).Result(),
              (Letters{"ab", "ef", "kl", "ab", "gh", "kl"}));
    EXPECT_EQ(EffectRun(Upright("abcdefg")).Apply(Orizstep).Result(), Upright("acfadfg"));
    EXPECT_EQ(EffectRun(Upright("abcdefghij")).Apply(Orizstep).Result(), Upright("acfjaehjaa"));
    EXPECT_EQ(EffectRun(Upright("abcdefghijkl")).Apply(Orizstep).Result(), Upright("abdfilaehkac"));
}

// Rows 0, 2, 5, 0, 3, 5 of columns 0, 2, 5, 0, 3, 5, 6.
TEST(MultiFotoStep, SqueezesRowsAndThenColumns)
{
    EffectRun run({"abcdefg", "hijklmn", "opqrstu", "vwxyzAB", "CDEFGHI", "JKLMNOP"});
    EXPECT_EQ(run.Apply(MultiFotoStep).Result(),
              (Letters{"acfadfg", "oqtortu", "JLOJMOP", "acfadfg", "vxAvyAB", "JLOJMOP"}));
}

TEST(MultiFotoStep, IsTheTwoOthersOneAfterTheOther)
{
    for (const auto& [width, height] : {std::pair(7, 6), std::pair(16, 16), std::pair(99, 99),
                                        std::pair(101, 81), std::pair(1500, 1500)}) {
        const Surface picture = Varied(width, height);
        EXPECT_TRUE(After(picture, MultiFotoStep) == After(After(picture, Orizstep), Vertstep))
            << width << "x" << height;
    }
}

// After an effect that made the width even the canvas is one column wider.
TEST(MultiStep, LeavesWhatLiesOutsideTheMeasuredPicture)
{
    EffectRun columns({"abcdefg"});
    columns.work.Larg = 6;
    EXPECT_EQ(columns.Apply(Vertstep).Result(), (Letters{"acfadfg"}));
    EffectRun rows(Upright("abcdefg"));
    rows.work.Alt = 6;
    EXPECT_EQ(rows.Apply(Orizstep).Result(), Upright("acfadfg"));
    EffectRun wide(Upright("abcdef"));
    wide.Load(Drawn({"az", "bz", "cz", "dz", "ez", "fz"}));
    wide.work.Larg = 1;
    EXPECT_EQ(wide.Apply(Orizstep).Result(), (Letters{"az", "cz", "fz", "az", "dz", "fz"}));
}

TEST(MultiStep, TellsOneProgressValueAPaintedRowAfterThePasses)
{
    for (auto* const effect : {Vertstep, Orizstep, MultiFotoStep}) {
        EffectRun run(Varied(8, 9));
        run.Apply(effect);
        EXPECT_EQ(run.progress.values, Steps(0, 8));
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

}  // namespace
}  // namespace pixano::test
