// The history when its files are missing, foreign or damaged, and when the opened picture has gone.
#include "document/seen.h"
#include "support/program.h"

namespace pixano::test {
namespace {

/// "abc" became "cba", then "~ab".
class DamagedHistory : public Program {
  protected:
    DamagedHistory()
    {
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
        Apply("Capovolgi");
    }

    void ExpectUndoneWithoutAPicture()
    {
        EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
        EXPECT_EQ(CanvasCaption(), "Capovolgi   3x1");
        EXPECT_EQ(MenuHistory(), (History{false, true, true}));
        EXPECT_EQ(session.doc.Annullato, 1);
        EXPECT_EQ(session.doc.Modificato, 1);
        EXPECT_TRUE(dialogs.told.empty());
    }
    void ExpectRedoFails()
    {
        ClickEntry(entry::Redo);
        ASSERT_EQ(dialogs.told.size(), 1U);
        EXPECT_EQ(dialogs.told[0].icon, BoxIcon::Critical);
        EXPECT_THAT(dialogs.told[0].text.toStdString(),
                    testing::StartsWith("Errore durante il comando «Ripristina»:\n"));
        EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
        EXPECT_FALSE(session.ending.has_value());
    }

    /// "temp2.bml" cannot be written: one message tells, and "Ripristina" comes back all the same.
    void ExpectTheWayForwardInMemory()
    {
        ASSERT_EQ(dialogs.told.size(), 1U);
        EXPECT_EQ(dialogs.told[0].text, "Impossibile salvare «" + Data("temp2.bml") +
                                            "»: è una cartella. L'immagine resta in memoria: "
                                            "«Ripristina» la riporta finché Pixano è aperto.");
        ClickEntry(entry::Redo);
        EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
        EXPECT_EQ(session.doc.Modificato, 1);
        EXPECT_EQ(dialogs.told.size(), 1U);
    }
};

TEST_F(DamagedHistory, GoesOnWithoutAPictureToGoBackTo)
{
    QFile::remove(Data("temp.bml"));
    ClickEntry(entry::Undo);
    ExpectUndoneWithoutAPicture();
}

TEST_F(DamagedHistory, TakesNoForeignPictureOfAnotherWidthGoingBack)
{
    SaveBitmap(Drawn({"xy"}), Data("temp.bml").toStdString());
    ClickEntry(entry::Undo);
    ExpectUndoneWithoutAPicture();
}

TEST_F(DamagedHistory, TakesNoForeignPictureOfAnotherHeightGoingBack)
{
    SaveBitmap(Drawn({"xyz", "xyz"}), Data("temp.bml").toStdString());
    ClickEntry(entry::Undo);
    ExpectUndoneWithoutAPicture();
}

TEST_F(DamagedHistory, TakesNoTruncatedSnapshotGoingBack)
{
    // 54 bytes of header, 12 of pixels.
    Write(Data("temp.bml"), Bytes(Data("temp.bml")).substr(0, 60));
    ClickEntry(entry::Undo);
    ExpectUndoneWithoutAPicture();
}

TEST_F(DamagedHistory, TakesNothingThatIsNoPictureGoingBack)
{
    Write(Data("temp.bml"), "solo testo");
    ClickEntry(entry::Undo);
    ExpectUndoneWithoutAPicture();
}

TEST_F(DamagedHistory, FollowsNoLinkGoingBack)
{
    QFile::remove(Data("temp.bml"));
    QFile::link(Made("altra.bmp", Drawn({"xyz"})), Data("temp.bml"));
    ClickEntry(entry::Undo);
    ExpectUndoneWithoutAPicture();
}

TEST_F(DamagedHistory, GoesBackEvenWhereTheWayForwardCannotBeKept)
{
    QDir().mkpath(Data("temp2.bml"));
    ClickEntry(entry::Undo);
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    ExpectTheWayForwardInMemory();
}

// The file can be written again: what was kept in memory before is no longer the last effect.
TEST_F(DamagedHistory, GoesForwardToTheLatestEffectAfterOneThatWasKeptInMemory)
{
    QDir().mkpath(Data("temp2.bml"));
    ClickEntry(entry::Undo);
    ExpectTheWayForwardInMemory();
    QDir().rmdir(Data("temp2.bml"));
    Apply("Specchio");
    EXPECT_EQ(CanvasLetters(), (Letters{"ba~"}));
    ClickEntry(entry::Undo);
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
    ClickEntry(entry::Redo);
    EXPECT_EQ(CanvasLetters(), (Letters{"ba~"}));
}

TEST_F(DamagedHistory, TellsThatThereIsNoPictureToGoForwardTo)
{
    ClickEntry(entry::Undo);
    QFile::remove(Data("temp2.bml"));
    ClickEntry(entry::Redo);
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{{BoxIcon::Critical, "Attenzione!",
                                      "Errore durante il comando «Ripristina»:\n"
                                      "Impossibile leggere «" +
                                          Data("temp2.bml") + "»: il file non esiste."}}));
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    // The steps before the picture were done, those after it were not.
    EXPECT_EQ(MenuHistory(), (History{true, true, false}));
    EXPECT_EQ(session.doc.Annullato, 1);
}

TEST_F(DamagedHistory, TakesNoForeignPictureOfAnotherSizeGoingForward)
{
    ClickEntry(entry::Undo);
    SaveBitmap(Drawn({"xy"}), Data("temp2.bml").toStdString());
    ExpectRedoFails();
}

TEST_F(DamagedHistory, TakesNoTruncatedSnapshotGoingForward)
{
    ClickEntry(entry::Undo);
    Write(Data("temp2.bml"), Bytes(Data("temp2.bml")).substr(0, 60));
    ExpectRedoFails();
}

TEST_F(DamagedHistory, WorksOnAfterAFailedStepForward)
{
    ClickEntry(entry::Undo);
    QFile::remove(Data("temp2.bml"));
    ExpectRedoFails();
    Apply("Specchio");
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
}

TEST_F(DamagedHistory, TellsThatTheOpenedPictureHasGoneAndKeepsTheChangesMarked)
{
    QFile::remove(Path("a.bmp"));
    ClickEntry(entry::Orig);
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                                    "Impossibile leggere «" + Path("a.bmp") +
                                                        "»: il file non esiste."}}));
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
    EXPECT_EQ(MenuHistory(), (History{true, false, true}));
    ClickEntry(entry::Redo);
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
}

TEST_F(DamagedHistory, NamesTheOpenedPictureThatHasGoneThoughItWasSavedUnderAnother)
{
    SaveAs(Path("s.bmp"));
    Apply("Specchio");
    QFile::remove(Path("a.bmp"));
    ClickEntry(entry::Orig);
    EXPECT_EQ(session.doc.NomeCorto, "a.bmp");
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
}

TEST_F(DamagedHistory, KeepsTheChangesWhenTheOpenedPictureNowHasAnotherSize)
{
    const QString why = "L'immagine nel file «" + Path("a.bmp") + "» ora ha un'altra misura.";
    for (const Letters& other : {Letters{"xy"}, Letters{"abc", "xyz"}}) {
        Made("a.bmp", Drawn(other));
        ClickEntry(entry::Orig);
        EXPECT_EQ(dialogs.told,
                  (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!", why}}));
        EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
        EXPECT_EQ(session.doc.Modificato, 1);
        dialogs.told.clear();
        ClickEntry(entry::Redo);
    }
}

TEST_F(DamagedHistory, LoadsAnOpenedPictureOfAnotherSizeWhenAllWasSaved)
{
    SaveAs(Path("s.bmp"));
    Made("a.bmp", Drawn({"xy"}));
    ClickEntry(entry::Orig);
    EXPECT_EQ(CanvasLetters(), (Letters{"xy"}));
    EXPECT_EQ(CanvasCaption(), "a.bmp   2x1");
    EXPECT_EQ(session.work.Larg, 2);
}

TEST_F(DamagedHistory, ShowsTheOpenedPictureEvenWhereTheWayForwardCannotBeKept)
{
    QDir().mkpath(Data("temp2.bml"));
    ClickEntry(entry::Orig);
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
    EXPECT_EQ(session.doc.Modificato, 0);
    ExpectTheWayForwardInMemory();
}

}  // namespace
}  // namespace pixano::test
