// Damaged and malicious pictures: every one is read or refused with a message, in bounded time and
// memory, and gives the same pixels whatever the memory held before.
#include "reliability/fuzz_kinds.h"
#include "reliability/fuzz_memory.h"
#include "reliability/fuzz_mutation.h"
#include "reliability/fuzz_time.h"

#include <gmock/gmock-matchers.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>

#include <fcntl.h>
#include <unistd.h>

namespace pixano::test {
namespace {

constexpr int Shards = 8;

struct Format {
    const char* name;
    std::vector<Bytes> (*files)();
};

void PrintTo(const Format& format, std::ostream* out)
{
    *out << format.name;
}

/// What reading gave: a picture, or the message of its refusal.
struct Outcome {
    std::optional<Surface> picture;
    bool truncated = false;
    std::string message;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

template <class Read>
Outcome OutcomeOf(Read read)
{
    try {
        // As much as a picture of two million pixels takes.
        const MemoryRoom room(std::size_t{8} << 20);
        PictureRead got = read();
        return {std::move(got.picture), got.truncated, {}};
    } catch (const PictureError& error) {
        return {std::nullopt, false, error.what()};
    }
}

bool AllDrawn(const Surface& picture)
{
    const std::uint32_t* const pixels = picture.Pixels();
    const auto count = static_cast<std::ptrdiff_t>(picture.Width()) * picture.Height();
    return std::all_of(pixels, pixels + count, [](std::uint32_t p) { return p >> 24 == 0xFF; });
}

/// A file that holds the input that is tried. It stays behind when the program ends there.
class KeptInput {
  public:
    explicit KeptInput(const std::string& path)
        : file_(open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600))
    {
        EXPECT_GE(file_, 0) << path;
    }
    KeptInput(const KeptInput&) = delete;
    KeptInput& operator=(const KeptInput&) = delete;
    ~KeptInput() { close(file_); }

    void Keep(std::span<const std::byte> content) const
    {
        const auto size = static_cast<ssize_t>(content.size());
        EXPECT_EQ(pwrite(file_, content.data(), content.size(), 0), size);
        EXPECT_EQ(ftruncate(file_, size), 0);
    }

  private:
    int file_;
};

class HostileFiles : public testing::TestWithParam<std::tuple<Format, int>> {
  protected:
    using Content = std::vector<std::byte>;

    /// Reads the content twice, in memory that holds different bytes, and checks all that is
    /// promised.
    Outcome Try(const Content& content)
    {
        input.Keep(content);
        FillFreshMemory(0x00);
        const double before = SecondsUsed();
        const Outcome outcome = OutcomeOf([&] { return ReadPictureFrom(content, path); });
        slowest = std::max(slowest, SecondsUsed() - before);
        FillFreshMemory(0xA5);
        EXPECT_TRUE(OutcomeOf([&] { return ReadPictureFrom(content, path); }) == outcome);
        FillFreshMemory(0x5A);
        EXPECT_TRUE(OutcomeOf([&] { return ReadPicture(path); }) == outcome);
        EXPECT_LT(slowest, LongestReading);
        if (outcome.picture)
            EXPECT_TRUE(AllDrawn(*outcome.picture));
        else
            EXPECT_THAT(outcome.message,
                        testing::StartsWith("Impossibile leggere «" + path + "»: "));
        return outcome;
    }

    static Bytes BytesOf(const Content& content)
    {
        Bytes bytes;
        bytes.Vector() = content;
        return bytes;
    }

    static constexpr double LongestReading = 5;
    const Format format = std::get<0>(GetParam());
    const int shard = std::get<1>(GetParam());
    const std::string path = testing::TempDir() + "pixano-" + format.name + '-' +
                             std::to_string(shard) + '-' + std::to_string(getpid()) + ".bin";
    const KeptInput input{path};
    double slowest = 0;
};

/// How many inputs there are for each format and shard: 120,000 or 2,400 altogether.
int Inputs()
{
    return IsLong() ? 5000 : 100;
}

TEST_P(HostileFiles, AreReadOrRefused)
{
    constexpr std::size_t MostKept = 200;
    const std::uint64_t seed = FirstSeed() + static_cast<std::uint64_t>(shard);
    Mutator mutator(seed);
    std::vector<Bytes> files = format.files();
    std::set<std::string> messages;
    int read = 0;
    for (int i = 0; i < Inputs(); ++i) {
        SCOPED_TRACE("input " + std::to_string(i) + " of seed " + std::to_string(seed) +
                     ", kept in " + path);
        const Content content = mutator.Changed(files);
        const Outcome outcome = Try(content);
        if (HasFailure()) return;
        if (outcome.picture) ++read;
        // What is still read, or is refused for a new reason, is worth changing further.
        const bool isNew = messages.insert(outcome.message).second;
        if (files.size() < MostKept && (isNew || (outcome.picture && mutator.Below(8) == 0)))
            files.push_back(BytesOf(content));
    }
    std::printf("%s, seed %llu: %d inputs, %d read, the others refused for %zu reasons; "
                "the slowest took %.3f s\n",
                format.name, static_cast<unsigned long long>(seed), Inputs(), read,
                messages.size() - 1, slowest);
    // Neither all noise nor all harmless.
    EXPECT_GT(read, Inputs() / 20);
    EXPECT_LT(read, Inputs() * 19 / 20);
    std::filesystem::remove(path);
}

INSTANTIATE_TEST_SUITE_P(Of, HostileFiles,
                         testing::Combine(testing::Values(Format{"bmp", BmpFiles},
                                                          Format{"jpeg", JpegFiles},
                                                          Format{"gif", GifFiles}),
                                          testing::Range(0, Shards)),
                         [](const auto& tried) {
                             return std::string(std::get<0>(tried.param).name) + "_" +
                                    std::to_string(std::get<1>(tried.param));
                         });

}  // namespace
}  // namespace pixano::test
