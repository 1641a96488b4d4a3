#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "support/reference_random.h"
#include "support/values.h"

#include <cstdlib>
#include <utility>

namespace pixano::test {
namespace {

// From the second pixel on, each is compared with its predecessor's old colour.
TEST(Fantastic1, OddSidesWorkedOutByHand)
{
    EXPECT_EQ(After(FantUno, {{0x000000, 0x000000, 0x007530},
                              {0x007530, 0xFFFFFF, 0xFFFFFF},
                              {0x000001, 0x000000, 0x000000}}),
              (Values{{0x000000, 0x000000, 0x000000},
                      {0x007530, 0xFF8ACF, 0xFFFFFF},
                      {0x00752F, 0x007530, 0x000000}}));
}

TEST(Fantastic2, OddSidesWorkedOutByHand)
{
    EXPECT_EQ(After(FantDue, {{0x000000, 0x000000, 0x007530},
                              {0x007530, 0xFFFFFF, 0xFFFFFF},
                              {0x000001, 0x000000, 0x000000}}),
              (Values{{0x000000, 0x000000, 0x002710},
                      {0x007530, 0xFFB1DF, 0xFFFFFF},
                      {0x004E1F, 0x004E20, 0x000000}}));
}

// 20000 - &H100 = &H4D20, 20000 - &H200 = &H4C20.
TEST(Fantastic2, RecoloursTheFirstPixelRightOfAVerticalEdgeAndTheFirstOfEachRow)
{
    EXPECT_EQ(After(FantDue, {{0x100, 0x100, 0x200, 0x200}, {0x100, 0x100, 0x200, 0x200}}),
              (Values{{0x4D20, 0x100, 0x4C20, 0x200}, {0x4D20, 0x100, 0x4C20, 0x200}}));
}

TEST(Fantastic1, RecoloursOnlyTheFirstPixelOfAUniformPicture)
{
    EXPECT_EQ(After(FantUno, {{40000, 40000}, {40000, 40000}}),
              (Values{{10000, 40000}, {40000, 40000}}));
    EXPECT_EQ(After(FantUno, {{0, 0}, {0, 0}}), (Values{{0, 0}, {0, 0}}));
}

TEST(Fantastic1, StartsAfreshAtEveryRun)
{
    EffectRun run(Surface(1, 1, 7));
    run.Apply(FantUno);
    run.Load(Surface(1, 1, 7));
    run.Apply(FantUno);
    EXPECT_EQ(run.work.Picture1.Point(0, 0), 29993);
}

TEST(Fantastic, EveryChangeOnAllSizes)
{
    for (const Size size : SmallSizes) {
        // Two alike, then another: a change at every third pixel at least.
        Surface picture = Varied(size.width, size.height);
        for (int y = 0; y < size.height; ++y)
            for (int x = 1; x < size.width; x += 3)
                picture.PSet(x, y, picture.Point(x - 1, y));
        const Sheet before(picture);
        for (const auto& [effect, k] : {std::pair{&FantUno, 30000}, std::pair{&FantDue, 20000}}) {
            Sheet after(picture);
            for (int n = 0; n < size.width * size.height; ++n) {
                const Colour c = before.At(n % size.width, n / size.width);
                const Colour last =
                    n == 0 ? 0 : before.At((n - 1) % size.width, (n - 1) / size.width);
                after.Paint(n % size.width, n / size.width, c == last ? c : std::abs(k - c));
            }
            EffectRun run(picture);
            run.Apply(effect);
            EXPECT_TRUE(after.Shows(run.work.Picture1)) << size.width << "x" << size.height;
        }
    }
}

TEST(Fantastic, TellOneProgressValueARowAfterShowingTheWindow)
{
    for (auto* const effect : {FantUno, FantDue}) {
        EffectRun run(Varied(2, 4));
        run.Apply(effect);
        EXPECT_EQ(run.progress.values, Steps(0, 3));
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

TEST(Fantastic, TouchesNeitherTheRandomNumbersNorTheMatrix)
{
    for (auto* const effect : {FantUno, FantDue}) {
        EffectRun run(Varied(1501, 2), 70);
        run.Apply(effect);
        EXPECT_EQ(run.work.Rnd(), ReferenceRandom(70).Rnd());
    }
}

}  // namespace
}  // namespace pixano::test
