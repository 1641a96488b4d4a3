// Openings that come to nothing, and the question about unsaved changes that comes before.
#include "document/seen.h"
#include "support/hindrances.h"
#include "support/program.h"

#include <sys/stat.h>

namespace pixano::test {
namespace {

/// A picture is open that was changed once: "cba" instead of "abc".
class ChangedPicture : public Program {
  protected:
    ChangedPicture()
    {
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
    }
};

/// The box that says why the picture at `path` cannot be read.
ShownBox Unreadable(const QString& path, const QString& why)
{
    return {BoxIcon::Exclamation, "Attenzione!",
            "Impossibile leggere «" + path + "»: " + why + "."};
}

TEST_F(Program, TellsThatTheChosenFileDoesNotExist)
{
    Open("a.bmp", Drawn({"abc"}));
    const Seen before(session);
    Open(Path("no.bmp"));
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                                    "File " + Path("no.bmp") + " non trovato!"}}));
    EXPECT_TRUE(Seen(session) == before);
    EXPECT_EQ(Bytes("percors.dat"), "\"" + Path("a.bmp").toStdString() + "\"\r\n");
}

TEST_F(Program, SaysNothingWhenTheOpenDialogIsCancelled)
{
    const Seen before(session);
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_TRUE(dialogs.told.empty());
    EXPECT_TRUE(Seen(session) == before);
    EXPECT_FALSE(session.form2.isVisible());
}

TEST_F(Program, TellsWhyAFileIsNoPictureAndKeepsTheOneThatIsOpen)
{
    Open("a.bmp", Drawn({"abc"}));
    const Seen before(session);
    Write("b.bmp", "solo testo");
    Open(Path("b.bmp"));
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{
                                Unreadable(Path("b.bmp"), "non è un'immagine BMP, JPEG o GIF")}));
    EXPECT_TRUE(Seen(session) == before);
    EXPECT_EQ(Bytes("percors.dat"), "\"" + Path("a.bmp").toStdString() + "\"\r\n");
}

TEST_F(Program, TellsThatAFileMayNotBeReadRatherThanThatItIsMissing)
{
    QDir().mkdir("chiusa");
    Write("chiusa/b.bmp", "");
    const OrdinaryUser user{Root().toStdString()};
    ASSERT_EQ(chmod("chiusa", 0), 0);
    Open(Path("chiusa/b.bmp"));
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{Unreadable(Path("chiusa/b.bmp"), "manca il permesso")}));
    chmod("chiusa", 0700);
}

TEST_F(Program, RefusesAPipeWithoutWaitingForIt)
{
    ASSERT_EQ(mkfifo(Path("a.bmp").toUtf8().constData(), 0600), 0);
    const Seen before(session);
    Open(Path("a.bmp"));
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{Unreadable(Path("a.bmp"), "è una pipe, non un file")}));
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(Program, RefusesAFolder)
{
    QDir::current().mkdir("a.bmp");
    const Seen before(session);
    Open(Path("a.bmp"));
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{Unreadable(Path("a.bmp"), "è una cartella")}));
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(Program, IgnoresAPipeWhereTheRememberedPathShouldBe)
{
    ASSERT_EQ(mkfifo(Path("percors.dat").toUtf8().constData(), 0600), 0);
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(dialogs.openFolders.size(), 1U);
}

TEST_F(Program, MakesTheStartUpFolderCurrentAgainAfterAnUnreadableFile)
{
    Write("a.bmp", "solo testo");
    const QString name = Path("a.bmp");
    dialogs.meanwhile = [this] {
        if (dialogs.told.empty()) QDir::setCurrent("/");
    };
    Open(name);
    EXPECT_EQ(QDir::currentPath(), session.doc.CartellaAvvio);
}

// ---- with unsaved changes ----

TEST_F(ChangedPicture, AsksWhatIsToBecomeOfTheChanges)
{
    dialogs.answers = {false};
    Open("b.bmp", Drawn({"xy"}));
    EXPECT_EQ(dialogs.asked,
              (std::vector<ShownBox>{
                  {BoxIcon::Question, "Messaggio!", "Salvare i cambiamenti del file elaborato?"}}));
    EXPECT_EQ(CanvasLetters(), (Letters{"xy"}));
    EXPECT_EQ(session.doc.Modificato, 0);
}

TEST_F(ChangedPicture, NamesTheFileThatTheChangesWereSavedUnder)
{
    SaveAs(Path("s.bmp"));
    Apply("Specchio");
    dialogs.answers = {false};
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(dialogs.asked,
              (std::vector<ShownBox>{{BoxIcon::Question, "Messaggio!",
                                      "Salvare i cambiamenti del file " + Path("s.bmp") + "?"}}));
}

TEST_F(ChangedPicture, StaysMarkedWhenNoIsFollowedByACancelledDialog)
{
    const Seen before(session);
    dialogs.answers = {false};
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(ChangedPicture, StaysMarkedWhenNoIsFollowedByAMissingFile)
{
    const Seen before(session);
    dialogs.answers = {false};
    Open(Path("no.bmp"));
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(ChangedPicture, StaysMarkedWhenNoIsFollowedByAnUnreadableFile)
{
    const Seen before(session);
    Write("b.bmp", "solo testo");
    dialogs.answers = {false};
    Open(Path("b.bmp"));
    EXPECT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(ChangedPicture, IsSavedWithYesBeforeTheNextIsOpened)
{
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("s.bmp"));
    Open("b.bmp", Drawn({"xy"}));
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"cba"}));
    EXPECT_EQ(CanvasLetters(), (Letters{"xy"}));
    EXPECT_EQ(session.doc.Modificato, 0);
}

TEST_F(ChangedPicture, IsNoLongerMarkedWhenItWasSavedAndTheOpeningCancelled)
{
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("s.bmp"));
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.NomeSalvato, Path("s.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
}

TEST_F(ChangedPicture, GivesWayToTheNextWhenTheSaveWasCancelled)
{
    dialogs.answers = {true};
    dialogs.saveNames.push_back(std::nullopt);
    Open("b.bmp", Drawn({"xy"}));
    EXPECT_EQ(CanvasLetters(), (Letters{"xy"}));
    EXPECT_EQ(session.doc.Modificato, 0);
}

TEST_F(ChangedPicture, StaysMarkedWhenSaveAndOpeningWereCancelled)
{
    const Seen before(session);
    dialogs.answers = {true};
    dialogs.saveNames.push_back(std::nullopt);
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(ChangedPicture, CallsTheOpeningOffWhenTheSaveFailed)
{
    const Seen before(session);
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("manca/s.bmp"));
    dialogs.openFolders.clear();
    ClickEntry(entry::Apri);
    EXPECT_TRUE(dialogs.openFolders.empty());
    EXPECT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(ChangedPicture, IsNotReadAgainWhenTheSameIsChosenAfterSaving)
{
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("s.bmp"));
    Open(Path("a.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    EXPECT_EQ(session.doc.Modificato, 0);
}

}  // namespace
}  // namespace pixano::test
