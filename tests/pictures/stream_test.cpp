// Pictures that come through a pipe, or from an open file: the same pixels and messages as from a
// file's name, and nothing is waited for that the picture does not need.
#include "files/descriptor.h"
#include "pictures/bmp_maker.h"
#include "pictures/byte_files.h"
#include "pictures/gif_maker.h"
#include "pictures/jpeg_maker.h"

#include <gmock/gmock-matchers.h>

#include <csignal>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;

struct ReadFromStream {
    Colours colours{};
    bool truncated = false;
    std::string refusal{};

    friend bool operator==(const ReadFromStream&, const ReadFromStream&) = default;
};

template <class Read>
ReadFromStream OutcomeOf(Read read)
{
    try {
        const PictureRead got = read();
        return {ColoursOf(got.picture), got.truncated, {}};
    } catch (const PictureError& error) {
        return {{}, false, error.what()};
    }
}

/// A pipe into which somebody else writes the content, `atOnce` bytes at once, and which stays open
/// for ever if `open`.
class Pipe {
  public:
    Pipe(const Bytes& content, std::size_t atOnce, bool open = false)
    {
        EXPECT_EQ(pipe2(ends_, O_CLOEXEC), 0);
        std::signal(SIGPIPE, SIG_IGN);
        writer_ = std::thread([this, &content, atOnce, open] {
            std::span<const std::byte> rest = content.Vector();
            while (!rest.empty()) {
                const auto piece = rest.first(std::min(atOnce, rest.size()));
                if (write(ends_[1], piece.data(), piece.size()) <= 0) break;
                rest = rest.subspan(piece.size());
            }
            if (!open) close(std::exchange(ends_[1], -1));
        });
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe()
    {
        close(ends_[0]);
        writer_.join();
        if (ends_[1] >= 0) close(ends_[1]);
    }

    ReadFromStream Read() const
    {
        return OutcomeOf([this] { return ReadPictureFrom(ends_[0], "prova"); });
    }

  private:
    int ends_[2]{-1, -1};
    std::thread writer_;
};

ReadFromStream InMemory(const Bytes& file)
{
    return OutcomeOf([&] { return file.Read(); });
}

const Bytes Palette = Bytes{9, 8, 7, 0, 3, 2, 1, 0};
const Bytes Indexed = Bmp({.width = 9, .height = 2, .bits = 1}, Palette, {5, 0, 0, 0, 8, 0, 0, 0});

std::vector<Bytes> Files()
{
    std::vector<Bytes> files{
        Indexed,
        Bmp({.width = 300, .height = 300}, {}, Bytes().Zeros(300 * 900)),
        // The pixels begin far behind what is kept of a stream, or not at all.
        Bmp({.width = 2, .offset = 200'000}, Bytes().Zeros(200'000 - 54), {3, 2, 1, 6, 5, 4, 0, 0}),
        Bmp({.width = 2, .offset = 200'000}, {}, {3, 2, 1, 6, 5, 4, 0, 0}),
        GifScreen(2, 1).Add(GifFrame(0, 0, 2, 1)).Add(GifPixels({1, 2})).Add(GifEnd),
        GifScreen(2, 1).Add(GifEnd),
        MakeJpeg(Shaded(200, 200)),
        MakeJpeg(Shaded(70, 50), Progressive),
        Bytes().Add("niente"),
        Bytes(),
    };
    const std::size_t whole = files.size();
    for (std::size_t i = 0; i < whole; ++i)
        files.push_back(files[i].Without(files[i].Size() / 3));
    return files;
}

TEST(Streams, GiveWhatFilesGive)
{
    std::size_t read = 0;
    for (const Bytes& file : Files()) {
        const ReadFromStream expected = InMemory(file);
        if (expected.refusal.empty()) ++read;
        for (const std::size_t atOnce : {61U, 50'000U})
            EXPECT_TRUE(Pipe(file, atOnce).Read() == expected) << Pipe(file, atOnce).Read().refusal;
    }
    EXPECT_EQ(read, 9U);
}

TEST(Streams, NothingIsWaitedForThatNoPictureNeeds)
{
    EXPECT_THAT(Pipe(Bytes().Add("GIF88a"), 6, true).Read().refusal,
                HasSubstr("non è un'immagine"));
    EXPECT_THAT(Pipe(Bytes().Zeros(6), 6, true).Read().refusal, HasSubstr("non è un'immagine"));
    EXPECT_TRUE(Pipe(Bytes(Indexed).Zeros(200), 500, true).Read() == InMemory(Indexed));
}

class OpenFiles : public testing::Test {
  protected:
    ReadFromStream Read(const std::string& path, off_t from = 0)
    {
        const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        EXPECT_EQ(lseek(file, from, SEEK_SET), from);
        ReadFromStream read = OutcomeOf([file] { return ReadPictureFrom(file, "prova"); });
        close(file);
        return read;
    }

    TemporaryFolder folder;
};

TEST_F(OpenFiles, AreReadFromWhereTheyStand)
{
    for (const Bytes& file : Files()) {
        WriteFile(folder / "file", Bytes{1, 2, 3}.Add(file));
        EXPECT_TRUE(Read(folder / "file", 3) == InMemory(file));
    }
    EXPECT_THAT(Read(folder / "file", 4).refusal, HasSubstr("il file è vuoto"));
}

// The system calls them files of no length.
TEST_F(OpenFiles, WhoseLengthNobodyKnowsAreReadAllTheSame)
{
    const Descriptor file(open("/proc/self/status", O_RDONLY | O_CLOEXEC));
    try {
        ReadPictureFrom(file.Number(), "prova");
        ADD_FAILURE() << "it was read";
    } catch (const PictureError& error) {
        EXPECT_THAT(error.what(), HasSubstr("non è un'immagine BMP, JPEG o GIF"));
    }
}

TEST_F(OpenFiles, OfOtherKindsAreRefused)
{
    EXPECT_THAT(Read(folder.Path()).refusal, HasSubstr("è una cartella"));
    EXPECT_THAT(Read("/dev/null").refusal, HasSubstr("il file è vuoto"));
    EXPECT_THAT(Read("/dev/zero").refusal, HasSubstr("non è un'immagine"));
    EXPECT_EQ(OutcomeOf([] { return ReadPictureFrom(-1, "prova"); }).refusal,
              "Impossibile leggere «prova»: il canale è chiuso");
}

}  // namespace
}  // namespace pixano::test
