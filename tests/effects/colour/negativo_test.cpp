#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "support/reference_random.h"
#include "support/values.h"

namespace pixano::test {
namespace {

// 16800000 + 20000 = &H100A720; the byte above the three that are drawn falls away.
TEST(Negativo, OddSidesWorkedOutByHand)
{
    EXPECT_EQ(After(Negativo, 1, 1000,
                    {{0x000000, 0x000001, 0xFFFFFF},
                     {0x00A720, 0x00A721, 0x800000},
                     {0x010000, 0x0000FF, 0xC0C0C0}}),
              (Values{{0x00A720, 0x00A71F, 0x00A721},
                      {0x000000, 0xFFFFFF, 0x80A720},
                      {0xFFA720, 0x00A621, 0x3FE660}}));
}

// 16800000 = &H1005900.
TEST(Negativo, EvenSidesWithoutStrengthWorkedOutByHand)
{
    EXPECT_EQ(After(Negativo, 1, 0, {{0xFFFFFF, 0x000000}, {0x005900, 0x0000FF}}),
              (Values{{22785, 0x005900}, {0x000000, 0x005801}}));
}

// 20 x 0.125 = 2.5: 16800002.5 goes down to the even neighbour, 16800001.5 up to it; 16800002 is
// &H1005902.
TEST(Negativo, RoundsAHalfToTheEvenNeighbour)
{
    EXPECT_EQ(After(Negativo, 1, 0.125, {{0, 1}}), (Values{{0x005902, 0x005902}}));
}

TEST(Negativo, TwiceRestoresThePicture)
{
    for (const Size size : SmallSizes)
        for (const double strength : {0.0, 1000.0, 10000.0, -70.0}) {
            const Surface picture = Varied(size.width, size.height);
            EffectRun run(picture);
            Use(run, 1, strength).Apply(Negativo);
            EXPECT_NE(run.work.Picture1, picture);
            EXPECT_EQ(run.Apply(Negativo).work.Picture1, picture);
        }
}

TEST(Negativo, EveryPixelOnAllSizes)
{
    for (const Size size : SmallSizes) {
        const Surface picture = Varied(size.width, size.height);
        Sheet sheet(picture);
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x)
                sheet.Paint(x, y, 16800000 + 20 * 5000 - picture.Point(x, y));
        EffectRun run(picture);
        Use(run, 1, 5000).Apply(Negativo);
        EXPECT_TRUE(sheet.Shows(run.work.Picture1)) << size.width << "x" << size.height;
    }
}

// 1000 = &H3E8.
TEST(Colorazione, OddSidesWorkedOutByHand)
{
    EXPECT_EQ(After(Colorazione, 1, 1,
                    {{0x000000, 0x0003E8, 0xFFFFFF},
                     {0x010000, 0x0000E7, 0x0004E8},
                     {0x0003E7, 0x800000, 0x0003FF}}),
              (Values{{0xFFFC18, 0x000000, 0xFFFC17},
                      {0x00FC18, 0xFFFCFF, 0x000100},
                      {0xFFFFFF, 0x7FFC18, 0x000017}}));
}

// 1000 x 65.536 = &H10000: blue goes down by one.
TEST(Colorazione, EvenSidesWorkedOutByHand)
{
    EXPECT_EQ(After(Colorazione, 1, 65.536, {{0x010203, 0xFF0000}, {0x000001, 0xFFFFFF}}),
              (Values{{0x000203, 0xFE0000}, {0xFF0001, 0xFEFFFF}}));
}

TEST(Colorazione, WithoutStrengthLeavesThePicture)
{
    for (const Size size : SmallSizes) {
        const Surface picture = Varied(size.width, size.height);
        EffectRun run(picture);
        EXPECT_EQ(Use(run, 2, 0).Apply(Colorazione).work.Picture1, picture);
    }
}

TEST(Colorazione, EveryPixelOnAllSizes)
{
    for (const Size size : SmallSizes) {
        const Surface picture = Varied(size.width, size.height);
        Sheet sheet(picture);
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x)
                sheet.Paint(x, y, picture.Point(x, y) - 5000000);
        EffectRun run(picture);
        Use(run, 2, 5000).Apply(Colorazione);
        EXPECT_TRUE(sheet.Shows(run.work.Picture1)) << size.width << "x" << size.height;
    }
}

// 1000 x 0.0625 = 62.5: -0.5 goes to 0, 0.5 to 0, 1.5 to 2.
TEST(Colorazione, RoundsAHalfToTheEvenNeighbour)
{
    EXPECT_EQ(After(Colorazione, 1, 0.0625, {{62, 63, 64}}), (Values{{0, 0, 2}}));
}

// 2131000000 = &H7F047AC0 fits for black; with white added it is above 2147483647.
TEST(Colorazione, FailsAtTheFirstColourThatDoesNotFitWithThePixelsBeforePainted)
{
    EffectRun run(Painted({{0x000000, 0xFFFFFF, 0x000000}}));
    Use(run, 2, -2131000);
    EXPECT_EQ(FaultOf(run, Colorazione), FaultKind::Overflow);
    EXPECT_EQ(ValuesOf(run.work.Picture1), (Values{{0x047AC0, 0xFFFFFF, 0x000000}}));
    EXPECT_EQ(run.progress.values, Steps(0, 0));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

TEST(Negativo, FailsAtAStrengthThatDoesNotFit)
{
    EffectRun run({"ab"});
    Use(run, 1, 1e9);
    EXPECT_EQ(FaultOf(run, Negativo), FaultKind::Overflow);
    EXPECT_EQ(run.Result(), (Letters{"ab"}));
}

TEST(Negativo, TakesItsStrengthFromTheCellInUse)
{
    EffectRun run(Surface(1, 1, 1000000));
    run.work.Valori = {9999, 100, 200, 300, 400, 500};
    run.work.IndValore = 4;
    EXPECT_EQ(run.Apply(Colorazione).work.Picture1.Point(0, 0), 600000);
    EXPECT_EQ(run.Apply(Negativo).work.Picture1.Point(0, 0), 16208000);  // 16808000 - 600000
}

// The document made even by an earlier effect, its column `Larg` and row `Alt` lie on the canvas.
TEST(Negativo, RepaintsTheColumnAndTheRowAtTheDocumentsEnd)
{
    EffectRun run(Surface(4, 4, 0xFFFFFF));
    run.work.Larg = 2;
    run.work.Alt = 2;
    Use(run, 1, 0).Apply(Negativo);
    EXPECT_EQ(ValuesOf(run.work.Picture1), (Values{{22785, 22785, 22785, 0xFFFFFF},
                                                   {22785, 22785, 22785, 0xFFFFFF},
                                                   {22785, 22785, 22785, 0xFFFFFF},
                                                   {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF}}));
}

TEST(ReadBack, TellsTheRowsUpToTheOneOutsideAndDrawsNothing)
{
    for (auto* const effect : {Negativo, Colorazione, Vetro}) {
        EffectRun run(Varied(3, 4), 70);
        Use(run, 3, 10).Apply(effect);
        EXPECT_EQ(run.progress.values, Steps(0, 4));
        EXPECT_EQ(run.progress.shownAfter, 0);
        EXPECT_EQ(run.work.Rnd(), ReferenceRandom(70).Rnd());
    }
}

}  // namespace
}  // namespace pixano::test
