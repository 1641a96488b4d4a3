// The batch tool while the system fails under it: the result is whole or not there, and the exit
// status and a message tell which.
#include "batch/tool_run.h"

#include <cerrno>
#include <climits>
#include <cstdlib>

namespace pixano::batch::test {
namespace {

class FailingTool : public Tool {
  protected:
    FailingTool()
    {
        SaveBitmap(Surface(201, 101, 0x123456), File("a.bmp"));
        EXPECT_EQ(RunOn("intera").status, 0);
    }
    ~FailingTool() override
    {
        for (const char* const name :
             {"LD_LIBRARY_PATH", "LD_PRELOAD", "PIXANO_FAILING_CALLS", "PIXANO_FAILED_CALLS"})
            unsetenv(name);
    }

    Ran RunOn(const std::string& name) const
    {
        return Run({"-e", "Specchio", "-o", name + extension, "a.bmp"});
    }

    /// Runs the tool while its calls from `first` to `last` fail. Gives how many have.
    long RunWhileFailing(long first, long last, int error) const
    {
        WriteBytes(File("b" + extension), old);
        const std::string orders =
            std::to_string(first) + ' ' + std::to_string(last) + ' ' + std::to_string(error);
        // Folders are named apart: a blank in the other variable would end the name.
        setenv("LD_LIBRARY_PATH", FAILING_CALLS_FOLDER, 1);
        setenv("LD_PRELOAD", FAILING_CALLS, 1);
        setenv("PIXANO_FAILING_CALLS", orders.c_str(), 1);
        setenv("PIXANO_FAILED_CALLS", (reports / "failed").c_str(), 1);
        const Ran ran = RunOn("b");
        unsetenv("LD_PRELOAD");
        Check(ran);
        return std::stol(BytesOf(reports / "failed"));
    }

    void Check(const Ran& ran) const
    {
        const bool done = ran.status == 0;
        EXPECT_TRUE(done || ran.status == 1) << ran.status;
        EXPECT_TRUE(Bytes("b" + extension) == (done ? Bytes("intera" + extension) : old));
        EXPECT_EQ(FileCount(), 3);
        EXPECT_EQ(ran.err.starts_with("pixano-batch: "), !done) << ran.err;
    }

    void EachCallInTurn(bool onward)
    {
        // The picture is opened and closed; the folder and the result are opened, it is written,
        // synchronised, named, closed and put in its place.
        constexpr long FewestOfARun = 9;
        for (const int error : {ENOSPC, EIO, EACCES}) {
            long n = 1;
            while (RunWhileFailing(n, onward ? LONG_MAX : n, error) > 0 && !HasFailure())
                ++n;
            EXPECT_GT(n, FewestOfARun);
        }
    }

    std::string extension = ".bmp";
    const std::string old = "quel che c'era prima";
    TemporaryFolder reports;
};

TEST_F(FailingTool, OneCallFails)
{
    EachCallInTurn(false);
}

TEST_F(FailingTool, AllCallsFailFromOneOnward)
{
    EachCallInTurn(true);
}

/// A stack that the system has no room for: there are no threads but the first one.
TEST_F(Tool, WorksOnWhereTheSystemGivesNoMoreThreads)
{
    for (const char* const name : {"a.bmp", "b.bmp", "c.bmp"})
        Draw(name, {"abc"});
    std::filesystem::create_directory(File("fatte"));
    const Ran ran = RunProgram({"sh", "-c",
                                "ulimit -s 4000000 && ulimit -v 3000000 && "
                                "exec \"$0\" -j 3 -d fatte -e Specchio a.bmp b.bmp c.bmp",
                                program},
                               Folder());
    EXPECT_EQ(ran.status, 0) << ran.err;
    for (const char* const name : {"fatte/a.bmp", "fatte/b.bmp", "fatte/c.bmp"})
        EXPECT_EQ(Result(name), (Letters{"cba"}));
}

}  // namespace
}  // namespace pixano::batch::test
