// The question about unsaved changes that comes before an opening.
#include "document/opening.h"
#include "document/seen.h"
#include "support/program.h"

#include <QClipboard>
#include <QMimeData>

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

// No dialog follows in which it could be called off: a second start, a drop, a paste.
TEST_F(ChangedPicture, StaysWhereItIsWhenTheSaveIsCancelledBeforeAPictureThatWasNamed)
{
    const QString other = Made("b.bmp", Drawn({"xy"}));
    auto* const copied = new QMimeData;
    copied->setUrls({QUrl::fromLocalFile(other)});
    QApplication::clipboard()->setMimeData(copied);
    const Seen before(session);
    const std::vector<std::function<void()>> ways{
        [&] { RunCommand(session, "Apri", Fatal::None, [&] { OpenNamed(session, other); }); },
        [&] { emit session.drops.Dropped(other); },
        [&] { emit session.form1.Pasted(); },
    };
    for (std::size_t i = 0; i < ways.size(); ++i) {
        dialogs.answers = {true};
        dialogs.saveNames.push_back(std::nullopt);
        ways[i]();
        EXPECT_TRUE(Seen(session) == before) << i;
        EXPECT_EQ(dialogs.asked.size(), i + 1);
    }
    QApplication::clipboard()->clear();
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

// After "No" nothing is named any more; after a save the same name is.
TEST_F(ChangedPicture, IsNamedAgainWhenItIsChosenOnceMore)
{
    dialogs.answers = {false};
    Open(Path("a.bmp"));
    EXPECT_EQ(session.doc.NomeFile, "");
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("s.bmp"));
    Open(Path("a.bmp"));
    EXPECT_EQ(session.doc.NomeFile, Path("a.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"})) << "it is the picture that is open";
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
    EXPECT_EQ(dialogs.told.size(), 1U);
}

}  // namespace
}  // namespace pixano::test
