// The squeezing effects at every size: what they read, leave in the matrices, and refuse.
#include "effects/composite/composite.h"
#include "effects/composite/squeezed.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace pixano::test {
namespace {

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
