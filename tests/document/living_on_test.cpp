// What outlives an effect and the picture that it was made on: the adjusted sizes, and the matrix.
#include "support/program.h"

#include <set>

namespace pixano::test {
namespace {

/// A picture of odd sizes, which "Multifoto" makes even.
class AdjustedSizes : public Program {
  protected:
    AdjustedSizes()
    {
        Open("a.bmp", Varied(101, 81));
        Apply("Specchio");
        Apply("Multifoto");
    }
    QSize CanvasSize() const { return {Canvas().Width(), Canvas().Height()}; }
};

TEST_F(AdjustedSizes, ShowInTheCaptionsAndInThePreviewsSize)
{
    EXPECT_EQ(CanvasCaption(), "Multifoto   100x80");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (100 x 80) - 100%");
    // 100 * 15.2 / 15 = 101.33; 80 * 16.4 / 15 = 87.47. Of 101 x 81 it would be 102 x 89.
    EXPECT_EQ(session.form9.Image1().size(), QSize(101, 87));
    EXPECT_EQ(session.form9.size(), QSize(101, 87));
    // The picture itself keeps the column and the row that no effect reaches now.
    EXPECT_EQ(CanvasSize(), QSize(101, 81));
}

TEST_F(AdjustedSizes, OutliveEveryCommandOfTheHistory)
{
    for (const auto& [index, caption] : {std::pair(entry::Undo, "Multifoto   100x80"),
                                         {entry::Redo, "Multifoto   100x80"},
                                         {entry::Orig, "a.bmp   100x80"},
                                         {entry::Redo, "Multifoto   100x80"}}) {
        ClickEntry(index);
        EXPECT_EQ(CanvasCaption(), caption);
        EXPECT_EQ(PreviewCaption(), "a.bmp  (100 x 80) - 100%") << caption;
        EXPECT_EQ(CanvasSize(), QSize(101, 81)) << caption;
    }
}

TEST_F(AdjustedSizes, AreTheNextEffectsToo)
{
    Apply("Capovolgi");
    EXPECT_EQ(CanvasCaption(), "Capovolgi   100x80");
}

TEST_F(AdjustedSizes, EndWithThePicture)
{
    session.doc.Modificato = 0;
    Open("b.bmp", Varied(101, 81));
    EXPECT_EQ(CanvasCaption(), "b.bmp   101x81");
    Apply("Specchio");
    EXPECT_EQ(CanvasCaption(), "Specchio   101x81");
}

class Matrix : public Program {
  protected:
    std::set<Colour> Colours() const
    {
        std::set<Colour> colours;
        for (int y = 0; y < Canvas().Height(); ++y)
            for (int x = 0; x < Canvas().Width(); ++x)
                colours.insert(Canvas().Point(x, y));
        return colours;
    }
};

// Of a picture one pixel wide no column is sampled: each small photo is painted with what the
// matrix holds already.
TEST_F(Matrix, KeepsThePictureThatWasOpenBefore)
{
    constexpr Colour Red = 0x0000FF;
    constexpr Colour Green = 0x00FF00;
    Open("rossa.bmp", Surface(60, 60, Red));
    Apply("Rotazione -90°");
    session.doc.Modificato = 0;
    Open("verde.bmp", Surface(1, 20, Green));
    Apply("Mini Foto Rnd");
    EXPECT_TRUE(Colours().contains(Red));
    for (const Colour colour : Colours())
        EXPECT_TRUE(colour == Red || colour == Green) << colour;
}

}  // namespace
}  // namespace pixano::test
