// Files of a few bytes that ask for much: what reading them may take, in time and in memory.
#include "pictures/bmp_maker.h"
#include "pictures/gif_maker.h"
#include "pictures/jpeg_maker.h"
#include "reliability/fuzz_bounds.h"
#include "reliability/fuzz_kinds.h"

#include <gmock/gmock-matchers.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;

Bytes LargeBitmap()
{
    return Bmp({.width = Side, .height = Side}, {}, Bytes().Zeros(100));
}

/// Its head says that a colour profile of 4 GB lies behind the pixels.
Bytes LargeProfile()
{
    BmpHead head{.width = Side, .height = Side};
    head.size = 124;
    return Bmp(head, Bytes().Zeros(16).Add("DEBM").Zeros(52).U32(124).U32(0xFFFFFFFF).Zeros(4),
               Bytes().Zeros(100));
}

/// Runs of one colour, each a row or what is left of it.
Bytes LargeRuns()
{
    Bytes runs;
    for (int i = 0; i < Side * 17; ++i)
        runs.Add(i % 17 == 16 ? Bytes{0, 0} : Bytes{255, 1});
    return Bmp({.width = Side, .height = Side, .bits = 8, .compression = 1}, Bytes().Zeros(1024),
               runs);
}

Bytes LargeJpeg(const std::function<void(jpeg_compress_struct&)>& set)
{
    return WithSides(MakeJpeg(Shaded(16, 16), set), Side, Side);
}

Bytes LargeInks()
{
    JpegPlan plan{.width = 8, .height = 8, .space = JCS_CMYK, .set = Progressive};
    plan.samples.assign(8 * 8 * 4, 99);
    return WithSides(MakeJpeg(plan), Side, Side);
}

/// Ends before its last row does, so that it is read again pixel by pixel.
Bytes LargeGif()
{
    Bytes file = GifScreen(Side, Side).Add(GifFrame(0, 0, Side, Side)).Add({2});
    // Codes of the greatest length that stand for longer and longer rows of one colour.
    int bits = 3;
    int waiting = 0;
    std::uint32_t held = 0;
    Bytes packed;
    const auto put = [&](std::uint32_t code) {
        held |= code << waiting;
        for (waiting += bits; waiting >= 8; waiting -= 8, held >>= 8)
            packed.Add({static_cast<int>(held & 255)});
    };
    put(4);
    put(0);
    std::uint32_t next = 6;
    for (long drawn = 1, length = 2; drawn < long{Side} * (Side - 1); drawn += length) {
        put(next);
        if (next < 4095) {
            ++next;
            ++length;
        }
        if (next == 1U << bits && bits < 12) ++bits;
    }
    for (std::size_t i = 0; i + 255 <= packed.Size(); i += 255) {
        file.Add({255});
        file.Vector().insert(file.Vector().end(),
                             packed.Vector().begin() + static_cast<std::ptrdiff_t>(i),
                             packed.Vector().begin() + static_cast<std::ptrdiff_t>(i + 255));
    }
    return file;
}

struct Large {
    const char* name;
    Bytes (*file)();
    /// The picture itself, and where the format needs them all coefficients of it.
    int bytesForAPixel;
};

void PrintTo(const Large& large, std::ostream* out)
{
    *out << large.name;
}

constexpr Large Larges[] = {{"Bitmap", LargeBitmap, 4},
                            {"BitmapWithProfile", LargeProfile, 4},
                            {"BitmapInRuns", LargeRuns, 4},
                            {"Jpeg", [] { return LargeJpeg({}); }, 4},
                            {"ProgressiveJpeg", [] { return LargeJpeg(Progressive); }, 4 + 3 * 2},
                            {"ProgressiveInks", LargeInks, 4 + 4 * 2},
                            {"Gif", LargeGif, 4}};

class SmallFileOfALargePicture : public testing::TestWithParam<Large> {};

TEST_P(SmallFileOfALargePicture, TakesBoundedTimeAndMemory)
{
    constexpr double Longest = 5;
    const Bytes file = GetParam().file();
    InAProcessOfItsOwn([&] {
        const double memory = MemoryUsed();
        const double before = SecondsUsed();
        const PictureRead read = file.Read();
        EXPECT_EQ(read.picture.Width(), Side);
        EXPECT_LT(SecondsUsed() - before, Longest);
        EXPECT_LT(MemoryUsed() - memory, Pixels * GetParam().bytesForAPixel + Besides);
        std::printf("%s: %zu bytes, %.2f s, %.0f MB\n", GetParam().name, file.Size(),
                    SecondsUsed() - before, (MemoryUsed() - memory) / 1e6);
    });
}

TEST_P(SmallFileOfALargePicture, IsRefusedWhereMemoryIsShort)
{
    const Bytes file = GetParam().file();
    // Enough for everything but the picture; then for the picture, but not for what is bigger.
    for (const std::size_t megabytes : {32U, 80U}) {
        std::string refusal;
        {
            const MemoryRoom room(megabytes << 20);
            refusal = file.Refusal();
        }
        const bool isEnough =
            megabytes == 80 && (GetParam().bytesForAPixel == 4 || !MallocIsBounded);
        EXPECT_THAT(refusal, HasSubstr(isEnough ? "" : "la memoria non basta"));
        EXPECT_EQ(refusal.empty(), isEnough);
    }
}

INSTANTIATE_TEST_SUITE_P(Bounds, SmallFileOfALargePicture, testing::ValuesIn(Larges),
                         [](const auto& tried) { return std::string(tried.param.name); });

TEST(FilesToChange, CanBeReadWhole)
{
    // The last ones of two formats are damaged already.
    const std::vector<std::pair<std::vector<Bytes>, std::size_t>> formats{
        {BmpFiles(), 0}, {JpegFiles(), 3}, {GifFiles(), 2}};
    for (const auto& [files, damaged] : formats) {
        EXPECT_GE(files.size(), 7U);
        for (std::size_t i = 0; i < files.size(); ++i) {
            EXPECT_EQ(files[i].Refusal(), "");
            EXPECT_EQ(files[i].Read().truncated, i >= files.size() - damaged) << i;
        }
    }
}

}  // namespace
}  // namespace pixano::test
