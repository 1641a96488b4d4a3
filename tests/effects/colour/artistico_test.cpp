#include "effects/colour/colour.h"
#include "effects/colour/colour_run.h"
#include "support/reference_random.h"
#include "support/values.h"

#include <algorithm>
#include <cstdlib>

namespace pixano::test {
namespace {

enum class Mirror { Horizontal, Vertical, Both };
enum class Result { InPlace, AtPartner };

struct Artistico {
    void (*run)(Work&);
    Mirror mirror;
    Result result;
    Values odd;   ///< what becomes of `Odd`
    Values even;  ///< what becomes of `Even`
};

const Values Odd{
    {0x000010, 0x000100, 0x010000}, {0x000001, 0x0000FF, 0x800000}, {0xFFFFFF, 0x000000, 0x00FF00}};
const Values Even{{0x000001, 0x000100, 0x010000, 0xFFFFFF},
                  {0x000100, 0x000000, 0x0000FF, 0x800000}};

// Of two partners, p met first and q: D = |p - q|. Painted in place, p becomes D and then q becomes
// |q - D|. Painted at the partner, q becomes D and then p becomes |D - p|.
const std::vector<Artistico> Formulas{
    {ArtUno,
     Mirror::Both,
     Result::InPlace,
     {{0x00FEF0, 0x000100, 0xFEFFFF}, {0x7FFFFF, 0, 0x000001}, {0x010000, 0x000100, 0x000010}},
     {{0x7FFFFF, 0x000001, 0x010000, 0xFFFEFF}, {0xFFFDFF, 0x010000, 0x0000FE, 0x000001}}},
    {ArtDue,
     Mirror::Both,
     Result::AtPartner,
     {{0x00FEE0, 0x000000, 0xFDFFFF}, {0x7FFFFE, 0, 0x7FFFFF}, {0xFEFFFF, 0x000100, 0x00FEF0}},
     {{0x7FFFFE, 0x0000FF, 0x000000, 0x000100}, {0xFFFEFF, 0x010000, 0x000001, 0x7FFFFF}}},
    {ArTre,
     Mirror::Horizontal,
     Result::AtPartner,
     {{0x00FFE0, 0, 0x00FFF0}, {0x7FFFFE, 0, 0x7FFFFF}, {0x00FF00, 0, 0xFF00FF}},
     {{0xFFFFFD, 0x00FE00, 0x00FF00, 0xFFFFFE}, {0x7FFE00, 0x0000FF, 0x0000FF, 0x7FFF00}}},
    {ArtQuat,
     Mirror::Vertical,
     Result::InPlace,
     {{0xFFFFEF, 0x000100, 0x000100}, {0, 0, 0}, {0x000010, 0x000100, 0x00FE00}},
     {{0x0000FF, 0x000100, 0x00FF01, 0x7FFFFF}, {0x000001, 0x000100, 0x00FE02, 0x000001}}},
    {ArtCinq,
     Mirror::Horizontal,
     Result::InPlace,
     {{0x00FFF0, 0, 0x000010}, {0x7FFFFF, 0, 0x000001}, {0xFF00FF, 0, 0xFE01FF}},
     {{0xFFFFFE, 0x00FF00, 0x000100, 0x000001}, {0x7FFF00, 0x0000FF, 0x000000, 0x000100}}},
    {ArtSei,
     Mirror::Vertical,
     Result::AtPartner,
     {{0xFFFFDF, 0x000000, 0x00FF00}, {0, 0, 0}, {0xFFFFEF, 0x000100, 0x000100}},
     {{0x0000FE, 0x000000, 0x0000FF, 0x800000}, {0x0000FF, 0x000100, 0x00FF01, 0x7FFFFF}}},
};

/// The effect worked out pair by pair from an untouched copy.
Sheet Expected(const Artistico& effect, const Surface& picture)
{
    const Sheet before(picture);
    Sheet after(picture);
    const int w = picture.Width();
    const int h = picture.Height();
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int px = effect.mirror == Mirror::Vertical ? x : w - 1 - x;
            const int py = effect.mirror == Mirror::Horizontal ? y : h - 1 - y;
            const bool metFirst = y * w + x <= py * w + px;
            const Colour d = std::abs(before.At(x, y) - before.At(px, py));
            const bool isDifference = metFirst == (effect.result == Result::InPlace);
            after.Paint(x, y, isDifference ? d : std::abs(before.At(x, y) - d));
            if (x == px && y == py) after.Paint(x, y, 0);
        }
    return after;
}

TEST(Artistico, OddSidesWorkedOutByHand)
{
    for (std::size_t i = 0; i < Formulas.size(); ++i)
        EXPECT_EQ(ValuesOf(EffectRun(Painted(Odd)).Apply(Formulas[i].run).work.Picture1),
                  Formulas[i].odd)
            << "Artistico " << i + 1;
}

TEST(Artistico, EvenSidesWorkedOutByHand)
{
    for (std::size_t i = 0; i < Formulas.size(); ++i)
        EXPECT_EQ(ValuesOf(EffectRun(Painted(Even)).Apply(Formulas[i].run).work.Picture1),
                  Formulas[i].even)
            << "Artistico " << i + 1;
}

TEST(Artistico, EveryPairOnAllSizes)
{
    for (std::size_t i = 0; i < Formulas.size(); ++i)
        for (const Size size : SmallSizes) {
            const Surface picture = Varied(size.width, size.height);
            EffectRun run(picture);
            run.Apply(Formulas[i].run);
            EXPECT_TRUE(Expected(Formulas[i], picture).Shows(run.work.Picture1))
                << "Artistico " << i + 1 << " on " << size.width << "x" << size.height;
        }
}

TEST(Artistico, TellOneProgressValueARowAfterShowingTheWindow)
{
    for (const auto& effect : Formulas) {
        EffectRun run(Varied(2, 5));
        run.Apply(effect.run);
        EXPECT_EQ(run.progress.values, Steps(0, 4));
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

TEST(Artistico1, BlackensTheCentreOfOddSides)
{
    EffectRun run(Varied(5, 3));
    run.Apply(ArtUno);
    EXPECT_EQ(run.work.Picture1.Point(2, 1), 0);
}

TEST(Artistico, BlackenTheMiddleColumnOfAnOddWidthWhereTheyMirrorSideways)
{
    for (auto* const effect : {ArTre, ArtCinq}) {
        EffectRun run(Varied(5, 4));
        run.Apply(effect);
        for (int y = 0; y < 4; ++y)
            EXPECT_EQ(run.work.Picture1.Point(2, y), 0);
    }
}

TEST(Artistico, BlackenTheMiddleRowOfAnOddHeightWhereTheyMirrorUpsideDown)
{
    for (auto* const effect : {ArtQuat, ArtSei}) {
        EffectRun run(Varied(4, 5));
        run.Apply(effect);
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(run.work.Picture1.Point(x, 2), 0);
    }
}

TEST(Artistico, BorrowFromOneChannelIntoTheNext)
{
    EffectRun run(Painted({{0x000001, 0x000100}}));
    run.Apply(ArtCinq);
    EXPECT_EQ(run.work.Picture1.Point(0, 0), 0x0000FF);
}

TEST(Artistico1, BlackensTheUpperHalfOfAUniformPictureAndKeepsTheLower)
{
    EXPECT_EQ(EffectRun({"cc", "cc", "cc", "cc"}).Apply(ArtUno).Result(),
              (Letters{"##", "##", "cc", "cc"}));
    EXPECT_EQ(EffectRun({"ccccc", "ccccc", "ccccc"}).Apply(ArtUno).Result(),
              (Letters{"#####", "###cc", "ccccc"}));
}

// One white pixel, the document twice as large: its partner lies outside and reads -1, the
// difference is &H1000000. Clamped it is white, passed on it shows its low bytes, black.
TEST(Artistico, ClampADifferenceAboveWhiteFromTheThirdOn)
{
    struct Case {
        void (*run)(Work&);
        Colour expected;
    };
    for (const auto& [effect, expected] : std::vector<Case>{{ArtUno, 0},
                                                            {ArtDue, 0},
                                                            {ArTre, White},
                                                            {ArtQuat, White},
                                                            {ArtCinq, White},
                                                            {ArtSei, White}}) {
        EffectRun run(Surface(1, 1, White));
        run.work.Larg = 2;
        run.work.Alt = 2;
        run.Apply(effect);
        EXPECT_EQ(run.work.Picture1.Point(0, 0), expected);
    }
}

TEST(Artistico, LeaveColumnsAndRowsBeyondTheDocumentAlone)
{
    for (const auto& effect : Formulas) {
        EffectRun run({"abc", "def", "ghi"});
        run.work.Larg = 2;
        run.work.Alt = 2;
        const Letters result = run.Apply(effect.run).Result();
        EXPECT_EQ(result[2], "ghi");
        EXPECT_EQ(result[0][2], 'c');
        EXPECT_EQ(result[1][2], 'f');
    }
}

TEST(Artistico, OnlyTheFirstReseedsAndNoneDraws)
{
    for (const auto& effect : Formulas) {
        EffectRun run(Varied(3, 3), 70);
        run.Apply(effect.run);
        EXPECT_EQ(run.work.Rnd(), ReferenceRandom(effect.run == ArtUno ? 71 : 70).Rnd());
    }
}

}  // namespace
}  // namespace pixano::test
