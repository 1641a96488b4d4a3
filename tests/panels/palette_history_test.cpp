// The palette's buttons for the history and for the preview's scale in the running program.
#include "panels/asked.h"
#include "support/program.h"
#include "support/values.h"

namespace pixano::test {
namespace {

class PressedPalette : public Program {
  protected:
    void Press(const char* name) { ClickButton(session.form10, name); }
};

class PaletteHistoryButtons : public PressedPalette {
  protected:
    PaletteHistoryButtons() { Open("figura.bmp", Varied(61, 46)); }

    /// What can be used, in the menu and on the palette alike.
    History Usable()
    {
        EXPECT_EQ(PaletteHistory(), MenuHistory());
        return PaletteHistory();
    }
};

constexpr const char* Annulla = "SSCommand15";
constexpr const char* Originale = "SSCommand16";
constexpr const char* Ripristina = "SSCommand17";
constexpr const char* Capovolgi = "SSCommand14";
constexpr const char* Specchio = "SSCommand13";

TEST_F(PaletteHistoryButtons, IsOffAfterOpening)
{
    EXPECT_EQ(Usable(), (History{false, false, false}));
}

TEST_F(PaletteHistoryButtons, CannotUndoTheFirstEffectOnly)
{
    Press(Capovolgi);
    EXPECT_EQ(Usable(), (History{false, true, false}));
    Press(Specchio);
    EXPECT_EQ(Usable(), (History{true, true, false}));
}

TEST_F(PaletteHistoryButtons, GoesBackAndForward)
{
    Press(Capovolgi);
    const Values first = ValuesOf(Canvas());
    Press(Specchio);
    const Values second = ValuesOf(Canvas());
    Press(Annulla);
    EXPECT_TRUE(ValuesOf(Canvas()) == first);
    EXPECT_EQ(Usable(), (History{false, true, true}));
    Press(Ripristina);
    EXPECT_TRUE(ValuesOf(Canvas()) == second);
    EXPECT_EQ(Usable(), (History{true, true, false}));
}

TEST_F(PaletteHistoryButtons, GoesBackToThePictureAsItWasOpened)
{
    const Values opened = ValuesOf(Canvas());
    Press(Capovolgi);
    Press(Specchio);
    const Values second = ValuesOf(Canvas());
    Press(Originale);
    EXPECT_TRUE(ValuesOf(Canvas()) == opened);
    EXPECT_EQ(Usable(), (History{true, false, true}));
    Press(Ripristina);
    EXPECT_TRUE(ValuesOf(Canvas()) == second);
}

TEST_F(PaletteHistoryButtons, CannotGoForwardFromANewEffect)
{
    Press(Capovolgi);
    Press(Specchio);
    Press(Annulla);
    Press(Specchio);
    EXPECT_EQ(Usable(), (History{true, true, false}));
}

// ---- zoom ----

class PaletteZoom : public PressedPalette {
  protected:
    PaletteZoom() { Open("a.bmp", Varied(200, 100)); }

    QSize PreviewSize() { return session.form9.Image1().size(); }
};

TEST_F(PaletteZoom, EnlargesThePreviewByThreeTenths)
{
    Press("Command1");
    // 1.3 x 15.2 x 200 = 3952 twips and 1.3 x 16.4 x 100 = 2132 twips, 15 to a pixel.
    EXPECT_EQ(PreviewSize(), QSize(263, 142));
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 130%");
}

TEST_F(PaletteZoom, ReducesItDownToFourTenths)
{
    for (const char* scale : {"70%", "40%", "40%", "40%"}) {
        Press("Command2");
        EXPECT_EQ(PreviewCaption(), QString("a.bmp  (200 x 100) - ") + scale);
    }
    // 0.4 x 3040 = 1216 twips and 0.4 x 1640 = 656 twips.
    EXPECT_EQ(PreviewSize(), QSize(81, 44));
    Press("Command1");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 70%");
}

TEST_F(PaletteZoom, HasNoUpperLimit)
{
    for (int i = 0; i < 20; ++i)
        Press("Command1");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 700%");
    // 7 x 3040 = 21280 twips and 7 x 1640 = 11480 twips.
    EXPECT_EQ(PreviewSize(), QSize(1419, 765));
}

TEST_F(PaletteZoom, LeavesThePictureAndItsHistoryAlone)
{
    const Values opened = ValuesOf(Canvas());
    Press("Command1");
    EXPECT_TRUE(ValuesOf(Canvas()) == opened);
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.NumEffetti, 0);
    EXPECT_EQ(CanvasCaption(), "a.bmp   200x100");
}

TEST_F(PaletteZoom, StaysForTheNextEffectAndGoesWithTheNextPicture)
{
    Press("Command1");
    Press("SSCommand14");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 130%");
    dialogs.answers.push_back(false);
    Open("b.bmp", Varied(20, 10));
    EXPECT_EQ(PreviewCaption(), "b.bmp  (20 x 10) - 100%");
    EXPECT_EQ(session.doc.Zoom, 1);
}

}  // namespace
}  // namespace pixano::test
