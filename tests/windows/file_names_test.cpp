// Names of files between the system and the windows: whatever bytes they are of, none is lost.
#include "support/hindrances.h"
#include "support/temporary_folder.h"
#include "windows/file_names.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSysInfo>

namespace pixano::test {
namespace {

TEST(FileNames, InUtf8AreTheirText)
{
    EXPECT_EQ(FileName("perch\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x99\x82.bmp"),
              QString("perch\u00E9 \u20AC \U0001F642.bmp"));
    EXPECT_EQ(FileName("\xEF\xBF\xBD"), QString(QChar(0xFFFD)));
    EXPECT_EQ(FileName(""), QString());
}

TEST(FileNames, OfOtherBytesKeepEachOfThem)
{
    EXPECT_EQ(FileName("a\xE8.bmp"), QString("a") + QChar(0xDCE8) + ".bmp");
    EXPECT_EQ(FileName("\x80\xFF"), QString(QChar(0xDC80)) + QChar(0xDCFF));
    // What can be read beside them stays readable, however long it is.
    EXPECT_EQ(FileName("\xE8 \xC3\xA9\xE2\x82\xAC\xF0\x9F\x99\x82"),
              QChar(0xDCE8) + QString(" \u00E9\u20AC\U0001F642"));
    // The sign for what cannot be read may stand beside what cannot.
    EXPECT_EQ(FileName("\xEF\xBF\xBD\xEF\xBF"),
              QString(QChar(0xFFFD)) + QChar(0xDCEF) + QChar(0xDCBF));
}

TEST(FileNames, ComeBackAsTheyWere)
{
    std::vector<std::string> names{
        "perch\xC3\xA9 \xF0\x9F\x99\x82",
        "\xC3",
        "\xC3\xA9\xC3",
        "\xF0\x9F\x99",
        "\xF0\x9F\x99\x82\x82",
        "\xC0\xAF",      // a slash, longer than it may be
        "\xED\xB2\x80",  // one half of a pair
        "\xED\xA0\x80\xED\xB2\x80",
        "\xF4\x90\x80\x80",
        "\xEF\xBF\xBD\xE8",
        "caff\xE8/m\xE0re.bmp",  // Latin 1
    };
    for (int byte = 1; byte < 256; ++byte)
        for (const char* const before : {"", "a", "\xC3", "\xF0\x9F\x99\x82", "\xEF\xBF\xBD"})
            names.push_back(std::string(before) + static_cast<char>(byte));
    for (const std::string& name : names)
        EXPECT_EQ(FileBytes(FileName(name)), name);
}

TEST(FileNames, OfLocalUrls)
{
    EXPECT_EQ(FileBytes(LocalFile(QUrl("file:///tmp/due%20parole%20perch%C3%A9%25.bmp"))),
              "/tmp/due parole perch\xC3\xA9%.bmp");
    EXPECT_EQ(FileBytes(LocalFile(QUrl("file:///tmp/perch%E8%20%C3%A9.bmp"))),
              "/tmp/perch\xE8 \xC3\xA9.bmp");
    EXPECT_EQ(LocalFile(QUrl("file://localhost/tmp/a.bmp")), "/tmp/a.bmp");
    EXPECT_EQ(LocalFile(QUrl("file://" + QSysInfo::machineHostName() + "/tmp/a.bmp")),
              "/tmp/a.bmp");
    // Another machine's file is not this one's of the same path.
    EXPECT_EQ(LocalFile(QUrl("file://altrove/tmp/a.bmp")), "//altrove/tmp/a.bmp");
    EXPECT_EQ(LocalFile(QUrl("https://example.org/a.bmp")), "");
    EXPECT_EQ(LocalFile(QUrl()), "");
}

TEST(FileNames, OfFoldersAndWhatIsInThem)
{
    const QString before = CurrentFolder();
    EXPECT_EQ(before, QDir::currentPath());
    const TemporaryFolder folder;
    const std::string odd = folder / "m\xE0re";
    std::filesystem::create_directory(odd);
    GoToFolder(FileName(odd));
    EXPECT_EQ(FileBytes(CurrentFolder()), odd);
    EXPECT_EQ(FileBytes(AbsolutePath("a.bmp")), odd + "/a.bmp");
    EXPECT_EQ(AbsolutePath("/a.bmp"), "/a.bmp");
    GoToFolder(before);
    EXPECT_TRUE(FileExists(FileName(odd)));
    EXPECT_FALSE(FileExists(FileName(odd + "/a.bmp")));
    std::filesystem::create_symlink("nowhere", folder / "link");
    EXPECT_FALSE(FileExists(FileName(folder / "link")));
    WriteBytes(folder / "a.bmp", "");
    EXPECT_TRUE(FileExists(FileName(folder / "a.bmp")));
    EXPECT_FALSE(FileExists(FileName(folder / "a.bmp/b.bmp")));
}

TEST(FileNames, AreTakenForFilesWhereNobodyCanLook)
{
    const TemporaryFolder folder;
    const std::string closed = folder / "chiusa";
    std::filesystem::create_directory(closed);
    std::filesystem::create_symlink("circolo", folder / "circolo");
    const OrdinaryUser user{folder.Path()};
    std::filesystem::permissions(closed, std::filesystem::perms::none);
    EXPECT_TRUE(FileExists(FileName(closed + "/a.bmp")));
    EXPECT_TRUE(FileExists(FileName(folder / "circolo")));
    std::filesystem::permissions(closed, std::filesystem::perms::owner_all);
    EXPECT_FALSE(FileExists(FileName(closed + "/a.bmp")));
    EXPECT_FALSE(FileExists(FileName(folder / std::string(256, 'n'))));
}

}  // namespace
}  // namespace pixano::test
