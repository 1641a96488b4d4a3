// What the start makes of a run that ended badly, whatever has become of its note, of its copy of
// the canvas and of its lock meanwhile.
#include "reliability/recovery_run.h"

namespace pixano::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Not;
using testing::StartsWith;

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
    EXPECT_TRUE(QFile(folders.Data("pixano.lock")).open(QIODevice::WriteOnly));
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
