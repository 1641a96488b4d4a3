#include "batch/chain.h"

#include "effects/frame.h"

#include "support/letters.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

namespace pixano::batch::test {
namespace {

using pixano::test::Drawn;

/// A picture of 3 x 2 with a timer that counts from 7.
class Chain : public testing::Test {
  protected:
    Chain() { PutOnCanvas(w, Drawn({"abc", "def"})); }

    std::string Run(const std::vector<Step>& steps)
    {
        return RunChain(w, steps, valori, Caption("foto.jpg", w), progress);
    }

    Strengths valori{0, 10, 20, 30, 40, 50};
    ChainProgress progress;
    Work w{MemoryStore(), progress, Timer(7)};
};

void LeaveAlone(Work&) {}

TEST_F(Chain, WithoutEffectsIsCaptionedByTheFile)
{
    EXPECT_EQ(Run({}), "foto.jpg   3x2");
}

TEST_F(Chain, IsCaptionedByTheLastEffectThatSetsACaption)
{
    const Effect first{.name = "Primo", .run = LeaveAlone, .family = Family::ColourAndArt};
    const Effect second{.name = "Secondo", .run = LeaveAlone, .family = Family::ColourAndArt};
    const Effect silent{
        .name = "Muto", .run = LeaveAlone, .family = Family::ColourAndArt, .captioned = false};
    EXPECT_EQ(Run({{&first, {}}, {&second, {}}}), "Secondo   3x2");
    EXPECT_EQ(Run({{&first, {}}, {&silent, {}}}), "Primo   3x2");
    EXPECT_EQ(Run({{&silent, {}}}), "foto.jpg   3x2");
}

TEST_F(Chain, CaptionShowsTheSizeThatTheEffectLeaves)
{
    const Effect even{
        .name = "Pari", .run = [](Work& work) { work.Larg = 2; }, .family = Family::ColourAndArt};
    EXPECT_EQ(Run({{&even, {}}}), "Pari   2x2");
}

TEST_F(Chain, MatricesLiveOn)
{
    const Effect fill{.name = "Riempi",
                      .run = [](Work& work) { work.Vettore(3, 4) = 5; },
                      .family = Family::ColourAndArt};
    const Effect paint{.name = "Dipingi",
                       .run = [](Work& work) { work.Picture1.PSet(0, 0, work.Vettore(3, 4)); },
                       .family = Family::ColourAndArt};
    Run({{&fill, {}}, {&paint, {}}});
    EXPECT_EQ(w.Picture1.Point(0, 0), 5);
}

TEST_F(Chain, WorkingFileDoesNotOutliveItsEffect)
{
    const Effect write{.name = "Scrivi",
                       .run =
                           [](Work& work) {
                               work.ElabSer.OpenForOutput();
                               work.ElabSer.Write(1);
                               work.ElabSer.Close();
                           },
                       .family = Family::ColourAndArt};
    const Effect read{
        .name = "Leggi", .run = [](Work& work) { work.Input(); }, .family = Family::ColourAndArt};
    EXPECT_THROW(Run({{&write, {}}, {&read, {}}}), EffectFailed);
}

TEST_F(Chain, GivesEachEffectItsOwnStrength)
{
    const Effect paint{
        .name = "Dipingi",
        .run = [](Work& work) { work.Picture1.PSet(0, 0, static_cast<Colour>(work.Strength())); },
        .family = Family::ColourAndArt,
        .selector = 3};
    Run({{&paint, 77}});
    EXPECT_EQ(w.Picture1.Point(0, 0), 77);
    EXPECT_EQ(w.IndValore, 3);
    // A strength given with an effect is that effect's alone.
    Run({{&paint, 77}, {&paint, {}}});
    EXPECT_EQ(w.Picture1.Point(0, 0), 30);
}

/// Paints the first number drawn, in 2^-24ths.
void PaintDraw(Work& work)
{
    work.Picture1.PSet(0, 0, static_cast<Colour>(work.Rnd() * 0x1p24));
}

Colour FirstDraw(std::uint64_t reading)
{
    return static_cast<Colour>(Random(Timer(reading)).Rnd() * 0x1p24);
}

TEST_F(Chain, ReseedsWhereTheEffectDoes)
{
    const Effect plain{.name = "Senza", .run = PaintDraw, .family = Family::ColourAndArt};
    Run({{&plain, {}}});
    EXPECT_EQ(w.Picture1.Point(0, 0), FirstDraw(7));

    const Effect reseeding{
        .name = "Con", .run = PaintDraw, .family = Family::ColourAndArt, .reseeds = true};
    for (const int reading : {8, 9}) {
        Run({{&reseeding, {}}});
        EXPECT_EQ(w.Picture1.Point(0, 0), FirstDraw(reading));
    }
}

TEST_F(Chain, FaultNamesItsEffect)
{
    const Effect fail{.name = "Guasto",
                      .run = [](Work&) { throw Fault(FaultKind::DivisionByZero); },
                      .family = Family::ColourAndArt};
    try {
        Run({{&fail, {}}});
        ADD_FAILURE() << "no fault";
    } catch (const EffectFailed& failed) {
        EXPECT_STREQ(failed.what(), "Guasto: Divisione per zero");
    }
}

}  // namespace
}  // namespace pixano::batch::test
