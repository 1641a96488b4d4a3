// The same bytes from memory, from a file and from a pipe, in any order that each allows.
#include "files/byte_source.h"

#include "files/descriptor.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <thread>
#include <tuple>

#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

namespace pixano::test {
namespace {

using Bytes = std::vector<std::byte>;

constexpr std::size_t Long = 3 * ByteSource::KeptOfStream + 17;

/// Bytes of which each tells its place.
Bytes Told(std::size_t count)
{
    Bytes bytes(count);
    for (std::size_t i = 0; i < count; ++i)
        bytes[i] = static_cast<std::byte>(i * 7 + i / 251);
    return bytes;
}

/// The next `count` bytes, or as many as there are.
Bytes Next(ByteSource& source, std::size_t count)
{
    Bytes bytes(count);
    bytes.resize(source.Read(bytes));
    return bytes;
}

Bytes Part(const Bytes& bytes, std::size_t from, std::size_t count)
{
    const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(from);
    return {begin, begin + static_cast<std::ptrdiff_t>(count)};
}

/// A pipe that gives the bytes and then ends.
class Pipe {
  public:
    explicit Pipe(const Bytes& bytes)
    {
        // Whoever stops reading leaves the writer with an error.
        std::signal(SIGPIPE, SIG_IGN);
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        end_ = Descriptor(ends[0]);
        writer_ = std::jthread([bytes, to = ends[1]] {
            const Descriptor owner(to);
            DescriptorSink(to).Write(bytes);
        });
    }
    int Number() const { return end_.Number(); }

  private:
    std::jthread writer_;
    /// Closed before the writer is waited for.
    Descriptor end_;
};

TEST(ByteSource, OfMemoryAndOfAFileGoesAnywhere)
{
    const Bytes bytes = Told(Long);
    const TemporaryFolder folder;
    // Somebody else's bytes come first.
    WriteBytes(folder / "a",
               "xyz" + std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
    const Descriptor file(open((folder / "a").c_str(), O_RDONLY | O_CLOEXEC));
    ByteSource fromMemory(bytes);
    ByteSource fromFile(file.Number(), Long, 3);
    for (ByteSource* const source : {&fromMemory, &fromFile}) {
        EXPECT_FALSE(source->IsStream());
        for (const auto& [from, count] : {std::pair<std::size_t, std::size_t>(0, 5),
                                          {100, 70000},
                                          {5, 1},
                                          {Long - 1, 1},
                                          {0, Long},
                                          {70000, 3}}) {
            source->Seek(from);
            EXPECT_EQ(source->Position(), from);
            EXPECT_EQ(Next(*source, count), Part(bytes, from, count)) << from;
            EXPECT_EQ(source->Position(), from + count);
        }
        source->Seek(Long + 1000);
        EXPECT_EQ(source->Position(), Long);
        EXPECT_TRUE(source->AtEnd());
        EXPECT_EQ(source->Next(), -1);
        EXPECT_TRUE(source->Take().empty());
        EXPECT_EQ(source->Error(), 0);
    }
}

TEST(ByteSource, OfAStreamGoesBackAsLongAsItKeepsItsStart)
{
    const Bytes bytes = Told(Long);
    const Pipe pipe(bytes);
    ByteSource source = ByteSource::Stream(pipe.Number(), Long);
    EXPECT_TRUE(source.IsStream());
    EXPECT_EQ(Next(source, 6), Part(bytes, 0, 6));
    source.Seek(0);
    EXPECT_EQ(Next(source, 20000), Part(bytes, 0, 20000));
    source.Seek(3);
    EXPECT_EQ(Next(source, 2), Part(bytes, 3, 2));
    source.Seek(40000);
    EXPECT_EQ(source.Position(), 40000U);
    EXPECT_EQ(Next(source, 100000), Part(bytes, 40000, 100000));
    source.Seek(150000);
    EXPECT_EQ(Next(source, 1), Part(bytes, 150000, 1));
    EXPECT_EQ(source.Error(), 0);
    source.Seek(0);
    EXPECT_EQ(source.Error(), ESPIPE);
    EXPECT_EQ(source.Next(), -1);
}

// However little is there at once.
TEST(ByteSource, OfAStreamKeepsItsStartFromSmallPieces)
{
    const Bytes bytes = Told(900);
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    const Descriptor from(ends[0]);
    const Descriptor into(ends[1]);
    ByteSource source = ByteSource::Stream(from.Number(), Long);
    for (const std::size_t place : {0U, 300U, 600U}) {
        DescriptorSink(into.Number()).Write(Part(bytes, place, 300));
        EXPECT_EQ(Next(source, 300), Part(bytes, place, 300));
    }
    source.Seek(0);
    EXPECT_EQ(Next(source, 900), bytes);
}

// However much is read at once.
TEST(ByteSource, OfAStreamKeepsItsStartFromALongFirstRead)
{
    const Bytes bytes = Told(Long);
    const Pipe pipe(bytes);
    ByteSource source = ByteSource::Stream(pipe.Number(), Long);
    constexpr auto Kept = static_cast<int>(ByteSource::KeptOfStream);
    EXPECT_EQ(Next(source, Kept), Part(bytes, 0, Kept));
    source.Seek(3);
    EXPECT_EQ(Next(source, 2), Part(bytes, 3, 2));
}

TEST(ByteSource, OfAStreamEndsWithoutAnErrorBeforeItsLimit)
{
    for (const std::size_t length : {std::size_t{0}, std::size_t{100}, Long - 1}) {
        const Bytes bytes = Told(length);
        const Pipe pipe(bytes);
        ByteSource source = ByteSource::Stream(pipe.Number(), Long);
        EXPECT_EQ(Next(source, Long), bytes);
        EXPECT_EQ(source.Next(), -1);
        EXPECT_EQ(source.Error(), 0) << length;
    }
}

TEST(ByteSource, OfAStreamBeyondItsLimitIsAnError)
{
    const Pipe pipe(Told(Long + 1));
    ByteSource source = ByteSource::Stream(pipe.Number(), Long);
    EXPECT_EQ(Next(source, Long + 1).size(), Long);
    EXPECT_EQ(source.Next(), -1);
    EXPECT_EQ(source.Error(), EFBIG);
}

int& ToBeFilled()
{
    static int descriptor = -1;
    return descriptor;
}

TEST(ByteSource, GoesOnReadingWhereASignalHasInterruptedIt)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const Descriptor from(ends[0]);
    const Descriptor into(ends[1]);
    ToBeFilled() = into.Number();
    struct sigaction fills = {};
    fills.sa_handler = [](int) { std::ignore = write(ToBeFilled(), "x", 1); };
    struct sigaction before = {};
    sigaction(SIGALRM, &fills, &before);
    constexpr itimerval Soon{{0, 0}, {0, 50000}};
    setitimer(ITIMER_REAL, &Soon, nullptr);
    ByteSource source = ByteSource::Stream(from.Number(), 1);
    EXPECT_EQ(source.Next(), 'x');
    EXPECT_EQ(source.Error(), 0);
    sigaction(SIGALRM, &before, nullptr);
}

TEST(ByteSource, TellsTheFirstErrorAndGivesNothingMore)
{
    const Descriptor folder(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (ByteSource source : {ByteSource(folder.Number(), 100), ByteSource(-2, 0)}) {
        EXPECT_EQ(source.Next(), -1);
        EXPECT_TRUE(source.AtEnd());
    }
    ByteSource source(folder.Number(), 100);
    EXPECT_EQ(source.Next(), -1);
    EXPECT_EQ(source.Error(), EISDIR);
    ByteSource whole(folder.Number(), std::uint64_t{1} << 20);
    EXPECT_TRUE(Next(whole, std::size_t{1} << 20).empty());
    EXPECT_EQ(whole.Error(), EISDIR);
}

}  // namespace
}  // namespace pixano::test
