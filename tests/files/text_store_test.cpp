#include "files/text_store.h"
#include "support/faults.h"
#include "support/temporary_folder.h"

#include <csignal>
#include <cstdint>
#include <limits>
#include <string_view>
#include <sys/resource.h>
#include <sys/stat.h>
#include <vector>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;

class TextFile : public testing::Test {
  protected:
    void Write(const std::vector<Colour>& values)
    {
        file.OpenForOutput();
        for (const Colour value : values)
            file.Write(value);
        file.Close();
    }

    TemporaryFolder folder;
    fs::path path = folder / "elab.ser";
    PixelFile file{TextStore(path.string())};
};

TEST_F(TextFile, HoldsOneNumberALine)
{
    Write({16777215, 255, 16711680, 0, -1});
    EXPECT_EQ(BytesOf(path), "16777215\r\n255\r\n16711680\r\n0\r\n-1\r\n");
}

TEST_F(TextFile, HoldsEveryValueOfThirtyTwoBits)
{
    Write({7, 10, 99, 100, 12345678, 99999999, 100000000, 2147483647, -10, -16777216,
           std::numeric_limits<Colour>::min()});
    EXPECT_EQ(BytesOf(path), "7\r\n10\r\n99\r\n100\r\n12345678\r\n99999999\r\n100000000\r\n"
                             "2147483647\r\n-10\r\n-16777216\r\n-2147483648\r\n");
    for (const Colour value : {7, 10, 99, 100, 12345678, 99999999, 100000000, 2147483647, -10,
                               -16777216, std::numeric_limits<Colour>::min()})
        EXPECT_EQ(file.Input(), value);
}

TEST_F(TextFile, MayHoldNothing)
{
    Write({});
    EXPECT_TRUE(fs::exists(path));
    EXPECT_EQ(BytesOf(path), "");
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
}

TEST_F(TextFile, ReplacesAnOldFile)
{
    WriteBytes(path, "a much longer old text\r\n");
    Write({1});
    EXPECT_EQ(BytesOf(path), "1\r\n");
}

TEST_F(TextFile, TakesOneValueFromALineWhereverTheBufferEnds)
{
    constexpr int Lines = 56000;
    std::string text;
    for (int line = 0; line < Lines; ++line)
        text += "\"7.4000000000000\"      \r\n";
    WriteBytes(path, text);
    for (int line = 0; line < Lines; ++line)
        ASSERT_EQ(file.Input(), 7) << line;
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
}

TEST_F(TextFile, IsReadFromItsStartAgainAfterItWasClosed)
{
    Write({5, 6});
    EXPECT_EQ(file.Input(), 5);
    file.Close();
    EXPECT_EQ(file.Input(), 5);
    EXPECT_EQ(file.Input(), 6);
}

TEST_F(TextFile, IsGoneAfterKillEvenHalfReadOrHalfWritten)
{
    Write({5, 6});
    file.Input();
    file.Kill();
    EXPECT_FALSE(fs::exists(path));
    file.OpenForOutput();
    file.Write(1);
    file.Kill();
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(TextFile, IsKilledOnlyIfItWasMade)
{
    WriteBytes(path, "of somebody else");
    file.Kill();
    EXPECT_EQ(BytesOf(path), "of somebody else");
    Write({1});
    file.Kill();
    WriteBytes(path, "of somebody else");
    file.Kill();
    EXPECT_EQ(BytesOf(path), "of somebody else");
}

TEST_F(TextFile, CannotBeKilledWhenItHasGoneMeanwhile)
{
    Write({1});
    fs::remove(path);
    EXPECT_EQ(FaultIn([&] { file.Kill(); }), FaultKind::FileNotFound);
}

TEST_F(TextFile, StaysAfterAFaultUntilItIsReplaced)
{
    Write({1});
    file.Input();
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
    EXPECT_TRUE(fs::exists(path));
    Write({2});
    EXPECT_EQ(file.Input(), 2);
}

TEST_F(TextFile, ComesBackWithMoreThanAMillionValues)
{
    std::uint32_t state = 1;
    const auto next = [&state] {
        state = state * 1664525 + 1013904223;
        // All lengths of lines from one digit to ten, some of them negative.
        return static_cast<Colour>(state) >> (state >> 8) % 32;
    };
    file.OpenForOutput();
    for (int i = 0; i < 1100000; ++i)
        file.Write(next());
    file.Close();
    state = 1;
    for (int i = 0; i < 1100000; ++i)
        ASSERT_EQ(file.Input(), next()) << i;
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
}

TEST_F(TextFile, MayBeLeftAnywhereAndBegunAgain)
{
    file.OpenForOutput();
    for (int i = 0; i < 200000; ++i)
        file.Write(i);
    file.Close();
    for (int turn = 0; turn < 100; ++turn) {
        for (int i = 0; i < turn * 1000 + 1; ++i)
            ASSERT_EQ(file.Input(), i);
        file.Close();
    }
    EXPECT_EQ(file.Input(), 0);
    file.Kill();
    Write({3});
    EXPECT_EQ(file.Input(), 3);
}

// ---- what bears the name but is no file ----

TEST_F(TextFile, IsNotFoundWhenItIsMissing)
{
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileNotFound);
}

TEST_F(TextFile, CannotBeMadeInAFolderThatIsMissing)
{
    PixelFile lost(TextStore(folder / "no/elab.ser"));
    EXPECT_EQ(FaultIn([&] { lost.OpenForOutput(); }), FaultKind::FileAccess);
}

TEST_F(TextFile, DoesNotWaitForAPipe)
{
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileAccess);
    EXPECT_TRUE(fs::is_fifo(path));
    Write({3});
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(path)));
    EXPECT_EQ(file.Input(), 3);
}

TEST_F(TextFile, IsNoFolder)
{
    fs::create_directory(path);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileAccess);
    EXPECT_EQ(FaultIn([&] { file.OpenForOutput(); }), FaultKind::FileAccess);
    EXPECT_TRUE(fs::is_directory(path));
    file.Kill();
    EXPECT_TRUE(fs::is_directory(path));
}

TEST_F(TextFile, DoesNotFollowALink)
{
    const fs::path other = folder / "letter.txt";
    WriteBytes(other, "1\r\n");
    fs::create_symlink(other, path);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileAccess);
    Write({4});
    EXPECT_EQ(BytesOf(other), "1\r\n");
    EXPECT_FALSE(fs::is_symlink(path));
    EXPECT_EQ(BytesOf(path), "4\r\n");
}

TEST_F(TextFile, DoesNotMakeTheFileThatADeadLinkNames)
{
    const fs::path other = folder / "letter.txt";
    fs::create_symlink(other, path);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::FileAccess);
    Write({4});
    EXPECT_FALSE(fs::exists(other));
    EXPECT_EQ(file.Input(), 4);
}

TEST_F(TextFile, IsNamedInTheMessage)
{
    try {
        file.Input();
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(std::string(fault.what()),
                  "Impossibile leggere «" + path.string() + "»: il file non esiste");
    }
}

// ---- a device without room ----

/// Files of this process may not grow beyond `bytes` while this lives.
class RoomFor {
  public:
    explicit RoomFor(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limited = before_;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~RoomFor()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    RoomFor(const RoomFor&) = delete;
    RoomFor& operator=(const RoomFor&) = delete;

  private:
    rlimit before_{};
    void (*signal_)(int);
};

TEST_F(TextFile, FailsOnAFullDeviceAndWorksOnceThereIsRoom)
{
    std::optional<FaultKind> whileWriting;
    std::optional<FaultKind> whenClosed;
    {
        const RoomFor room(1000);
        whileWriting = FaultIn([&] { Write(std::vector<Colour>(50000, 16777215)); });
        whenClosed = FaultIn([&] { Write(std::vector<Colour>(101, 16777215)); });
    }
    EXPECT_EQ(whileWriting, FaultKind::DiskFull);
    EXPECT_EQ(whenClosed, FaultKind::DiskFull);
    Write({8, 9});
    EXPECT_EQ(BytesOf(path), "8\r\n9\r\n");
    EXPECT_EQ(file.Input(), 8);
    file.Kill();
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(TextFile, TakesWhatJustFits)
{
    std::optional<FaultKind> fault;
    {
        const RoomFor room(1000);
        fault = FaultIn([&] { Write(std::vector<Colour>(100, 16777215)); });
    }
    EXPECT_EQ(fault, std::nullopt);
    EXPECT_EQ(fs::file_size(path), 1000U);
}

}  // namespace
}  // namespace pixano::test
