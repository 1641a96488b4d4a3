// What the start makes of a run that ended badly.
#include "canvas/fault.h"
#include "reliability/recovery_run.h"
#include "shell/only_instance.h"
#include "support/hindrances.h"

#include <QClipboard>

namespace pixano::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST_F(Recovery, BringsTheLastPictureBack)
{
    Crash();
    EXPECT_THAT(NextStart(), AllOf(Offered, Contains(Ready(unsaved)), Contains("status 0")));
}

TEST_F(Recovery, OffersNothingAfterANormalEnd)
{
    Crash();
    NextStart();
    EXPECT_THAT(NextStart(), AllOf(Not(Offered), Not(Lost), Contains("status 0")));
}

TEST_F(Recovery, KeepsWhatIsNotWantedAndNamesIt)
{
    Crash();
    EXPECT_THAT(NextStart("no"),
                AllOf(Offered, Contains(StartsWith("told L'immagine resta nel file «" +
                                                   folders.Data("recupero-").toStdString()))));
    EXPECT_TRUE(Aside().contains(unsaved));
    EXPECT_THAT(NextStart(), Not(Offered));
    EXPECT_TRUE(Aside().contains(unsaved));
}

TEST_F(Recovery, KeepsWhatIsNotWantedOnAFullDiskToo)
{
    Crash();
    std::vector<std::string> lines;
    {
        const FileSizeLimit disk(100);
        lines = NextStart("no");
    }
    EXPECT_THAT(lines, Offered);
    EXPECT_TRUE(Aside().contains(unsaved)) << testing::PrintToString(lines);
}

TEST_F(Recovery, IsAtHomeInAnotherFolderToo)
{
    Crash();
    const QString before = QDir::currentPath();
    QDir().mkdir("altra");
    QDir::setCurrent("altra");
    EXPECT_THAT(NextStart(), AllOf(Offered, Contains(Ready(unsaved))));
    QDir::setCurrent(before);
}

TEST_F(Recovery, KnowsNamesWithLineEndsAndPercentSigns)
{
    Crash("fo%0Ato\n d'été.bmp");
    EXPECT_THAT(NextStart(),
                AllOf(Contains(HasSubstr("fo%0Ato  d'été.bmp")), Contains(Ready(unsaved))));
}

/// A picture from the clipboard is open when the run is killed.
class PastedRecovery : public Recovery {
  protected:
    PastedRecovery()
    {
        QImage copied(5, 3, QImage::Format_RGB32);
        copied.fill(Qt::red);
        copied.setPixelColor(0, 0, Qt::blue);
        QApplication::clipboard()->setImage(copied);
    }

    void CrashWith(const char* effect)
    {
        StartedDesk desk;
        emit desk.session.form1.Pasted();
        if (effect != nullptr) desk.Apply(effect);
        unsaved = Checksum(desk.Canvas());
        WriteWorkingBitmap(Surface(2, 2), Folders::Path("figura 1.bmp").toStdString());
    }
    int Files() const { return int(QDir(folders.Data("")).entryList({"appunti-*"}).size()); }
};

TEST_F(PastedRecovery, BringsItBackAndKeepsItsFileUntilTheEnd)
{
    CrashWith("Specchio");
    EXPECT_EQ(Files(), 1);
    EXPECT_THAT(NextStart(), AllOf(Offered, Contains(Ready(unsaved)), Contains("status 0")));
    EXPECT_EQ(Files(), 0);
}

TEST_F(PastedRecovery, LeavesNoFileOfAPictureThatNothingWasMadeOf)
{
    CrashWith(nullptr);
    EXPECT_EQ(Files(), 1);
    EXPECT_THAT(NextStart(), AllOf(Not(Offered), Contains("status 0")));
    EXPECT_EQ(Files(), 0);
}

TEST_F(PastedRecovery, LeavesNoFileOfAPictureThatIsNotWanted)
{
    CrashWith("Specchio");
    NextStart("no");
    NextStart();
    EXPECT_EQ(Files(), 0);
    EXPECT_TRUE(Aside().contains(unsaved));
}

TEST_F(PastedRecovery, KeepsTheFileWhereTheWorkIsLost)
{
    CrashWith("Specchio");
    QFile(folders.Data("recupero.txt")).resize(3);
    EXPECT_THAT(NextStart(), Lost);
    EXPECT_EQ(Files(), 1);
}

TEST_F(Recovery, NeverTakesARunningProgramForACrash)
{
    Crash();
    {
        const OnlyInstance running(folders.Data("pixano.lock"));
        ASSERT_TRUE(running);
        EXPECT_THAT(NextStart(), AllOf(Contains("told Pixano è già in esecuzione."), Not(Offered),
                                       Contains("status 1")));
    }
    EXPECT_THAT(NextStart(), AllOf(Offered, Contains(Ready(unsaved))));
}

TEST_F(Recovery, ClearsAwayWhatWasNotFinished)
{
    Crash();
    QFile unfinished(folders.Data(".pixano-0123456789abcdef.tmp"));
    ASSERT_TRUE(unfinished.open(QIODevice::WriteOnly));
    NextStart();
    EXPECT_FALSE(unfinished.exists());
}

TEST_F(Recovery, RefusesToStartWithoutALock)
{
    Crash();
    const OrdinaryUser user{folders.Root().toStdString()};
    const Locked locked(folders.Data("").toStdString());
    EXPECT_THROW(OnlyInstance(folders.Data("pixano.lock")), Fault);
}

TEST_F(Recovery, ReadsNoNoteThroughALink)
{
    Crash();
    const std::string note = folders.Data("recupero.txt").toStdString();
    const std::string moved = folders.Root().toStdString() + "/altrove.txt";
    std::filesystem::rename(note, moved);
    std::filesystem::create_symlink(moved, note);
    EXPECT_THAT(NextStart(), AllOf(Lost, Not(Offered)));
    EXPECT_TRUE(std::filesystem::exists(moved));
}

}  // namespace
}  // namespace pixano::test
