// Saving: the exact bytes, the old file kept when anything fails, links kept.
#include "pictures/byte_files.h"
#include "support/hindrances.h"

#include <gmock/gmock.h>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

/// Two rows of three pixels.
Surface Small()
{
    Surface surface(3, 2);
    for (int i = 0; i < 6; ++i)
        surface.PSet(i % 3, i / 3, Rgb(10 * i + 1, 10 * i + 2, 10 * i + 3));
    return surface;
}

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

template <class Save>
std::string RefusalOf(Save save, const Surface& surface, const std::string& path)
{
    try {
        save(surface, path);
    } catch (const PictureError& error) {
        EXPECT_THAT(error.what(), HasSubstr("Impossibile salvare «" + path + "»: "));
        return error.what();
    }
    return {};
}

unsigned PermissionsOf(const std::string& path)
{
    struct stat status = {};
    stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

class Saving : public testing::Test {
  protected:
    TemporaryFolder folder;
    std::string path = folder / "figura.bmp";
    const Bytes old = Bytes().Add("vecchio");
};

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

TEST_F(Saving, OntoWhatIsNoFile)
{
    fs::create_directory(path);
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), path), HasSubstr("è una cartella"));
    EXPECT_THAT(RefusalOf(WriteWorkingBitmap, Small(), path), HasSubstr("è una cartella"));
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), folder.Path() + "/"), HasSubstr("manca il nome"));
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), folder / "pipe"), HasSubstr("è una pipe"));
    ASSERT_EQ(symlink("/dev/full", (folder / "pieno").c_str()), 0);
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), folder / "pieno"), HasSubstr("è un dispositivo"));
    EXPECT_THAT(folder.Names(), UnorderedElementsAre("figura.bmp", "pipe", "pieno"));
}

TEST_F(Saving, IntoAFolderThatIsNotThere)
{
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), folder / "manca/figura.bmp"),
                HasSubstr("la cartella non esiste"));
    WriteFile(folder / "file", old);
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), folder / "file/figura.bmp"),
                HasSubstr("non è una cartella"));
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), "/proc/figura.bmp"),
                HasSubstr("«/proc/figura.bmp»"));
}

TEST_F(Saving, AFailureOnTheWayKeepsTheOldFile)
{
    WriteFile(path, old);
    const Surface large(400, 400);
    {
        const FileSizeLimit limit(100000);
        EXPECT_THAT(RefusalOf(SaveBitmap, large, path),
                    HasSubstr("supera la dimensione consentita"));
        EXPECT_THAT(RefusalOf(WriteWorkingBitmap, large, path),
                    HasSubstr("supera la dimensione consentita"));
        EXPECT_THAT(RefusalOf(SavePicture, Surface(3000, 3000), folder / "nuova.jpg"),
                    HasSubstr("supera la dimensione consentita"));
    }
    EXPECT_EQ(ReadFile(path), old);
    EXPECT_THAT(folder.Names(), ElementsAre("figura.bmp"));
    SaveBitmap(large, path);
    EXPECT_EQ(ReadPicture(path).picture, large);
}

TEST_F(Saving, TheLimitsSignalIsNotLeftWaiting)
{
    const FileSizeLimit limit(1000);
    EXPECT_NE(RefusalOf(SaveBitmap, Surface(100, 100), path), "");
    sigset_t waiting;
    sigpending(&waiting);
    EXPECT_EQ(sigismember(&waiting, SIGXFSZ), 0);
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    EXPECT_EQ(sigismember(&blocked, SIGXFSZ), 0);
}

TEST_F(Saving, WhatIsProtectedIsKept)
{
    WriteFile(path, old);
    const OrdinaryUser user{folder.Path(), path};
    chmod(path.c_str(), 0444);
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), path), HasSubstr("protetto da scrittura"));
    chmod(folder.Path().c_str(), 0555);
    EXPECT_THAT(RefusalOf(SaveBitmap, Small(), folder / "nuova.bmp"),
                HasSubstr("manca il permesso di scrivere nella cartella"));
    chmod(folder.Path().c_str(), 0755);
    EXPECT_EQ(ReadFile(path), old);
    EXPECT_THAT(folder.Names(), ElementsAre("figura.bmp"));
    chmod(path.c_str(), 0000);
    EXPECT_THROW(ReadPicture(path), PictureError);
}

TEST_F(Saving, NoPicture)
{
    EXPECT_THAT(RefusalOf(SaveBitmap, Surface(), path), HasSubstr("nessuna immagine"));
    EXPECT_TRUE(folder.Names().empty());
}

}  // namespace
}  // namespace pixano::test
