// What steps in the history do to names, captions and the document's marks.
#include "document/history.h"
#include "document/history_run.h"

namespace pixano::test {
namespace {

TEST_F(HistoryCommands, ForgetTheSavedNameGoingBack)
{
    A();
    B();
    SaveAs(Path("s.bmp"));
    Undo();
    EXPECT_EQ(session.doc.NomeSalvato, "");
}

TEST_F(HistoryCommands, KeepTheSavedNameGoingForward)
{
    A();
    B();
    Undo();
    SaveAs(Path("s.bmp"));
    Redo();
    EXPECT_EQ(session.doc.NomeSalvato, Path("s.bmp"));
    EXPECT_EQ(session.doc.Modificato, 1);
}

TEST_F(HistoryCommands, LoadTheOriginalAsIfJustOpenedWhenAllWasSaved)
{
    A();
    B();
    SaveAs(Path("s.bmp"));
    Orig();
    // The picture is loaded by the opening's own steps: they switch the history off.
    ExpectShown({"abc"}, "a.bmp   3x1");
    ExpectUsable({false, false, false}, false);
    EXPECT_EQ(PreviewCaption(), "a.bmp  (3 x 1) - 100%");
    EXPECT_EQ(session.doc.NomeSalvato, "");
    EXPECT_EQ(session.doc.NomeCorto, "a.bmp");
    EXPECT_EQ(session.doc.Cartella, QDir::currentPath() + '/');
    EXPECT_TRUE(Enabled(37));
}

TEST_F(HistoryCommands, KeepThePreviewsScaleAndCaptionWhenTheOriginalHasUnsavedChanges)
{
    A();
    Button("Command1").click();
    Orig();
    EXPECT_EQ(PreviewCaption(), "a.bmp  (3 x 1) - 130%");
    EXPECT_TRUE(session.form9.Image1().Stretch());
}

TEST_F(HistoryCommands, FollowTheOpenedPicturesNameAfterASaveUnderAnother)
{
    A();
    SaveAs(Path("s.bmp"));
    A();
    Orig();
    EXPECT_EQ(session.doc.NomeCorto, "a.bmp");
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
}

TEST_F(HistoryCommands, LeaveTheSizeAlone)
{
    A();
    session.work.Larg = 2;
    Orig();
    EXPECT_EQ(session.work.Larg, 2);
}

TEST_F(HistoryCommands, MarkTheBeginningOfAnEffect)
{
    A();
    B();
    Undo();
    Abil(session);
    EXPECT_EQ(session.doc.NumEffetti, 3);
    EXPECT_EQ(session.doc.NumEffettiSalvato, 3);
    EXPECT_EQ(session.doc.Annullato, 0);
    // The palette's "Annulla" follows at the effect's end.
    EXPECT_EQ(MenuHistory(), (History{true, true, false}));
    EXPECT_EQ(PaletteHistory(), (History{false, true, false}));
    EXPECT_TRUE(Enabled(entry::Salva));
    EXPECT_EQ(session.form10.cursor().shape(), Qt::WaitCursor);
}

}  // namespace
}  // namespace pixano::test
