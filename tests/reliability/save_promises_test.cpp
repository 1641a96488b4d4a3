// What a save promises beside the picture itself.
#include "pictures/picture_files.h"
#include "reliability/preload/failing_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <climits>

#include <sys/stat.h>
#include <unistd.h>

namespace pixano::test {
namespace {

class SavePromises : public testing::Test {
  protected:
    /// How many calls of that kind a save makes; none fails.
    long CallsOf(unsigned kind)
    {
        BeginToFail({.first = LONG_MAX, .last = LONG_MAX, .only = kind});
        SaveBitmap(Surface(3, 2), path);
        EndFailing();
        return CountedCalls();
    }

    TemporaryFolder folder;
    std::string path = folder / "figura.bmp";
};

TEST_F(SavePromises, TheFoldersEntryReachesTheDiskToo)
{
    EXPECT_EQ(CallsOf(Synchronises), 2) << "the file and its folder";
}

TEST_F(SavePromises, OwnerAndPermissionsStay)
{
    SaveBitmap(Surface(3, 2), path);
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    constexpr uid_t Other = 65534;
    const bool gave = chown(path.c_str(), Other, Other) == 0;
    EXPECT_EQ(CallsOf(Changes), 2);
    struct stat saved = {};
    ASSERT_EQ(stat(path.c_str(), &saved), 0);
    EXPECT_EQ(saved.st_mode & 0777, 0640U);
    // Only the system's administrator can give files away.
    EXPECT_EQ(saved.st_uid, gave ? Other : getuid());
}

}  // namespace
}  // namespace pixano::test
