// What a second start hands over arrives letter for letter.
#include "shell/second_start.h"

#include "support/temporary_folder.h"
#include "windows/file_names.h"

#include <QTest>

#include <gtest/gtest.h>

#include <future>

namespace pixano::test {
namespace {

class SecondStart : public testing::Test {
  protected:
    /// Hands the name over from a second start, while this one handles its events.
    bool IsHeard(const std::string& name) const
    {
        auto heard =
            std::async(std::launch::async, [&] { return HandOver(place_, FileName(name)); });
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return heard.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        return heard.get();
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

TEST_F(SecondStart, HearsNoNameThatIsNoPathFromTheRoot)
{
    const SecondStarts starts(place_);
    int called = 0;
    QObject::connect(&starts, &SecondStarts::Called, [&] { ++called; });
    EXPECT_FALSE(IsHeard("foto.bmp"));
    EXPECT_EQ(called, 0);
}

}  // namespace
}  // namespace pixano::test
