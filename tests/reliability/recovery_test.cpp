// What the start makes of a run that ended badly, whatever has become of its note, of its copy of
// the canvas and of its lock meanwhile.
#include "canvas/fault.h"
#include "reliability/busy.h"
#include "reliability/checksum.h"
#include "reliability/child.h"
#include "reliability/knowledge.h"
#include "reliability/tampering.h"
#include "shell/only_instance.h"
#include "support/hindrances.h"

#include <QClipboard>

#include <gmock/gmock.h>

namespace pixano::test {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// A new run of the program; it answers the offer so, and then ends.
std::vector<std::string> NextStart(const std::string& answer = "yes")
{
    Child next({PIXANO_VICTIM, "1", "0"}, {{"PIXANO_ANSWER", answer}});
    std::vector<std::string> lines = next.Rest();
    lines.push_back("status " + std::to_string(next.Wait()));
    return lines;
}

const auto Offered = Contains(StartsWith("offer Avviso! "));
const auto Lost = Contains(HasSubstr("non è possibile recuperarle"));

class Recovery : public testing::Test {
  protected:
    /// Leaves everything as a run leaves it that is killed.
    void Crash(const QString& name = "a.bmp")
    {
        const Busy busy(name);
        unsaved = Checksum(busy.second);
        // The next run finds a picture, so it need not make any.
        WriteWorkingBitmap(Surface(2, 2), Folders::Path("figura 1.bmp").toStdString());
    }
    /// The pictures put aside in the data folder.
    std::set<std::string> Aside() const
    {
        std::set<std::string> sums;
        for (const QString& name : QDir(folders.Data("")).entryList({"recupero-*.bmp"}))
            sums.insert(ChecksumOfFile(folders.Data(name)));
        return sums;
    }
    std::string Ready(const std::string& sum) const { return "ready " + sum + " modified whole"; }

    const Folders folders;
    const Elsewhere elsewhere{folders.Root().toStdString() + "/altrove.bmp"};
    std::string unsaved;
};

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

TEST_F(Recovery, BringsAPastedPictureBackAndKeepsItsFileUntilTheEnd)
{
    QImage copied(5, 3, QImage::Format_RGB32);
    copied.fill(Qt::red);
    copied.setPixelColor(0, 0, Qt::blue);
    QApplication::clipboard()->setImage(copied);
    {
        StartedDesk desk;
        emit desk.session.form1.Pasted();
        desk.Apply("Specchio");
        unsaved = Checksum(desk.Canvas());
        WriteWorkingBitmap(Surface(2, 2), Folders::Path("figura 1.bmp").toStdString());
    }
    const auto pasted = [this] { return QDir(folders.Data("")).entryList({"appunti-*"}); };
    EXPECT_EQ(pasted().size(), 1);
    EXPECT_THAT(NextStart(), AllOf(Offered, Contains(Ready(unsaved)), Contains("status 0")));
    EXPECT_EQ(pasted().size(), 0);
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

class Tampered : public Recovery, public testing::WithParamInterface<Tampering> {
  protected:
    void Tamper(const QString& file)
    {
        GetParam().with(folders.Data(file).toStdString(), elsewhere);
    }
    std::string What() const { return GetParam().name; }
    void TearDown() override
    {
        EXPECT_TRUE(elsewhere.Untouched());
        EXPECT_FALSE(Aside().contains(Checksum(elsewhere.Picture())));
    }
};

TEST_P(Tampered, CopyIsReportedAndWhatIsLeftIsKept)
{
    Crash();
    // The last command was "Ripristina": its snapshot holds the canvas.
    const std::string before = ChecksumOfFile(folders.Data("temp.bml"));
    Tamper("temp2.bml");
    // A folder in a snapshot's place cannot be deleted at the end: that is an error of its own.
    const std::string status = What() == "folder" ? "status 1" : "status 0";
    EXPECT_THAT(NextStart(), AllOf(Lost, Not(Offered), Contains(status)));
    EXPECT_TRUE(Aside().contains(before)) << "the picture before the last effect";
    EXPECT_THAT(NextStart(), AllOf(Not(Lost), Not(Offered)));
}

TEST_P(Tampered, NoteIsReportedAndEveryCopyIsKept)
{
    Crash();
    Tamper("recupero.txt");
    const std::vector<std::string> lines = NextStart();
    EXPECT_THAT(lines, AllOf(Not(Offered), Contains("status 0")));
    if (What() == "missing") {
        EXPECT_THAT(lines, Not(Lost));
    } else {
        EXPECT_THAT(lines, Lost);
        EXPECT_TRUE(Aside().contains(unsaved));
    }
}

TEST_P(Tampered, LockIsReplacedOrReported)
{
    Crash();
    QFile(folders.Data("pixano.lock")).open(QIODevice::WriteOnly);
    Tamper("pixano.lock");
    const bool file =
        What() != "folder" && What() != "link" && What() != "dead_link" && What() != "pipe";
    if (file) {
        EXPECT_THAT(NextStart(), AllOf(Offered, Contains(Ready(unsaved)), Contains("status 0")));
    } else {
        EXPECT_THAT(NextStart(), AllOf(Contains(StartsWith("refused Impossibile usare «")),
                                       Not(Offered), Contains("status 1")));
        QDir().remove(folders.Data("pixano.lock"));
        QDir().rmdir(folders.Data("pixano.lock"));
        EXPECT_THAT(NextStart(), AllOf(Offered, Contains(Ready(unsaved))));
    }
}

INSTANTIATE_TEST_SUITE_P(Each, Tampered, testing::ValuesIn(Tamperings),
                         [](const testing::TestParamInfo<Tampering>& tampered) {
                             return std::string(tampered.param.name);
                         });

}  // namespace
}  // namespace pixano::test
