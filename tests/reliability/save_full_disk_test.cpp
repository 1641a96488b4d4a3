// Saving on a real disk that is too small: a file system of one megabyte, in memory.
#include "pictures/byte_files.h"
#include "reliability/preload/failing_calls.h"

#include <gmock/gmock-matchers.h>

#include <climits>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>

namespace pixano::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Puts a file system of one megabyte over the folder, seen by this process alone. False where that
/// is not allowed.
bool CoverWithSmallDisk(const std::string& folder)
{
    return unshare(CLONE_NEWNS) == 0 &&
           mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", folder.c_str(), "tmpfs", 0, "size=1m") == 0;
}

std::string SavingTold(void (*save)(const Surface&, const std::string&), const Surface& picture,
                       const std::string& path)
{
    try {
        save(picture, path);
        return {};
    } catch (const PictureError& error) {
        return error.what();
    }
}

/// A disk of one megabyte with an old picture on it; larger ones are saved over it.
void SaveMoreThanThereIsRoomFor(const TemporaryFolder& folder)
{
    const std::string path = folder / "figura.bmp";
    const Surface old(300, 300);
    SaveBitmap(old, path);
    const Bytes before = ReadFile(path);
    // 1,080,054 bytes, and 811,254, for which the old picture leaves no room.
    for (const int side : {600, 520}) {
        const Surface large(side, side, 0);
        EXPECT_THAT(SavingTold(SaveBitmap, large, path), HasSubstr("non c'è più spazio sul disco"));
        EXPECT_THAT(SavingTold(WriteWorkingBitmap, large, path), HasSubstr("più spazio sul disco"));
        EXPECT_EQ(ReadFile(path), before);
        EXPECT_THAT(folder.Names(), ElementsAre("figura.bmp"));
    }
    const Surface other(300, 300, 0xFF);
    SaveBitmap(other, path);
    EXPECT_EQ(ReadPicture(path).picture, other);
    EXPECT_THAT(folder.Names(), ElementsAre("figura.bmp"));
}

/// Runs it in a process of its own. False when it could not cover the folder.
bool OnASmallDisk(const TemporaryFolder& folder)
{
    constexpr int NotAllowed = 77;
    const pid_t child = fork();
    if (child == 0) {
        if (!CoverWithSmallDisk(folder.Path())) _exit(NotAllowed);
        SaveMoreThanThereIsRoomFor(folder);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_THAT(WEXITSTATUS(status), testing::AnyOf(0, NotAllowed));
    return WEXITSTATUS(status) != NotAllowed;
}

TEST(FullDisk, KeepsTheOldPicture)
{
    const TemporaryFolder folder;
    if (OnASmallDisk(folder)) return;
    // Where no disk may be mounted, one is made believe.
    std::printf("no file system may be mounted here: writing fails after a megabyte instead\n");
    const std::string path = folder / "figura.bmp";
    const Surface old(300, 300);
    SaveBitmap(old, path);
    for (const auto save : {SaveBitmap, WriteWorkingBitmap}) {
        BeginToFail({.first = LONG_MAX, .last = LONG_MAX, .room = 1'000'000});
        const std::string told = SavingTold(save, Surface(600, 600, 0), path);
        EndFailing();
        EXPECT_THAT(told, HasSubstr("non c'è più spazio sul disco"));
        EXPECT_EQ(ReadPicture(path).picture, old);
        EXPECT_THAT(folder.Names(), ElementsAre("figura.bmp"));
    }
}

}  // namespace
}  // namespace pixano::test
