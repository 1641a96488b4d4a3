// Saving while the system fails: whichever call it is, the file is the old one or the new one.
#include "pictures/byte_files.h"
#include "reliability/preload/failing_calls.h"

#include <gmock/gmock.h>

#include <climits>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;

/// What is saved in these tests; its bitmap is written in several pieces.
Surface Picture()
{
    Surface picture(401, 331);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.PSet(x, y, (x / 8 * 7919 + y / 8 * 104729) & White);
    return picture;
}

unsigned PermissionsOf(const std::string& path)
{
    struct stat status = {};
    stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

struct Way {
    const char* name;
    const char* file;
    void (*save)(const Surface&, const std::string&);
    enum class Before { File, Nothing, Link } before;
    bool oldFileSystem = false;
};

void PrintTo(const Way& way, std::ostream* out)
{
    *out << way.name;
}

using enum Way::Before;

/// A file that is saved again and again in a folder of its own, while calls fail.
class FailingSave : public testing::TestWithParam<Way> {
  protected:
    FailingSave()
    {
        Prepare();
        way.save(picture, path);
        whole = ReadFile(real);
    }

    /// The folder as it is before a save.
    void Prepare() const
    {
        fs::remove(path);
        fs::remove(real);
        if (way.before != Nothing) WriteFile(real, old);
        if (way.before == Link) fs::create_symlink(fs::path(real).filename(), path);
        if (way.before != Nothing) chmod(real.c_str(), 0640);
    }

    /// Saves while calls fail as said; how many have, and whether the file was saved all the same.
    struct Result {
        long failed = 0;
        bool saved = false;
    };
    Result Save(FailingCalls orders)
    {
        orders.oldFileSystem = way.oldFileSystem;
        Prepare();
        const auto names = folder.Names();
        std::string told;
        BeginToFail(orders);
        try {
            way.save(picture, path);
        } catch (const PictureError& error) {
            told = error.what();
        }
        const long failed = EndFailing();
        ++saves;
        if (orders.as == FailingCalls::As::Error) failures += failed;
        EXPECT_EQ(OpenFiles(), 0);
        Check(told, names);
        return {failed, told.empty()};
    }

    /// Saves in a process of its own that is killed at its `n`-th call; false when it has fewer.
    bool KilledAt(long n) const
    {
        Prepare();
        const pid_t child = fork();
        if (child == 0) {
            BeginToFail({.first = n,
                         .last = n,
                         .as = FailingCalls::As::Death,
                         .oldFileSystem = way.oldFileSystem});
            way.save(picture, path);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
        return WIFSIGNALED(status);
    }

    /// How many files in the folder, named or not, are open.
    long OpenFiles() const
    {
        long count = 0;
        for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
            std::error_code closed;
            const fs::path shown = fs::read_symlink(entry, closed);
            if (shown.string().starts_with(folder.Path())) ++count;
        }
        return count;
    }

    void Check(const std::string& told, std::set<std::string> names) const
    {
        if (told.empty()) {
            EXPECT_TRUE(ReadFile(real) == whole);
            names.insert(fs::path(path).filename());
        } else {
            EXPECT_THAT(told, testing::StartsWith("Impossibile salvare «" + path + "»: "));
            EXPECT_EQ(fs::exists(real), way.before != Nothing);
            EXPECT_TRUE(way.before == Nothing || ReadFile(real) == old);
            EXPECT_TRUE(way.before == Nothing || PermissionsOf(real) == 0640);
        }
        EXPECT_EQ(folder.Names(), names);
        EXPECT_EQ(fs::is_symlink(path), way.before == Link);
    }

    /// Lets the first call fail, then the second, and so on, until a save needs no more calls.
    /// Gives how many there were.
    template <class Expect>
    long EachCallInTurn(FailingCalls orders, bool onward, Expect expect)
    {
        for (long n = 1;; ++n) {
            orders.first = n;
            orders.last = onward ? LONG_MAX : n;
            SCOPED_TRACE("call " + std::to_string(n) + ", error " + std::to_string(orders.error));
            const Result result = Save(orders);
            if (result.failed == 0) return n - 1;
            expect(result);
            if (HasFailure()) return n;
        }
    }

    static void TearDownTestSuite()
    {
        std::printf("%ld saves, in which %ld calls failed\n", saves, failures);
    }

    inline static long saves = 0;
    inline static long failures = 0;
    const Way way = GetParam();
    TemporaryFolder folder;
    std::string path = folder / way.file;
    std::string real = way.before == Link ? folder / "vera" : path;
    const Surface picture = Picture();
    const Bytes old = Bytes().Add("quel che c'era prima");
    Bytes whole;
};

// At least: the folder and the file are opened, the file is written, closed and put in its place.
constexpr long FewestCalls = 5;

TEST_P(FailingSave, OneCallFails)
{
    for (const int error : Errors)
        EXPECT_GE(EachCallInTurn({.error = error}, false, [](Result) {}), FewestCalls);
}

TEST_P(FailingSave, AllCallsFailFromOneOnward)
{
    for (const int error : Errors) {
        bool lastSaved = false;
        const auto keepsLast = [&](Result result) { lastSaved = result.saved; };
        EXPECT_GE(EachCallInTurn({.error = error}, true, keepsLast), FewestCalls);
        // What fails after the file is in its place takes nothing back.
        EXPECT_TRUE(lastSaved);
    }
}

TEST_P(FailingSave, WhatMayHaveLostBytesIsNoSave)
{
    for (const unsigned kind : {Writes, Synchronises, Closes, Names}) {
        const Result result = Save({.last = LONG_MAX, .only = kind});
        EXPECT_EQ(result.saved, result.failed == 0) << kind;
        // Only working files are not synchronised.
        EXPECT_TRUE(result.failed > 0 || (kind == Synchronises && way.save == WriteWorkingBitmap));
    }
    EXPECT_FALSE(Save({.only = Closes}).saved);
}

// Killed at its first call, at the second, and so on.
TEST_P(FailingSave, AKilledSaveLeavesTheOldFileOrTheNewOne)
{
    long left = 0;
    long n = 1;
    for (; KilledAt(n); ++n) {
        const Bytes now = ReadFile(real);
        EXPECT_TRUE(now == whole || (way.before == Nothing ? !fs::exists(real) : now == old)) << n;
        for (const std::string& name : folder.Names()) {
            if (!name.starts_with(".pixano-")) continue;
            ++left;
            fs::remove(folder / name);
        }
    }
    EXPECT_GT(n, FewestCalls);
    // It has a name of its own only while it is closed and put in its place, by an exchange or else
    // by a renaming.
    EXPECT_TRUE(way.oldFileSystem || left <= 3) << left;
    EXPECT_EQ(folder.Names().size(), way.before == Link ? 2U : 1U);
}

TEST_P(FailingSave, AnInterruptedCallIsRepeated)
{
    const FailingCalls orders{.error = EINTR, .only = Interruptible};
    const auto saved = [](Result result) { EXPECT_TRUE(result.saved); };
    EXPECT_GE(EachCallInTurn(orders, false, saved), FewestCalls - 1);
}

TEST_P(FailingSave, AShortWriteIsContinued)
{
    const Result result = Save({.last = LONG_MAX, .as = FailingCalls::As::Half});
    EXPECT_TRUE(result.saved);
    EXPECT_GT(result.failed, 0);
}

TEST_P(FailingSave, AWriteThatTakesNothingIsGivenUp)
{
    const Result result = Save({.last = LONG_MAX, .as = FailingCalls::As::Nothing});
    EXPECT_FALSE(result.saved);
    EXPECT_GT(result.failed, 0);
}

TEST_P(FailingSave, TheDiskIsFullAfterSoManyBytes)
{
    const auto size = static_cast<long>(whole.Size());
    for (const long room : {0L, 1L, 53L, 54L, size / 2, size - 1})
        EXPECT_FALSE(Save({.first = LONG_MAX, .last = LONG_MAX, .room = room}).saved) << room;
    EXPECT_TRUE(Save({.first = LONG_MAX, .last = LONG_MAX, .room = size}).saved);
}

constexpr Way Ways[] = {
    {"BitmapReplaced", "figura.bmp", SaveBitmap, File},
    {"BitmapNew", "figura.bmp", SaveBitmap, Nothing},
    {"BitmapByALink", "figura.bmp", SaveBitmap, Link},
    {"PngReplaced", "figura.png", SavePicture, File},
    {"JpegReplaced", "figura.jpg", SavePicture, File},
    {"JpegNew", "figura.jpg", SavePicture, Nothing},
    {"WorkingFileReplaced", "temp.bml", WriteWorkingBitmap, File},
    {"WorkingFileNew", "temp.bml", WriteWorkingBitmap, Nothing},
    {"BitmapReplacedOnAnOldFileSystem", "figura.bmp", SaveBitmap, File, true},
    {"BitmapNewOnAnOldFileSystem", "figura.bmp", SaveBitmap, Nothing, true},
    {"WorkingFileOnAnOldFileSystem", "temp.bml", WriteWorkingBitmap, File, true}};

INSTANTIATE_TEST_SUITE_P(Save, FailingSave, testing::ValuesIn(Ways),
                         [](const auto& way) { return std::string(way.param.name); });

}  // namespace
}  // namespace pixano::test
