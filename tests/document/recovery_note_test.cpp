// The note of the canvas's copy: what is taken for one, when it is written, and what is deleted on
// its account.
#include "document/recovery_note.h"

#include "canvas/captures.h"
#include "document/places.h"
#include "document/recovery.h"
#include "shell/spy_effect.h"
#include "support/hindrances.h"
#include "support/program.h"

namespace pixano::test {
namespace {

class Noted : public Program {
  protected:
    Noted() { Open("a.bmp", Drawn({"abc"})); }
    ~Noted() override { SpyAction() = nullptr; }

    /// The start after a run that was killed; the user answers so.
    void NextStart(bool wanted)
    {
        Desk next;
        next.dialogs.answers.push_back(wanted);
        OfferRecovery(next.session);
        next.dialogs.answers.clear();
    }
};

TEST_F(Noted, StaysWholeWhereTheNextOneCannotBeWritten)
{
    const RecoveryNote whole{Path("elabor.tmp"), Path("a.bmp"), 3, 1};
    WriteRecoveryNote(whole);
    {
        const FileSizeLimit disk(10);
        EXPECT_THROW(WriteRecoveryNote({Data("temp.bml"), Path("a.bmp"), 3, 1}), Fault);
    }
    const std::optional<RecoveryNote> kept = ReadRecoveryNote();
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->copy, whole.copy);
}

TEST_F(Noted, NamesItsCopyInFull)
{
    WriteRecoveryNote({"elabor.tmp", Path("a.bmp"), 3, 1});
    EXPECT_FALSE(ReadRecoveryNote());
    WriteRecoveryNote({Path("elabor.tmp"), Path("a.bmp"), 3, 1});
    EXPECT_TRUE(ReadRecoveryNote());
}

TEST_F(Noted, IsGoneAsSoonAsThePictureIsSaved)
{
    Apply("Specchio");
    EXPECT_TRUE(RecoveryNoteThere());
    dialogs.answers = {true};
    dialogs.saveNames = {Path("s.bmp")};
    dialogs.openNames = {std::nullopt};
    bool there = true;
    // The last dialog of the command that saves first.
    dialogs.meanwhile = [&] { there = RecoveryNoteThere(); };
    ClickEntry(entry::Apri);
    EXPECT_FALSE(there);
}

// It stays open, and "Originale" of the next start goes back to it.
TEST_F(Noted, NamesThePictureThatWasOpenedThoughItWasChosenAgain)
{
    Apply("Specchio");
    dialogs.answers = {false};
    dialogs.openNames = {Path("a.bmp")};
    ClickEntry(entry::Apri);
    QFile::remove(Data("recupero.txt"));
    Apply("Capovolgi");
    const std::optional<RecoveryNote> note = ReadRecoveryNote();
    ASSERT_TRUE(note);
    EXPECT_EQ(note->picture, Path("a.bmp"));
}

TEST_F(Noted, IsWrittenWhenTheUserClosesTheProgressWindow)
{
    QDir().mkpath(Data("recupero.txt"));
    Apply("Specchio");
    SpyAction() = [](Work& w) {
        w.ShowProgress();
        throw Fault(FaultKind::InputPastEnd);
    };
    RunInFrame(Spy());
    EXPECT_FALSE(ReadRecoveryNote());
    QDir().rmdir(Data("recupero.txt"));
    session.form4.close();
    EXPECT_TRUE(ReadRecoveryNote());
}

TEST_F(Noted, ThatCannotBeWrittenIsRemarkedWithThePlaceOfTheCopy)
{
    QDir().mkpath(Data("recupero.txt"));
    Apply("Specchio");
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_THAT(dialogs.told[0].text.toStdString(),
                testing::EndsWith(". Una copia dell'immagine modificata è nel file «" +
                                  Path("elabor.tmp").toStdString() + "»."));
}

TEST_F(Noted, KeepsTheFinishedPictureWhenTheProgramEndsAfterTheLoops)
{
    Effect ends = Spy();
    ends.fatal = Fatal::All;
    SpyAction() = [](Work& w) {
        Cattura(w);
        w.Picture1.PSet(0, 0, ColourOf('x'));
        QFile::remove("elab.ser");
    };
    RunInFrame(ends);
    ASSERT_TRUE(session.ending);
    const QStringList kept = QDir(Data("")).entryList({"lavoro-*.bmp"});
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(Kept(Data(kept[0])), (Letters{"xbc"}));
}

TEST_F(Noted, NamesACopyOfTheCanvasAfterAStepForwardFromMemory)
{
    QDir().mkpath(Data("temp2.bml"));
    Apply("Specchio");
    Apply("Capovolgi");
    const Surface canvas = Canvas();
    ClickEntry(entry::Undo);
    ClickEntry(entry::Redo);
    EXPECT_TRUE(ReadPicture(ReadRecoveryNote()->copy.toStdString()).picture == canvas);
}

TEST_F(Noted, NamesThePictureBeforeAnEffectThatFailedHalfwayWhereItHadNoCopy)
{
    Apply("Specchio");
    {
        // Back and forward without a copy on disk.
        const FileSizeLimit disk(0);
        Apply("Specchio");
        ClickEntry(entry::Orig);
        ClickEntry(entry::Redo);
    }
    const Letters before = CanvasLetters();
    SpyAction() = [](Work& w) {
        w.Picture1.PSet(0, 0, ColourOf('x'));
        throw Fault(FaultKind::InputPastEnd);
    };
    RunInFrame(Spy());
    EXPECT_NE(CanvasLetters(), before);
    EXPECT_EQ(Kept(ReadRecoveryNote()->copy), before);
}

TEST_F(Noted, DeletesNoPictureOfTheUsers)
{
    const QString own = Made("mia.bmp", Drawn({"xyz"}));
    const std::string before = Bytes("mia.bmp");
    for (const bool wanted : {true, false}) {
        WriteRecoveryNote({own, Path("a.bmp"), 3, 1});
        NextStart(wanted);
        EXPECT_EQ(Bytes("mia.bmp"), before) << wanted;
    }
    // Nor is it moved when it is not the picture that was noted, or the disk is full.
    WriteRecoveryNote({own, Path("a.bmp"), 5, 5});
    NextStart(true);
    EXPECT_EQ(Bytes("mia.bmp"), before);
    WriteRecoveryNote({own, Path("a.bmp"), 3, 1});
    const FileSizeLimit disk(10);
    NextStart(false);
    EXPECT_EQ(Bytes("mia.bmp"), before);
}

// To say where a file lies takes no folder; to write one does.
TEST_F(Noted, MakesItsFolderAnewWhenItIsWrittenAndNotBefore)
{
    Apply("Specchio");
    const QDir folder(Data(""));
    ASSERT_TRUE(QDir(folder).removeRecursively());
    EXPECT_EQ(NativePath(file::Undo), Data("temp.bml"));
    EXPECT_FALSE(ReadRecoveryNote());
    EXPECT_FALSE(folder.exists());
    Apply("Capovolgi");
    EXPECT_TRUE(dialogs.told.empty());
    EXPECT_EQ(ReadRecoveryNote()->copy, Path("elabor.tmp"));
    ClickEntry(entry::Undo);
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
}

TEST_F(Noted, IsWithAllThatIsKeptTheUsersOwnThoughTheFolderWasOpenToAll)
{
    const std::string folder = MakeDataFolder().toStdString();
    ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
    QDir().mkdir("elabor.tmp");
    Apply("Specchio");
    Apply("Capovolgi");
    ClickEntry(entry::Undo);
    SpyAction() = [](Work&) { throw Fault(FaultKind::SubscriptOutOfRange); };
    Effect ends = Spy();
    ends.fatal = Fatal::Index;
    RunInFrame(ends);
    EXPECT_EQ(session.ending, 1);
    const QStringList work = QDir(Data("")).entryList({"lavoro-*.bmp"});
    ASSERT_EQ(work.size(), 1);
    QFile::rename(Data(work.front()), Data("lavoro.bmp"));  // the user has named it anew
    NextStart(false);
    const auto modeOf = [](const std::string& path) {
        struct stat status = {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 0777;
    };
    EXPECT_EQ(modeOf(folder), 0700U);
    const QStringList kept = QDir(Data("")).entryList(QDir::Files | QDir::Hidden);
    EXPECT_THAT(kept.join(' ').toStdString(), testing::ContainsRegex("lavoro.bmp recupero-"));
    for (const QString& name : kept)
        EXPECT_EQ(modeOf(Data(name).toStdString()), 0600U) << name.toStdString();
}

}  // namespace
}  // namespace pixano::test
