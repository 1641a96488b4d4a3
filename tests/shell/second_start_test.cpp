// What a second start hands over arrives letter for letter.
#include "shell/handing_over.h"
#include "support/hindrances.h"
#include "support/temporary_folder.h"
#include "windows/file_names.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace pixano::test {
namespace {

class SecondStart : public testing::Test {
  protected:
    bool IsHeard(const std::string& name) const
    {
        return HandOverMeanwhile(place_, FileName(name));
    }

    const TemporaryFolder folder_;
    const QString place_ = QString::fromStdString(folder_.Path());
};

TEST_F(SecondStart, HandsOverEveryNameOfAFile)
{
    const SecondStarts starts(place_);
    std::vector<std::string> called;
    QObject::connect(&starts, &SecondStarts::Called,
                     [&](const QString& picture) { called.push_back(FileBytes(picture)); });
    const std::vector<std::string> names{"/a b/f\xC3\xB2to.bmp", "/f\xF2to.bmp", ""};
    for (const std::string& name : names)
        EXPECT_TRUE(IsHeard(name)) << name;
    EXPECT_EQ(called, names);
}

TEST_F(SecondStart, IsHeardThoughAKilledRunLeftItsSocketWhichAnEndedOneDoesNot)
{
    WriteBytes(folder_ / "pixano.socket", "");
    {
        const SecondStarts starts(place_);
        EXPECT_TRUE(IsHeard("/foto.bmp"));
        EXPECT_EQ(folder_.Names(), std::set<std::string>{"pixano.socket"});
        using std::filesystem::perms;
        EXPECT_EQ(std::filesystem::status(folder_ / "pixano.socket").permissions(),
                  perms::owner_read | perms::owner_write);
    }
    EXPECT_EQ(folder_.Names(), std::set<std::string>{});
}

TEST_F(SecondStart, IsHeardNoMoreByOneThatStoppedListening)
{
    SecondStarts starts(place_);
    starts.StopListening();
    EXPECT_FALSE(IsHeard("/foto.bmp"));
    EXPECT_EQ(folder_.Names(), std::set<std::string>{});
}

TEST_F(SecondStart, HearsNoNameThatIsNoPathFromTheRoot)
{
    const SecondStarts starts(place_);
    int called = 0;
    QObject::connect(&starts, &SecondStarts::Called, [&] { ++called; });
    EXPECT_FALSE(IsHeard("foto.bmp"));
    EXPECT_EQ(called, 0);
}

// Root gets by the rights of the socket.
TEST_F(SecondStart, HearsNoOtherUser)
{
    if (geteuid() != 0) GTEST_SKIP() << "only root can become another user";
    const pid_t other = fork();
    if (other == 0) _exit(HandOver(place_, "/foto.bmp") ? 1 : 0);
    const OrdinaryUser user{folder_.Path()};
    const SecondStarts starts(place_);
    int called = 0;
    QObject::connect(&starts, &SecondStarts::Called, [&] { ++called; });
    int status = -1;
    EXPECT_TRUE(QTest::qWaitFor([&] { return waitpid(other, &status, WNOHANG) == other; }));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(called, 0);
}

}  // namespace
}  // namespace pixano::test
