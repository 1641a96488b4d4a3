#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "support/reference_random.h"
#include "support/values.h"

#include <cstdint>
#include <cstdlib>

namespace pixano::test {
namespace {

// The limit is &H9BA3C0. (0, 0) and (2, 2) differ by it exactly, (1, 0) and (1, 2) by one more.
// (0, 2) and (2, 1) are taken against partners already replaced: &HFF00 - &HFEF0, and
// &H800000 - &H7FFFFF; so is (2, 2), which meets its own value.
TEST(Empireo1, OddSidesWorkedOutByHand)
{
    EXPECT_EQ(After(EmpUno, {{0x000000, 0x9BA3C1, 0x000010},
                             {0x000001, 0x0000FF, 0x800000},
                             {0x00FF00, 0x000000, 0x9BA3C0}}),
              (Values{{0x9BA3C0, 0x9BA3C1, 0x00FEF0},
                      {0x7FFFFF, 0x000000, 0x000001},
                      {0x000010, 0x000000, 0x000000}}));
}

// White and black are too far apart and stay; &H100 becomes &HFF, then 1 becomes &HFE.
TEST(Empireo1, EvenSidesWorkedOutByHand)
{
    EXPECT_EQ(After(EmpUno, {{0xFFFFFF, 0x000100}, {0x000001, 0x000000}}),
              (Values{{0xFFFFFF, 0x0000FF}, {0x0000FE, 0x000000}}));
}

TEST(Empireo1, WritesADifferenceOfExactlyTheLimitAndNoneAbove)
{
    EXPECT_EQ(After(EmpUno, {{10200000, 0}})[0][0], 10200000);
    EXPECT_EQ(After(EmpUno, {{10200007, 7}})[0][0], 10200000);
    EXPECT_EQ(After(EmpUno, {{10200008, 7}})[0][0], 10200008);
}

// Worked out pair by pair from an untouched copy: the second partner meets what became of the
// first.
TEST(Empireo1, EveryPairOnAllSizes)
{
    const auto thresholded = [](Colour kept, Colour other) {
        const Colour d = std::abs(kept - other);
        return d > 0x9BA3C0 ? kept : d;
    };
    for (const Size size : SmallSizes) {
        const Surface picture = Varied(size.width, size.height);
        const Sheet before(picture);
        Sheet after(picture);
        const int pixels = size.width * size.height;
        for (int n = 0; n < pixels; ++n) {
            const int x = n % size.width;
            const int y = n / size.width;
            const Colour own = before.At(x, y);
            Colour partner = before.At(size.width - 1 - x, size.height - 1 - y);
            if (n > pixels - 1 - n) partner = thresholded(partner, own);
            after.Paint(x, y, thresholded(own, partner));
        }
        EffectRun run(picture);
        run.Apply(EmpUno);
        EXPECT_TRUE(after.Shows(run.work.Picture1)) << size.width << "x" << size.height;
    }
}

TEST(Empireo1, BlackensTheCentreOfOddSides)
{
    EffectRun run(Varied(7, 5));
    run.Apply(EmpUno);
    EXPECT_EQ(run.work.Picture1.Point(3, 2), 0);
}

// 250 / 1.002 = 249.501 and 251 / 1.002 = 250.499 both go to 250; 501 to 500, 1002 to 1000,
// 2004000 to 2000000; white to 16743727.54, one less than white to 16743726.55.
TEST(Empireo2, OddSidesWorkedOutByHand)
{
    EXPECT_EQ(After(EmpDue, {{0, 1, 0xFFFFFF}, {250, 251, 501}, {1002, 2004000, 0xFFFFFE}}),
              (Values{{0, 1, 0xFF7D30}, {250, 250, 500}, {1000, 2000000, 0xFF7D2F}}));
}

// &H800000 / 1.002 = 8371864.27; &HFF0000 / 1.002 = 16678323.35; &H00FF00 / 1.002 = 65149.70.
TEST(Empireo2, EvenSidesWorkedOutByHand)
{
    EXPECT_EQ(After(EmpDue, {{0x800000, 0xFF0000}, {0x00FF00, 2}}),
              (Values{{8371864, 16678323}, {65150, 2}}));
}

// c / 1.002 is n when n - 0.5 < c / 1.002 < n + 0.5, in whole numbers 1000 c against 501 (2 n -+
// 1); no c lies on a bound, 1000 c being even and the bounds odd.
TEST(Empireo2, EveryValueIsTheNearestOfTheQuotient)
{
    EffectRun run(Surface(4096, 1));
    for (int block = 0; block < 4096; ++block) {
        for (int x = 0; x < 4096; ++x)
            run.work.Picture1.PSet(x, 0, block * 4096 + x);
        run.Apply(EmpDue);
        for (int x = 0; x < 4096; ++x) {
            const std::int64_t thousand = 1000 * static_cast<std::int64_t>(block * 4096 + x);
            const std::int64_t n = run.work.Picture1.Point(x, 0);
            ASSERT_LT(501 * (2 * n - 1), thousand);
            ASSERT_GT(501 * (2 * n + 1), thousand);
        }
    }
}

TEST(Empireo, TellOneProgressValueARowAfterShowingTheWindow)
{
    for (auto* const effect : {EmpUno, EmpDue}) {
        EffectRun run(Varied(2, 4));
        run.Apply(effect);
        EXPECT_EQ(run.progress.values, Steps(0, 3));
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

TEST(Empireo, TouchesNeitherTheRandomNumbersNorTheMatrix)
{
    for (auto* const effect : {EmpUno, EmpDue}) {
        EffectRun run(Varied(1501, 2), 70);
        run.Apply(effect);
        EXPECT_EQ(run.work.Rnd(), ReferenceRandom(70).Rnd());
    }
}

}  // namespace
}  // namespace pixano::test
