// A start from the desktop's menu, where no folder is the user's choice: where the program works
// then, and which strengths it takes.
#include "shell/starting.h"

#include <QStandardPaths>

namespace pixano::test {
namespace {

TEST_F(Starting, WorksInTheDataFolderWhenStartedFromTheMenu)
{
    const QString here = QDir::currentPath();
    Made("a.bmp", Drawn({"abc"}));
    const QStringList before = QDir::current().entryList();
    QString opened;
    EXPECT_EQ(RunWith({"--da-menu", "a.bmp"},
                      [&] {
                          opened = session.doc.FileAperto;
                          EXPECT_EQ(QDir::currentPath(), QFileInfo(Data("x")).path());
                          EXPECT_EQ(session.doc.CartellaAvvio, QDir::currentPath());
                      }),
              0);
    // The name was relative to the folder that the user was in; nothing was written there.
    EXPECT_EQ(opened, here + "/a.bmp");
    EXPECT_EQ(QDir(here).entryList(), before);
    EXPECT_TRUE(Exists(Data("percors.dat")));
}

TEST_F(Starting, LooksForPicturesAmongTheUsersWhenStartedFromTheMenu)
{
    dialogs.openNames.push_back(std::nullopt);
    RunWith({"--da-menu"}, [&] { ClickEntry(entry::Apri); });
    EXPECT_EQ(
        dialogs.openFolders,
        (std::vector<QString>{QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)}));
}

TEST_F(Starting, PutsTheStrengthsIntoTheDataFolderForTheUserAlone)
{
    // As they lie in a folder of the system: nobody may write them.
    ASSERT_TRUE(QFile::setPermissions(Beside("valori.tip"),
                                      QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    RunWith({"--da-menu"}, [&] { EXPECT_EQ(session.programFolder, QDir::currentPath()); });
    EXPECT_EQ(Bytes(Data("valori.tip")), Bytes(Beside("valori.tip")));
    constexpr auto Own = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(Data("valori.tip")), Own);
}

TEST_F(Starting, LeavesTheStrengthsThatTheUserHas)
{
    QDir().mkpath(Data(""));
    Write(Data("valori.tip"), "1\r\n2\r\n3\r\n4\r\n5\r\n");
    RunWith({"--da-menu"});
    EXPECT_EQ(Bytes(Data("valori.tip")), "1\r\n2\r\n3\r\n4\r\n5\r\n");
}

TEST_F(Starting, StartsFromTheMenuWithoutStrengthsToo)
{
    QFile::remove(Beside("valori.tip"));
    EXPECT_EQ(RunWith({"--da-menu"}), 0);
    EXPECT_FALSE(Exists(Data("valori.tip")));
    EXPECT_TRUE(dialogs.told.empty());
}

}  // namespace
}  // namespace pixano::test
