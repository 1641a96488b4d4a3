// The end of the program: the question about unsaved changes and what is left on disk.
#include "support/program.h"

namespace pixano::test {
namespace {

const ShownBox AboutElaborated{BoxIcon::Exclamation, "Avviso!",
                               "Salvare i cambiamenti del file elaborato?"};

class Ending : public Program {
  protected:
    Ending()
    {
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
        Apply("Capovolgi");
        ClickEntry(entry::Undo);
    }

    bool Ended() const { return session.ending == 0 && !session.form1.isVisible(); }
    /// What the program leaves in the two folders, apart from the remembered path.
    QStringList Left() const
    {
        QStringList names = QDir::current().entryList(QDir::Files);
        names += QDir(Data("")).entryList(QDir::Files);
        names.removeAll("percors.dat");
        names.sort();
        return names;
    }
};

TEST_F(Program, EndsWithoutAQuestionWhenNothingIsOpen)
{
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(session.ending, 0);
    EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(Program, EndsAtTheEntryEsci)
{
    ClickEntry(entry::Esci);
    EXPECT_EQ(session.ending, 0);
    EXPECT_FALSE(session.form1.isVisible());
}

TEST_F(Ending, DeletesTheSnapshotsAndThePreviewsCopyWithoutAQuestionWhenAllIsSaved)
{
    SaveAs(Path("s.bmp"));
    ASSERT_EQ(Left(), (QStringList{"a.bmp", "elabor.tmp", "s.bmp", "temp.bml", "temp2.bml"}));
    EXPECT_TRUE(session.form1.close());
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_TRUE(Ended());
    EXPECT_EQ(Left(), (QStringList{"a.bmp", "s.bmp"}));
}

TEST_F(Program, DeletesSnapshotsOfAnEarlierRun)
{
    QDir().mkpath(Data(""));
    Write(Data("temp.bml"), "x");
    Write(Data("temp2.bml"), "x");
    EXPECT_TRUE(session.form1.close());
    EXPECT_FALSE(Exists(Data("temp.bml")));
    EXPECT_FALSE(Exists(Data("temp2.bml")));
}

TEST_F(Program, LeavesAFileThatIsNotItsOwnPreviewCopy)
{
    Write("elabor.tmp", "di altri");
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(Bytes("elabor.tmp"), "di altri");
}

TEST_F(Program, DeletesTheCopyInTheDataFolderToo)
{
    QDir().mkdir("elabor.tmp");
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    ASSERT_TRUE(Exists(Data("elabor.tmp")));
    dialogs.answers = {false};
    EXPECT_TRUE(session.form1.close());
    EXPECT_FALSE(Exists(Data("elabor.tmp")));
    EXPECT_TRUE(Exists(Path("elabor.tmp"))) << "the user's own folder";
}

TEST_F(Ending, ThrowsTheChangesAwayAfterNo)
{
    dialogs.answers = {false};
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(dialogs.asked, (std::vector<ShownBox>{AboutElaborated}));
    EXPECT_TRUE(Ended());
    EXPECT_EQ(Left(), (QStringList{"a.bmp"}));
}

TEST_F(Ending, SavesUnderANewNameAfterYes)
{
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("s.bmp"));
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(dialogs.asked, (std::vector<ShownBox>{AboutElaborated}));
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"cba"}));
    EXPECT_TRUE(Ended());
}

TEST_F(Ending, SavesUnderTheNameUsedLastWithoutADialog)
{
    SaveAs(Path("s.bmp"));
    Apply("Specchio");
    dialogs.answers = {true};
    dialogs.saveFolders.clear();
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(dialogs.asked,
              (std::vector<ShownBox>{{BoxIcon::Exclamation, "Avviso!",
                                      "Salvare i cambiamenti del file " + Path("s.bmp") + "?"}}));
    EXPECT_TRUE(dialogs.saveFolders.empty());
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"abc"}));
    EXPECT_TRUE(Ended());
}

TEST_F(Ending, GoesOnWhenTheSaveDialogIsCancelledAndTheCanvasAsksOnceMore)
{
    dialogs.answers = {true, false};
    dialogs.saveNames.push_back(std::nullopt);
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(dialogs.asked,
              (std::vector<ShownBox>{AboutElaborated, {BoxIcon::None, "", AboutElaborated.text}}));
    EXPECT_TRUE(Ended());
    EXPECT_EQ(Left(), (QStringList{"a.bmp"}));
}

TEST_F(Ending, IsCalledOffByASaveThatFails)
{
    // At the first question, and at the one that follows a cancelled save dialog.
    for (const bool first : {true, false}) {
        SCOPED_TRACE(first);
        dialogs.told.clear();
        dialogs.answers = {true};
        dialogs.saveNames = {Path("manca/s.bmp")};
        if (!first) {
            dialogs.answers.push_front(true);
            dialogs.saveNames.push_front(std::nullopt);
        }
        EXPECT_FALSE(session.form1.close());
        EXPECT_EQ(dialogs.told.size(), 1U);
        EXPECT_FALSE(session.ending.has_value());
        EXPECT_TRUE(session.form1.isVisible());
        EXPECT_TRUE(session.form2.isVisible());
        EXPECT_EQ(session.doc.Modificato, 1);
    }
    // Back and forth still work: the snapshots are there.
    ClickEntry(entry::Redo);
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
}

TEST_F(Ending, IsCalledOffWhenTheNameUsedLastCannotBeWritten)
{
    QDir::current().mkdir("qui");
    SaveAs(Path("qui/s.bmp"));
    Apply("Specchio");
    QDir(Path("qui")).removeRecursively();
    dialogs.answers = {true};
    ClickEntry(entry::Esci);
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                                    "Impossibile salvare «" + Path("qui/s.bmp") +
                                                        "»: la cartella non esiste."}}));
    EXPECT_FALSE(session.ending.has_value());
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_TRUE(Exists(Data("temp.bml")));
}

/// A folder stands where a snapshot is to be deleted.
class HinderedEnding : public Ending {
  protected:
    HinderedEnding()
    {
        QFile::remove(Data("temp.bml"));
        QDir().mkpath(Data("temp.bml/occupata"));
        dialogs.answers = {false};
    }
    void ExpectEndWithAnError()
    {
        ASSERT_EQ(dialogs.told.size(), 1U);
        EXPECT_EQ(dialogs.told[0].text,
                  "Errore durante il comando «Esci»:\nImpossibile eliminare «" + Data("temp.bml") +
                      "»: è una cartella.\n\nIl programma termina.");
        EXPECT_EQ(session.ending, 1);
    }
};

TEST_F(HinderedEnding, EndsWithAnErrorAtTheWindowsOwnButton)
{
    session.form1.close();
    ExpectEndWithAnError();
}

TEST_F(HinderedEnding, EndsWithAnErrorAtTheEntry)
{
    ClickEntry(entry::Esci);
    ExpectEndWithAnError();
}

TEST_F(Ending, ClosesAllWindows)
{
    dialogs.answers = {false};
    session.form1.close();
    EXPECT_FALSE(session.form2.isVisible());
    EXPECT_FALSE(session.form9.isVisible());
    EXPECT_FALSE(session.form10.isVisible());
}

TEST_F(Ending, AsksNothingRightAfterTheOriginal)
{
    ClickEntry(entry::Orig);
    EXPECT_TRUE(session.form1.close());
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_TRUE(Ended());
}

}  // namespace
}  // namespace pixano::test
