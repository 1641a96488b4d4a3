// How large canvas and preview are, and how the preview's scale changes. 15 twips are a pixel; the
// picture is 200 x 100.
#include "document/showing.h"
#include "support/hindrances.h"
#include "support/program.h"

#include <QScreen>
#include <QScrollBar>

#include <utility>

namespace pixano::test {
namespace {

class Showing : public Program {
  protected:
    Showing() { Open("a.bmp", Varied(200, 100)); }

    void Enlarge() { Button("Command1").click(); }
    void Reduce() { Button("Command2").click(); }
    ImageControl& Image() { return session.form9.Image1(); }
};

TEST_F(Showing, SizesTheCanvasAfterOpening)
{
    // 200 * 15.8 / 15 = 210.67; 100 * 16.8 / 15 = 112
    EXPECT_EQ(session.form2.size(), QSize(211, 112));
    EXPECT_EQ(session.form2.pos(), QPoint(0, 0));
}

TEST_F(Showing, FitsThePictureBoxRoundThePictureWithABorderOfTwo)
{
    const PictureBox& box = session.form2.Picture1();
    EXPECT_EQ(box.size(), QSize(204, 104));
    EXPECT_EQ(box.contentsRect(), QRect(2, 2, 200, 100));
    EXPECT_EQ(box.mapTo(&session.form2, QPoint(0, 0)), QPoint(0, 0));
}

TEST_F(Showing, SizesThePreviewAfterOpeningAndDoesNotStretchIt)
{
    // 200 * 15 / 15; 100 * 15.2 / 15 = 101.33
    EXPECT_EQ(session.form9.size(), QSize(200, 101));
    EXPECT_EQ(Image().size(), QSize(200, 100));
    EXPECT_FALSE(Image().Stretch());
}

TEST_F(Showing, StretchesThePreviewAfterAnEffect)
{
    Apply("Specchio");
    // 200 * 15.2 / 15 = 202.67; 100 * 16.4 / 15 = 109.33
    EXPECT_EQ(Image().size(), QSize(203, 109));
    EXPECT_EQ(session.form9.size(), QSize(203, 109));
    EXPECT_TRUE(Image().Stretch());
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 100%");
    // The canvas window keeps its size.
    EXPECT_EQ(session.form2.size(), QSize(211, 112));
}

TEST_F(Showing, StretchesNoMoreWhenAnotherPictureIsOpened)
{
    Enlarge();
    Open("b.bmp", Varied(100, 50));
    EXPECT_FALSE(Image().Stretch());
    EXPECT_EQ(Image().size(), QSize(100, 50));
    // 50 * 15.2 / 15 = 50.67
    EXPECT_EQ(session.form9.size(), QSize(100, 51));
}

TEST_F(Showing, EnlargesThePreviewByThreeTenths)
{
    Enlarge();
    // 1.3 * 202.67 = 263.47; 1.3 * 109.33 = 142.13
    EXPECT_EQ(session.form9.size(), QSize(263, 142));
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 130%");
}

TEST_F(Showing, PrintsTheScaleWithoutTheNoiseOfItsSteps)
{
    const std::vector<const char*> expected{"130%", "160%", "190%", "220%", "250%", "280%"};
    for (const char* scale : expected) {
        Enlarge();
        EXPECT_EQ(PreviewCaption(), QString("a.bmp  (200 x 100) - ") + scale);
    }
}

TEST_F(Showing, ReducesThePreviewToFourTenthsAndNoFurther)
{
    Reduce();
    // 0.7 * 202.67 = 141.87; 0.7 * 109.33 = 76.53
    EXPECT_EQ(session.form9.size(), QSize(142, 77));
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 70%");
    for (int i = 0; i < 3; ++i) {
        Reduce();
        // 0.4 * 202.67 = 81.07; 0.4 * 109.33 = 43.73
        EXPECT_EQ(session.form9.size(), QSize(81, 44));
        EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 40%");
        EXPECT_EQ(session.doc.Zoom, 0.4);
    }
    Enlarge();
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 70%");
}

TEST_F(Showing, SetsNoUpperBoundToTheScale)
{
    for (int i = 0; i < 30; ++i)
        Enlarge();
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 1000%");
    EXPECT_EQ(Image().size(), QSize(2027, 1093));
}

TEST_F(Showing, KeepsTheScaleFromEffectToEffect)
{
    Enlarge();
    Apply("Specchio");
    EXPECT_EQ(session.form9.size(), QSize(263, 142));
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 130%");
}

TEST_F(Showing, CopiesTheCanvasByWayOfAFileInTheCurrentFolder)
{
    session.work.Picture1.PSet(0, 0, 0x123456);
    Mostra(session);
    EXPECT_TRUE(ReadPicture(Path("elabor.tmp").toStdString()).picture == Canvas());
    EXPECT_TRUE(Image().Picture() == Canvas());
}

TEST_F(Showing, TellsOnceWhyThePreviewsCopyCannotBeWritten)
{
    const auto toldOfCopy = [this](const QString& reason) {
        const std::vector<ShownBox> box{
            {BoxIcon::Exclamation, "Attenzione!",
             "L'anteprima mostra l'immagine com'è ora, ma la sua copia di lavoro non è stata "
             "scritta. Impossibile salvare «" +
                 Path("elabor.tmp") + "»: " + reason + "."}};
        return std::exchange(dialogs.told, {}) == box;
    };
    const QString tooLarge =
        "il file supera la dimensione consentita.\n\nLe modifiche sono comunque "
        "al sicuro: ce n'è una copia nel file «" +
        Data("elabor.tmp") + "»";
    QDir here;
    here.mkdir("elabor.tmp");
    Enlarge();
    EXPECT_TRUE(toldOfCopy("è una cartella"));
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 130%");
    Enlarge();
    Apply("Specchio");
    EXPECT_TRUE(dialogs.told.empty()) << "the same, for the same reason";
    here.rmdir("elabor.tmp");
    {
        const FileSizeLimit disk(0);
        Enlarge();
    }
    EXPECT_TRUE(toldOfCopy(tooLarge)) << "another reason";
    Enlarge();
    EXPECT_TRUE(dialogs.told.empty()) << "it is written";
    const FileSizeLimit disk(0);
    Enlarge();
    EXPECT_TRUE(toldOfCopy(tooLarge)) << "it was, meanwhile";
}

TEST_F(Showing, ShowsPreviewAndPaletteAgainThatWereHidden)
{
    session.form9.hide();
    session.form10.close();
    Mostra(session);
    EXPECT_TRUE(session.form9.isVisible());
    EXPECT_TRUE(session.form10.isVisible());
}

TEST_F(Showing, HoldsALargePictureToTheScreenWithScrollBars)
{
    const QSize screen = session.form1.screen()->availableGeometry().size();
    Open("grande.bmp", Varied(2 * screen.width(), 2 * screen.height()));
    for (HeldWindow* const window :
         std::initializer_list<HeldWindow*>{&session.form2, &session.form9}) {
        EXPECT_LE(window->frameGeometry().width(), screen.width());
        EXPECT_LE(window->frameGeometry().height(), screen.height());
        EXPECT_GT(window->width(), screen.width() / 2);
        EXPECT_TRUE(window->horizontalScrollBar()->isVisible());
        EXPECT_TRUE(window->verticalScrollBar()->isVisible());
    }
    EXPECT_EQ(session.form2.Picture1().width(), 2 * screen.width() + 4);
}

TEST_F(Showing, HoldsOnlyTheSideThatIsTooLong)
{
    const int width = 2 * session.form1.screen()->availableGeometry().width();
    Open("larga.bmp", Varied(width, 100));
    EXPECT_EQ(session.form2.height(), 112);
    EXPECT_LT(session.form2.width(), width);
    EXPECT_TRUE(session.form2.horizontalScrollBar()->isVisible());
}

TEST_F(Showing, GivesASmallPictureNoScrollBars)
{
    // 10 * 15.8 / 15 = 10.53, less than the 14 that the box takes: it is seen as a whole all the
    // same.
    Open("piccola.bmp", Varied(10, 10));
    EXPECT_EQ(session.form2.size(), QSize(14, 14));
    EXPECT_FALSE(session.form2.horizontalScrollBar()->isVisible());
    EXPECT_FALSE(session.form2.verticalScrollBar()->isVisible());
    EXPECT_EQ(session.form2.viewport()->size(), QSize(14, 14));
}

}  // namespace
}  // namespace pixano::test
