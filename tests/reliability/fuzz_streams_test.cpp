// What takes longest to read: streams that never end, where reading them stops, and what it takes
// until then. Not with the sanitizers: there a thousand million bytes or pixels take minutes, and
// ask nothing of the readers that shorter files do not.
#include "pictures/bmp_maker.h"
#include "pictures/gif_maker.h"
#include "pictures/jpeg_maker.h"
#include "reliability/fuzz_bounds.h"
#include "reliability/fuzz_kinds.h"

#include <gmock/gmock-matchers.h>

#include <csignal>

#include <fcntl.h>
#include <sys/uio.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;

/// A stream that begins as `head` does and goes on with `more` again and again, for ever.
struct Endless {
    const char* name;
    Bytes head;
    Bytes more;
};

std::vector<Endless> EndlessStreams()
{
    // Orders that draw nothing, and marks of a JPEG that say nothing.
    const BmpHead runs{.width = Side, .height = Side, .bits = 8, .compression = 1, .colours = 1};
    return {{"rubbish between a GIF's blocks", GifScreen(9, 9), {0}},
            {"a GIF's extensions", GifScreen(9, 9), Bytes{0x21, 0xFE, 250}.Zeros(250).Add({0})},
            {"rubbish in a JPEG", {0xFF, 0xD8}, {0}},
            {"a JPEG's comments", {0xFF, 0xD8}, Bytes{0xFF, 0xFE, 0x7F, 0xFF}.Zeros(0x7FFD)},
            {"runs", Bmp(runs, {1, 2, 3, 0}, {}), {0, 2, 0, 0}}};
}

/// As much as a pipe can hold: a thousand million bytes go through in few steps.
constexpr int AtOnce = 1 << 20;

/// Writes the stream until nobody reads it any more.
void WriteWithoutEnd(int pipe, const Endless& stream)
{
    std::signal(SIGPIPE, SIG_IGN);
    Bytes much;
    while (much.Size() < AtOnce)
        much.Add(stream.more);
    const Bytes& head = stream.head;
    if (write(pipe, head.Vector().data(), head.Size()) != static_cast<ssize_t>(head.Size())) return;
    // The pipe takes the pages themselves, which nobody changes: to copy them costs twice as much.
    std::size_t from = 0;
    for (;;) {
        iovec pages{much.Vector().data() + from, much.Size() - from};
        const ssize_t given = vmsplice(pipe, &pages, 1, 0);
        if (given < 0) return;
        from = (from + static_cast<std::size_t>(given)) % much.Size();
    }
}

TEST(LargeStream, IsRefusedInTheEnd)
{
    constexpr double Longest = 60;
    for (const Endless& stream : EndlessStreams()) {
        // Those that are searched byte by byte take longest, and are counted where the others are.
        if (!IsLong() && stream.more.Size() == 1) continue;
        SCOPED_TRACE(stream.name);
        int ends[2];
        ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
        fcntl(ends[1], F_SETPIPE_SZ, AtOnce);
        const pid_t writer = fork();
        if (writer == 0) {
            close(ends[0]);
            WriteWithoutEnd(ends[1], stream);
            _exit(0);
        }
        close(ends[1]);
        InAProcessOfItsOwn([&] {
            const double memory = MemoryUsed();
            const double before = SecondsUsed();
            try {
                ReadPictureFrom(ends[0], "prova");
                ADD_FAILURE() << "it was read";
            } catch (const PictureError& error) {
                EXPECT_THAT(error.what(), HasSubstr("arrivano più di 1074 milioni di byte"));
            }
            EXPECT_LT(SecondsUsed() - before, Longest);
            EXPECT_LT(MemoryUsed() - memory, Pixels * 4 + Besides);
            std::printf("%s: %.2f s, %.0f MB\n", stream.name, SecondsUsed() - before,
                        (MemoryUsed() - memory) / 1e6);
        });
        close(ends[0]);
        EXPECT_EQ(waitpid(writer, nullptr, 0), writer);
    }
}

TEST(SlowJpeg, IsReadOrRefusedInBoundedTime)
{
    // The most work that is done for a file of this format: 8 thousand million pixels scanned.
    constexpr double Longest = 60;
    const int side = IsLong() ? 8192 : 2048;
    const double before = SecondsUsed();
    EXPECT_EQ(WithScans(side, side, IsLong() ? 120 : 60).Refusal(), "");
    EXPECT_THAT(WithScans(side, side, 600).Refusal(), HasSubstr("troppi strati"));
    EXPECT_LT(SecondsUsed() - before, Longest);
}

}  // namespace
}  // namespace pixano::test
