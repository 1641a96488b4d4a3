// A file that is saved while calls fail: afterwards it is the old one or the new one.
#pragma once

#include "pictures/byte_files.h"
#include "reliability/preload/failing_calls.h"

#include <gmock/gmock-matchers.h>

#include <climits>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace pixano::test {

/// What is saved in these tests; its bitmap is written in several pieces.
inline Surface SavedPicture()
{
    Surface picture(401, 331);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.PSet(x, y, (x / 8 * 7919 + y / 8 * 104729) & White);
    return picture;
}

/// How a file is saved, and what lies in its place before.
struct Way {
    const char* name;
    const char* file;
    void (*save)(const Surface&, const std::string&);
    enum class Before { File, Nothing, Link } before;
    bool oldFileSystem = false;
};

inline void PrintTo(const Way& way, std::ostream* out)
{
    *out << way.name;
}

/// Saves again and again, in a folder of its own.
class FailingSave : public testing::TestWithParam<Way> {
  protected:
    using enum Way::Before;

    FailingSave()
    {
        Prepare();
        way.save(picture, path);
        whole = ReadFile(real);
    }

    /// The folder as it is before a save.
    void Prepare() const
    {
        std::filesystem::remove(path);
        std::filesystem::remove(real);
        if (way.before != Nothing) WriteFile(real, old);
        if (way.before == Link)
            std::filesystem::create_symlink(std::filesystem::path(real).filename(), path);
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
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
            std::error_code closed;
            const std::filesystem::path shown = std::filesystem::read_symlink(entry, closed);
            if (shown.string().starts_with(folder.Path())) ++count;
        }
        return count;
    }

    void Check(const std::string& told, std::set<std::string> names) const
    {
        if (told.empty()) {
            EXPECT_TRUE(ReadFile(real) == whole);
            names.insert(std::filesystem::path(path).filename());
        } else {
            EXPECT_THAT(told, testing::StartsWith("Impossibile salvare «" + path + "»: "));
            EXPECT_EQ(std::filesystem::exists(real), way.before != Nothing);
            EXPECT_TRUE(way.before == Nothing || ReadFile(real) == old);
            EXPECT_TRUE(way.before == Nothing || PermissionsOf(real) == 0640);
        }
        EXPECT_EQ(folder.Names(), names);
        EXPECT_EQ(std::filesystem::is_symlink(path), way.before == Link);
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
    const Surface picture = SavedPicture();
    const Bytes old = Bytes().Add("quel che c'era prima");
    Bytes whole;
};

}  // namespace pixano::test
