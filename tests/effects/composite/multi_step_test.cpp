#include "effects/composite/composite.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace pixano::test {
namespace {

Surface After(const Surface& picture, void (*effect)(Work&))
{
    return EffectRun(picture).Apply(effect).work.Picture1;
}

/// A picture of one row as a column.
Letters Upright(const std::string& row)
{
    Letters rows;
    for (const char letter : row)
        rows.emplace_back(1, letter);
    return rows;
}

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

/// The lines that a pass reads one after another, told step by step.
std::vector<int> LinesRead(int lines, int k)
{
    std::vector<int> read;
    int p = 0;
    int s = 1;
    int n = 0;
    int d = 1;
    for (;;) {
        read.push_back(p);
        n = n + 1;
        if (n == k) {
            n = 0;
            s = s + d;
        }
        p = p + s;
        if (p < 0) return read;
        if (p > lines - 1) {
            n = 0;
            d = -1;
            p = 0;
        }
    }
}

TEST(MultiStep, PaintsTheFirstLinesReadAtEverySize)
{
    for (int size = 6; size <= 1500; size += size < 200 ? 1 : 53) {
        const std::vector<int> columns = LinesRead(size, static_cast<int>(std::floor(size / 5.9)));
        const std::vector<int> rows = LinesRead(size, static_cast<int>(std::floor(size / 5.8)));
        const Surface wide = Varied(size, 2);
        const Surface high = Varied(2, size);
        const Surface squeezedWide = After(wide, Vertstep);
        const Surface squeezedHigh = After(high, Orizstep);
        for (int i = 0; i < size; ++i) {
            const auto at = static_cast<std::size_t>(i);
            ASSERT_EQ(squeezedWide.Point(i, 1), wide.Point(columns.at(at), 1)) << size << "," << i;
            ASSERT_EQ(squeezedHigh.Point(1, i), high.Point(1, rows.at(at))) << size << "," << i;
        }
    }
}

// What is left over piles up in the last column; the last line read is 0.
TEST(MultiStepVerticale, LeavesTheLastColumnReadBesideThePictureInTheFirstMatrixAlone)
{
    EffectRun run({"abcdefg"});
    run.Apply(Vertstep);
    EXPECT_EQ(run.work.Vettore(6, 0), ColourOf('g'));
    EXPECT_EQ(run.work.Vettore(7, 0), ColourOf('a'));
    EXPECT_EQ(run.work.Vettore(8, 0), 0);
    EXPECT_EQ(run.work.Vettore(0, 1), 0);
    EXPECT_EQ(run.work.Vettore2(0, 0), 0);
}

TEST(MultiStepOrizzontale, LeavesTheLastRowReadBelowThePictureInTheFirstMatrixAlone)
{
    EffectRun run(Upright("abcdefg"));
    run.Apply(Orizstep);
    EXPECT_EQ(run.work.Vettore(0, 6), ColourOf('g'));
    EXPECT_EQ(run.work.Vettore(0, 7), ColourOf('a'));
    EXPECT_EQ(run.work.Vettore(0, 8), 0);
    EXPECT_EQ(run.work.Vettore(1, 0), 0);
    EXPECT_EQ(run.work.Vettore2(0, 0), 0);
}

TEST(MultiFotoStep, LeavesTheRowsInOneMatrixAndTheResultInTheOther)
{
    EffectRun run(Letters{"abcdef", "ghijkl", "mnopqr", "stuvwx", "yzABCD", "EFGHIJ"});
    run.Apply(MultiFotoStep);
    EXPECT_EQ(run.work.Vettore(1, 1), ColourOf('n'));
    EXPECT_EQ(run.work.Vettore(1, 6), ColourOf('b'));
    EXPECT_EQ(run.work.Vettore2(1, 1), ColourOf('o'));
    EXPECT_EQ(run.work.Vettore2(6, 1), ColourOf('m'));
    EXPECT_EQ(run.work.Vettore2(0, 6), 0);
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

/// The effect fails on a picture of that size with nothing painted and nothing shown.
void ExpectRefusal(void (*effect)(Work&), int width, int height, FaultKind kind)
{
    const Surface picture = Varied(width, height);
    EffectRun run(picture);
    EXPECT_EQ(FaultOf(run, effect), kind) << width << "x" << height;
    EXPECT_EQ(run.work.Picture1, picture);
    EXPECT_EQ(run.progress.shownAfter, -1);
    EXPECT_TRUE(run.progress.values.empty());
}

TEST(MultiStepVerticale, RefusesAWidthBelowSixPixels)
{
    ExpectRefusal(Vertstep, 1, 1, FaultKind::InvalidCall);
    ExpectRefusal(Vertstep, 5, 8, FaultKind::InvalidCall);
    // The first row would never end, so the rows beyond the matrix are not reached.
    ExpectRefusal(Vertstep, 5, 1600, FaultKind::InvalidCall);
    EXPECT_NO_THROW(EffectRun(Varied(6, 1)).Apply(Vertstep));
}

TEST(MultiStepOrizzontale, RefusesAHeightBelowSixPixelsUnlessTheMatrixIsTooNarrow)
{
    ExpectRefusal(Orizstep, 1, 1, FaultKind::InvalidCall);
    ExpectRefusal(Orizstep, 8, 5, FaultKind::InvalidCall);
    ExpectRefusal(Orizstep, 1501, 3, FaultKind::InvalidCall);
    // The first row read does not fit into the matrix.
    ExpectRefusal(Orizstep, 1502, 3, FaultKind::SubscriptOutOfRange);
    ExpectRefusal(Orizstep, 1600, 3, FaultKind::SubscriptOutOfRange);
    EXPECT_NO_THROW(EffectRun(Varied(1, 6)).Apply(Orizstep));
}

TEST(MultiFotoStep, RefusesEitherSideBelowSixPixelsUnlessTheRowsDoNotFit)
{
    ExpectRefusal(MultiFotoStep, 5, 5, FaultKind::InvalidCall);
    ExpectRefusal(MultiFotoStep, 8, 5, FaultKind::InvalidCall);
    ExpectRefusal(MultiFotoStep, 5, 8, FaultKind::InvalidCall);
    ExpectRefusal(MultiFotoStep, 5, 1500, FaultKind::InvalidCall);
    ExpectRefusal(MultiFotoStep, 1501, 3, FaultKind::InvalidCall);
    // The rows go first, and their row 1501 or column 1501 does not fit.
    ExpectRefusal(MultiFotoStep, 4, 1501, FaultKind::SubscriptOutOfRange);
    ExpectRefusal(MultiFotoStep, 1502, 3, FaultKind::SubscriptOutOfRange);
}

TEST(MultiStep, SaysWhichSideIsTooSmall)
{
    const auto text = [](void (*effect)(Work&), int width, int height) -> std::string {
        try {
            EffectRun(Varied(width, height)).Apply(effect);
        } catch (const Fault& fault) {
            return fault.what();
        }
        return {};
    };
    EXPECT_EQ(text(Vertstep, 5, 8), "Operazione impossibile: l'immagine è larga meno di 6 pixel");
    EXPECT_EQ(text(Orizstep, 8, 5), "Operazione impossibile: l'immagine è alta meno di 6 pixel");
    EXPECT_EQ(text(MultiFotoStep, 5, 8),
              "Operazione impossibile: l'immagine è larga meno di 6 pixel");
}

// The pile of left-over lines lies at index Larg or Alt; the other direction needs one index less.
TEST(MultiStep, FailsWhereItsPileOrItsPictureLiesBeyondTheMatrix)
{
    ExpectRefusal(Vertstep, 1501, 8, FaultKind::SubscriptOutOfRange);
    ExpectRefusal(Vertstep, 8, 1502, FaultKind::SubscriptOutOfRange);
    ExpectRefusal(Orizstep, 8, 1501, FaultKind::SubscriptOutOfRange);
    ExpectRefusal(Orizstep, 1502, 8, FaultKind::SubscriptOutOfRange);
    ExpectRefusal(MultiFotoStep, 1501, 8, FaultKind::SubscriptOutOfRange);
    ExpectRefusal(MultiFotoStep, 8, 1501, FaultKind::SubscriptOutOfRange);
    EXPECT_NO_THROW(EffectRun(Varied(8, 1501)).Apply(Vertstep));
    EXPECT_NO_THROW(EffectRun(Varied(1501, 8)).Apply(Orizstep));
    EXPECT_NO_THROW(EffectRun(Varied(1500, 1500)).Apply(MultiFotoStep));
}

// A picture of one row that an earlier effect made even has no height left: a pass without rows
// ends at once, one that must read a first row never.
TEST(MultiStep, OnAPictureWithoutHeight)
{
    EffectRun run({"abc"});
    run.work.Alt = 0;
    EXPECT_EQ(run.Apply(Vertstep).Result(), (Letters{"abc"}));
    EXPECT_TRUE(run.progress.values.empty());
    EXPECT_EQ(FaultOf(run, Orizstep), FaultKind::InvalidCall);
}

}  // namespace
}  // namespace pixano::test
