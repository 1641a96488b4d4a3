// Saving: the exact bytes, the permissions, and links that are kept.
#include "pictures/small_picture.h"

#include <gmock/gmock-matchers.h>

#include <sys/stat.h>
#include <unistd.h>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

/// Its file, worked out by hand: nine bytes a row and three of padding, the lower row first.
const Bytes SmallFile = Bytes()
                            .Add("BM")
                            .U32(54 + 24)
                            .U32(0)
                            .U32(54)
                            .U32(40)
                            .U32(3)
                            .U32(2)
                            .U16(1)
                            .U16(24)
                            .U32(0)
                            .U32(24)
                            .U32(3780)
                            .U32(3780)
                            .U32(0)
                            .U32(0)
                            .Add({33, 32, 31, 43, 42, 41, 53, 52, 51, 0, 0, 0})
                            .Add({3, 2, 1, 13, 12, 11, 23, 22, 21, 0, 0, 0});

TEST_F(Saving, TheBytesOfABitmap)
{
    SaveBitmap(Small(), path);
    EXPECT_EQ(ReadFile(path), SmallFile);
    EXPECT_THAT(folder.Names(), ElementsAre("figura.bmp"));
}

TEST_F(Saving, AWorkingFileHasTheSameBytes)
{
    WriteWorkingBitmap(Small(), path);
    EXPECT_EQ(ReadFile(path), SmallFile);
    EXPECT_EQ(PermissionsOf(path), 0600U);
    EXPECT_THAT(folder.Names(), ElementsAre("figura.bmp"));
}

TEST_F(Saving, EveryRowWhateverIsLeftForTheLastWrite)
{
    // Some rows of that width are written at once; at last there are all numbers of them.
    constexpr int Wide = 20000;
    for (int height = 1; height <= 10; ++height) {
        Surface picture(Wide, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < Wide; ++x)
                picture.PSet(x, y, x + 1000 * y);
        SaveBitmap(picture, path);
        EXPECT_TRUE(ReadPicture(path).picture == picture) << height;
    }
}

TEST_F(Saving, WhatIsSavedIsReadBack)
{
    // More rows than are written at once, with every length of padding.
    for (const int width : {1, 2, 3, 4, 641, 642}) {
        Surface picture(width, 300);
        for (int y = 0; y < 300; ++y)
            for (int x = 0; x < width; ++x)
                picture.PSet(x, y, (x * 7919 + y * 104729) & White);
        SaveBitmap(picture, path);
        const PictureRead read = ReadPicture(path);
        EXPECT_EQ(read.picture, picture) << width;
        EXPECT_FALSE(read.truncated);
    }
}

TEST_F(Saving, ReplacesAFileAndKeepsItsPermissions)
{
    WriteFile(path, old);
    chmod(path.c_str(), 0640);
    SaveBitmap(Small(), path);
    EXPECT_EQ(ReadFile(path), SmallFile);
    EXPECT_EQ(PermissionsOf(path), 0640U);
    EXPECT_THAT(folder.Names(), ElementsAre("figura.bmp"));
}

TEST_F(Saving, ANewFileHasTheUsualPermissions)
{
    const mode_t before = umask(027);
    SaveBitmap(Small(), path);
    umask(before);
    EXPECT_EQ(PermissionsOf(path), 0640U);
}

TEST_F(Saving, ABareNameLiesInTheCurrentFolder)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    SaveBitmap(Small(), "nuda.bmp");
    fs::current_path(before);
    EXPECT_EQ(ReadFile(folder / "nuda.bmp"), SmallFile);
}

TEST_F(Saving, ANameAsLongAsTheSystemAllows)
{
    const std::string name = std::string(251, 'n') + ".bmp";
    SaveBitmap(Small(), folder / name);
    EXPECT_EQ(ReadFile(folder / name), SmallFile);
    WriteWorkingBitmap(Small(), folder / name);
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), folder / ("n" + name)),
                HasSubstr("il nome è troppo lungo"));
    EXPECT_THAT(folder.Names(), ElementsAre(name));
}

TEST_F(Saving, ALinkStaysAndItsFileIsReplaced)
{
    fs::create_directory(folder / "altra");
    WriteFile(folder / "altra/vera.bmp", old);
    ASSERT_EQ(symlink("altra/vera.bmp", path.c_str()), 0);
    SaveBitmap(Small(), path);
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(ReadFile(folder / "altra/vera.bmp"), SmallFile);
    EXPECT_THAT(folder.Names(), UnorderedElementsAre("altra", "figura.bmp"));
}

TEST_F(Saving, ALinkToNothingMakesTheFile)
{
    ASSERT_EQ(symlink("secondo.bmp", (folder / "primo.bmp").c_str()), 0);
    ASSERT_EQ(symlink((folder / "vera.bmp").c_str(), (folder / "secondo.bmp").c_str()), 0);
    SaveBitmap(Small(), folder / "primo.bmp");
    EXPECT_EQ(ReadFile(folder / "vera.bmp"), SmallFile);
    EXPECT_TRUE(fs::is_symlink(folder / "secondo.bmp"));
    ASSERT_EQ(symlink("giro.bmp", (folder / "giro.bmp").c_str()), 0);
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), folder / "giro.bmp"),
                HasSubstr("non portano a nessun file"));
}

TEST_F(Saving, AWorkingFileReplacesALinkAndAPipe)
{
    WriteFile(folder / "vera.bmp", old);
    ASSERT_EQ(symlink("vera.bmp", path.c_str()), 0);
    WriteWorkingBitmap(Small(), path);
    EXPECT_FALSE(fs::is_symlink(path));
    EXPECT_EQ(ReadFile(path), SmallFile);
    EXPECT_EQ(ReadFile(folder / "vera.bmp"), old);
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    WriteWorkingBitmap(Small(), folder / "pipe");
    EXPECT_EQ(ReadFile(folder / "pipe"), SmallFile);
}

TEST_F(Saving, ARescuedPictureIsTheUsersOwnAndFollowsNoLink)
{
    WriteFile(folder / "other", {1});
    fs::create_symlink(folder / "other", folder / "a.bmp");
    SavePrivateBitmap(Small(), folder / "a.bmp");
    EXPECT_EQ(ReadFile(folder / "other"), (Bytes{1}));
    EXPECT_FALSE(fs::is_symlink(folder / "a.bmp"));
    EXPECT_EQ(ReadFile(folder / "a.bmp"), SmallFile);
    EXPECT_EQ(fs::status(folder / "a.bmp").permissions(), fs::perms(0600));
}

}  // namespace
}  // namespace pixano::test
