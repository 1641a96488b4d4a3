// "Mini Foto Rnd": its miniature and where the copies of it lie.
#include "effects/composite/composite.h"
#include "effects/composite/expected_draws.h"
#include "effects/geometry/geometry.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace pixano::test {
namespace {

/// Cells by column and row; one never written is 0.
using Cells = std::map<std::pair<int, int>, Colour>;

/// What the effect makes of a picture, told step by step.
void Expect(Surface& picture, int larg, int alt, Cells& cells, ExpectedDraws draws)
{
    const int passoX = draws.OneOf(4, 2);
    const int passoY = draws.OneOf(4, 2);
    int i = 0;
    int j = 0;
    for (int y = 0; y <= alt - 2; y += passoY) {
        i = 0;
        for (int x = 0; x <= larg - 2; x += passoX)
            cells[{i++, j}] = picture.Point(x, y);
        ++j;
    }
    const int copies = draws.OneOf(25, 15 + passoX + passoY);
    for (int k = 1; k <= copies; ++k) {
        const int x0 = draws.OneOf(larg, 0);
        const int y0 = draws.OneOf(alt, 0);
        for (int row = 0; row <= j; ++row) {
            for (int column = 0; column <= i; ++column) {
                if (x0 + column > larg - 1 || y0 + row > alt - 1) continue;
                picture.PSet(x0 + column, y0 + row, cells[{column, row}]);
            }
        }
    }
}

// One sampled pixel; a copy is 2 by 2, its three other cells were never written. From this seed the
// last of 27 copies lies at (0, 0).
TEST(MiniFotoRnd, TwoByTwo)
{
    EXPECT_EQ(EffectRun({"ab", "cd"}, 3).Apply(MiniRnd).Result(), (Letters{"a#", "##"}));
}

// From this seed both steps are 2. The miniature is "ac", a copy "ac#" over "###". The last four of
// 23 copies lie at (0, 0), (2, 2), (0, 2), (2, 0).
TEST(MiniFotoRnd, OddSides)
{
    EXPECT_EQ(EffectRun({"abcde", "fghij", "klmno"}, 12951).Apply(MiniRnd).Result(),
              (Letters{"acac#", "#####", "ac#c#"}));
}

// From this seed both steps are 2. A copy is "ace#", "moq#", "####". The last four of 23 copies lie
// at (0, 0), (2, 3), (0, 3), (3, 0).
TEST(MiniFotoRnd, EvenSides)
{
    EffectRun run({"abcdef", "ghijkl", "mnopqr", "stuvwx"}, 12951);
    EXPECT_EQ(run.Apply(MiniRnd).Result(), (Letters{"aceace", "moqmoq", "######", "ace#e#"}));
}

// As above, with an earlier capture in the cells beside the miniature.
TEST(MiniFotoRnd, PaintsOneColumnAndRowThatAnEarlierCaptureLeft)
{
    EffectRun run(Letters(9, "zzzzzzzzz"), 12951);
    run.Apply(RotazPiu);
    run.Load(Drawn({"abcdef", "ghijkl", "mnopqr", "stuvwx"}));
    EXPECT_EQ(run.Apply(MiniRnd).Result(), (Letters{"aceace", "moqmoq", "zzzzzz", "acezez"}));
}

TEST(MiniFotoRnd, DrawsAsItsDescriptionSaysAtManySizes)
{
    for (const auto& [width, height] :
         {std::pair(1, 1), std::pair(1, 9), std::pair(9, 1), std::pair(2, 2), std::pair(3, 3),
          std::pair(7, 5), std::pair(16, 16), std::pair(99, 99), std::pair(101, 81)}) {
        Surface expected = Varied(width, height);
        Cells cells;
        EffectRun run(expected, 40);
        // Twice: the second run has new numbers and the first one's cells.
        for (const std::uint64_t reading : {41U, 42U}) {
            Expect(expected, width, height, cells, ExpectedDraws(reading));
            EXPECT_EQ(run.Apply(MiniRnd).work.Picture1, expected) << width << "x" << height;
        }
    }
}

TEST(MiniFotoRnd, PaintsCellsOfARotationOnASmallerPicture)
{
    const Surface rotated = Varied(30, 30);
    EffectRun run(rotated, 7);
    run.Apply(RotazMeno);
    Cells cells;
    for (int y = 0; y <= 30; ++y)
        for (int x = 0; x <= 30; ++x)
            cells[{x, y}] = rotated.Point(x, y);
    Surface expected = Varied(20, 24);
    run.Load(expected);
    Expect(expected, 20, 24, cells, ExpectedDraws(8));
    EXPECT_EQ(run.Apply(MiniRnd).work.Picture1, expected);
}

// Nothing is sampled: each copy is one pixel of the cell (0, 0).
TEST(MiniFotoRnd, OfOneRowPaintsSinglePixels)
{
    EffectRun run(Letters(3, "zzz"));
    run.Apply(RotazPiu);
    run.Load(Drawn({"a"}));
    EXPECT_EQ(run.Apply(MiniRnd).Result(), (Letters{"z"}));
    EXPECT_TRUE(run.progress.values.empty());
    EXPECT_EQ(run.progress.shownAfter, 0);
}

// No column is sampled: each copy is a column of cells that nobody has written. Two rows make it
// two pixels high; from this seed one of the copies lies in row 0.
TEST(MiniFotoRnd, OfOneColumnPaintsUnwrittenCells)
{
    EXPECT_EQ(EffectRun({"a", "b"}).Apply(MiniRnd).Result(), (Letters{"#", "#"}));
}

TEST(MiniFotoRnd, CutsCopiesAtTheMeasuredPicture)
{
    Surface expected = Varied(21, 17);
    EffectRun run(expected, 5);
    run.work.Larg = 20;
    run.work.Alt = 16;
    Cells cells;
    Expect(expected, 20, 16, cells, ExpectedDraws(6));
    EXPECT_EQ(run.Apply(MiniRnd).work.Picture1, expected);
    EXPECT_EQ(run.work.Picture1.Point(20, 3), Varied(21, 17).Point(20, 3));
}

TEST(MiniFotoRnd, DiffersFromRunToRun)
{
    const Surface picture = Varied(40, 30);
    EffectRun run(picture);
    const Surface first = run.Apply(MiniRnd).work.Picture1;
    run.Load(picture);
    EXPECT_NE(run.Apply(MiniRnd).work.Picture1, first);
}

}  // namespace
}  // namespace pixano::test
