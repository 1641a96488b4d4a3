// Saving where it cannot be done: what is told, and the old file kept.
#include "pictures/small_picture.h"
#include "support/hindrances.h"

#include <gmock/gmock-matchers.h>

#include <csignal>

#include <sys/stat.h>
#include <unistd.h>

namespace pixano::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

TEST_F(Saving, OntoWhatIsNoFile)
{
    std::filesystem::create_directory(path);
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
