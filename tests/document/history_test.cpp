// One step back, one forward, back to the opened picture: what the canvas shows and what can be
// used next. "abc" becomes "cba" by "Specchio" (A), then "~ab" by "Capovolgi" (B).
#include "document/history.h"
#include "support/program.h"

namespace pixano::test {
namespace {

class HistoryCommands : public Program {
  protected:
    HistoryCommands() { Open("a.bmp", Drawn({"abc"})); }

    void A() { Apply("Specchio"); }
    void B() { Apply("Capovolgi"); }
    void Undo() { ClickEntry(entry::Undo); }
    void Redo() { ClickEntry(entry::Redo); }
    void Orig() { ClickEntry(entry::Orig); }

    /// Menu and palette alike, and "&Salva File".
    void ExpectUsable(const History& history, bool salva)
    {
        EXPECT_EQ(MenuHistory(), history);
        EXPECT_EQ(PaletteHistory(), history);
        EXPECT_EQ(Enabled(entry::Salva), salva);
    }
    void ExpectShown(const Letters& letters, const QString& caption)
    {
        EXPECT_EQ(CanvasLetters(), letters);
        EXPECT_EQ(PreviewLetters(), letters);
        EXPECT_EQ(CanvasCaption(), caption);
    }
};

TEST_F(HistoryCommands, OffersNothingRightAfterOpening)
{
    ExpectUsable({false, false, false}, false);
}

TEST_F(HistoryCommands, OffersOnlyTheOriginalAfterOneEffect)
{
    A();
    ExpectUsable({false, true, false}, true);
    EXPECT_EQ(session.doc.NumEffetti, 1);
}

TEST_F(HistoryCommands, OffersUndoAfterTwoEffects)
{
    A();
    B();
    ExpectUsable({true, true, false}, true);
    ExpectShown({"~ab"}, "Capovolgi   3x1");
    EXPECT_EQ(session.doc.NumEffetti, 2);
    EXPECT_EQ(session.doc.NumEffettiSalvato, 2);
}

TEST_F(HistoryCommands, GoesBackToThePictureBeforeTheLastEffect)
{
    A();
    B();
    Undo();
    ExpectShown({"cba"}, "Capovolgi   3x1");
    ExpectUsable({false, true, true}, true);
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(session.doc.Annullato, 1);
    EXPECT_EQ(session.doc.InOriginale, 0);
    EXPECT_EQ(Kept(Data("temp2.bml")), (Letters{"~ab"}));
}

TEST_F(HistoryCommands, GoesForwardAgain)
{
    A();
    B();
    Undo();
    Redo();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
    ExpectUsable({true, true, false}, true);
    EXPECT_EQ(session.doc.Annullato, 0);
}

TEST_F(HistoryCommands, GoesBackASecondTimeToTheSamePicture)
{
    A();
    B();
    Undo();
    Redo();
    QFile::remove(Data("temp2.bml"));
    Undo();
    ExpectShown({"cba"}, "Capovolgi   3x1");
    EXPECT_EQ(Kept(Data("temp2.bml")), (Letters{"~ab"}));
}

TEST_F(HistoryCommands, GoesBackToTheOpenedPicture)
{
    A();
    B();
    Orig();
    ExpectShown({"abc"}, "a.bmp   3x1");
    ExpectUsable({true, false, true}, false);
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.InOriginale, 1);
    EXPECT_EQ(session.doc.NumEffetti, 0);
    EXPECT_EQ(session.doc.NumEffettiSalvato, 2);
}

TEST_F(HistoryCommands, GoesForwardFromTheOpenedPicture)
{
    A();
    B();
    Orig();
    Redo();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
    ExpectUsable({true, true, false}, true);
    EXPECT_EQ(session.doc.NumEffetti, 2);
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(session.doc.InOriginale, 0);
}

TEST_F(HistoryCommands, OffersNoUndoAfterTheOriginalOfOneEffect)
{
    A();
    Orig();
    ExpectUsable({false, false, true}, false);
    Redo();
    ExpectShown({"cba"}, "Specchio   3x1");
    ExpectUsable({false, true, false}, true);
}

TEST_F(HistoryCommands, KeepsTheLaterPictureWhenTheOriginalFollowsAnUndo)
{
    A();
    B();
    Undo();
    Orig();
    ExpectShown({"abc"}, "a.bmp   3x1");
    EXPECT_EQ(Kept(Data("temp2.bml")), (Letters{"~ab"}));
    EXPECT_EQ(session.doc.Annullato, 0);
    Redo();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
}

TEST_F(HistoryCommands, KeepsTheLaterPictureWhenAnUndoFollowsTheOriginal)
{
    A();
    B();
    Orig();
    Undo();
    ExpectShown({"cba"}, "Capovolgi   3x1");
    EXPECT_EQ(Kept(Data("temp2.bml")), (Letters{"~ab"}));
    EXPECT_EQ(session.doc.InOriginale, 0);
    EXPECT_EQ(session.doc.NumEffetti, 2);
    Redo();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
}

TEST_F(HistoryCommands, OffersNoWayForwardAfterAnotherEffect)
{
    A();
    B();
    Undo();
    A();
    ExpectUsable({true, true, false}, true);
    ExpectShown({"abc"}, "Specchio   3x1");
}

TEST_F(HistoryCommands, WorkFromThePaletteToo)
{
    A();
    B();
    Button("SSCommand15").click();
    ExpectShown({"cba"}, "Capovolgi   3x1");
    Button("SSCommand17").click();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
    Button("SSCommand16").click();
    ExpectShown({"abc"}, "a.bmp   3x1");
}

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
