// Damaged JPEG files: none is shown without a word, none of the sound ones with one.
#include "pictures/jpeg_maker.h"

#include <gmock/gmock-matchers.h>

#include <algorithm>
#include <string>

namespace pixano::test {
namespace {

constexpr Colour PlainGrey = Rgb(77, 77, 77);

/// A picture of blocks of that grey, `blocks` in each of as many rows. The first block is three
/// bytes long. Its light is (77 - 128) * 8 = -408, of nine bits: the code 1111110 and 511 - 408 =
/// 001100111. 1010 says that there is nothing else, ones fill the last byte.
Bytes GreyBlocks(int blocks, unsigned restartInterval)
{
    const int side = 8 * blocks;
    JpegPlan plan{.width = side, .height = side, .space = JCS_GRAYSCALE};
    plan.samples.assign(static_cast<std::size_t>(side * side), 77);
    plan.set = [restartInterval](auto& jpeg) { jpeg.restart_interval = restartInterval; };
    return MakeJpeg(plan);
}
/// Replaces the first `old`.
Bytes Replaced(Bytes file, const Bytes& old, const Bytes& with)
{
    std::vector<std::byte>& bytes = file.Vector();
    const auto found =
        std::search(bytes.begin(), bytes.end(), old.Vector().begin(), old.Vector().end());
    EXPECT_NE(found, bytes.end());
    const auto place = bytes.erase(found, found + static_cast<std::ptrdiff_t>(old.Size()));
    bytes.insert(place, with.Vector().begin(), with.Vector().end());
    return file;
}

/// The file with two of its bytes replaced, `place` of a thousand behind its head.
Bytes WithMark(Bytes file, std::size_t place, int mark)
{
    constexpr std::size_t Head = 700;
    std::byte* const bytes = &file.Vector()[Head + (file.Size() - Head) * place / 1000];
    bytes[0] = std::byte{0xFF};
    bytes[1] = static_cast<std::byte>(mark);
    return file;
}

void Arithmetic(jpeg_compress_struct& jpeg)
{
    jpeg.arith_code = TRUE;
}

TEST(JpegDamage, AnArithmeticFileCutAnywhere)
{
    const Surface picture = Shaded(64, 160);
    const Bytes whole = MakeJpeg(picture, Arithmetic);
    const Colours complete = DecodedByLibjpeg(whole);
    const Bytes half = whole.Without(whole.Size() / 2);
    EXPECT_TRUE(half.Read().truncated);
    const Colours cut = ColoursOf(half.Read().picture);
    EXPECT_TRUE(std::equal(cut.begin(), cut.begin() + 64 * 32, complete.begin()));
    EXPECT_EQ(Colours(cut.end() - 64 * 32, cut.end()), Colours(64 * 32, Background));
    const Bytes small = MakeJpeg(Shaded(24, 24), Arithmetic);
    int read = 0;
    for (std::size_t missing = 1; missing < small.Size() - 2; ++missing) {
        const Bytes file = small.Without(missing);
        if (!file.Refusal().empty()) continue;
        ++read;
        EXPECT_TRUE(file.Read().truncated) << missing;
    }
    EXPECT_GT(read, 300);
}

TEST(JpegDamage, AnArithmeticFileOfSeveralScansCutInItsFirst)
{
    const Bytes whole = MakeJpeg(Shaded(64, 160), [](auto& jpeg) {
        Arithmetic(jpeg);
        Progressive(jpeg);
    });
    // The first scan is about a twelfth of the file.
    const PictureRead read = whole.Without(whole.Size() - whole.Size() / 16).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(read.picture.Point(0, 159), Background);
}

/// The file with these bits, and ones to the end of the last byte, for its data.
Bytes WithBits(const Bytes& file, std::string bits)
{
    constexpr std::ptrdiff_t ScanHead = 10;  // of one colour
    const Bytes scan{0xFF, 0xDA};
    const std::vector<std::byte>& bytes = file.Vector();
    const auto found =
        std::search(bytes.begin(), bytes.end(), scan.Vector().begin(), scan.Vector().end());
    Bytes made = file.Without(static_cast<std::size_t>(bytes.end() - found - ScanHead));
    bits.resize((bits.size() + 7) / 8 * 8, '1');
    for (std::size_t i = 0; i < bits.size(); i += 8) {
        const int byte = std::stoi(bits.substr(i, 8), nullptr, 2);
        made.Add({byte});
        if (byte == 0xFF) made.Add({0});
    }
    return made.Add({0xFF, 0xD9});
}

TEST(JpegDamage, ACodeThatMeansNothing)
{
    // Every other block's light is the one's before, 00. Seventeen ones are no code; libjpeg takes
    // them for the block's end, so no pixel changes. There is enough behind them for its faster
    // way, on which it does not warn.
    constexpr int Blocks = 40;
    const Bytes whole = GreyBlocks(Blocks, 0);
    const auto bits = [](const std::string& third) {
        std::string all = "11111100011001111010001010" + third;
        for (int i = 3; i < Blocks * Blocks; ++i)
            all += "001010";
        return all;
    };
    ASSERT_EQ(WithBits(whole, bits("001010")), whole);
    const PictureRead read = WithBits(whole, bits("00" + std::string(17, '1'))).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(read.picture, Surface(8 * Blocks, 8 * Blocks, PlainGrey));
}

TEST(JpegDamage, ALostRestartMarker)
{
    // The second block's bytes are taken for rubbish before the next marker. It becomes what
    // libjpeg makes of nothing; the others are as they were.
    const PictureRead read = Replaced(GreyBlocks(4, 1), {0xFF, 0xD0}, {}).Read();
    EXPECT_TRUE(read.truncated);
    Colours pixels = ColoursOf(read.picture);
    for (int y = 0; y < 8; ++y)
        std::fill_n(pixels.begin() + y * 32 + 8, 8, PlainGrey);
    EXPECT_EQ(pixels, Colours(32 * 32, PlainGrey));
}

TEST(JpegDamage, DataThatEndsInAnotherMarker)
{
    // Behind the first block, whose bytes end in the second's first bits, comes a marker that has
    // no business there: the last block becomes the grey of no light at all.
    const Bytes file = GreyBlocks(4, 0);
    const Bytes start{0xFC, 0x67};
    const PictureRead read = Replaced(file, start, Bytes(start).Add({0xA0, 0xFF, 0x01})).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(read.picture.Point(7, 7), PlainGrey);
    EXPECT_EQ(read.picture.Point(31, 31), Rgb(128, 128, 128));
}

TEST(JpegDamage, AnyMarkerInAnyKindOfData)
{
    const auto restarting = [](jpeg_compress_struct& jpeg) { jpeg.restart_interval = 3; };
    const auto restartingArithmetic = [](jpeg_compress_struct& jpeg) {
        Arithmetic(jpeg);
        jpeg.restart_interval = 3;
    };
    using Set = std::function<void(jpeg_compress_struct&)>;
    for (const Set& set :
         {Set(), Set(Progressive), Set(Arithmetic), Set(restarting), Set(restartingArithmetic)}) {
        const Bytes whole = MakeJpeg(Shaded(64, 64), set);
        EXPECT_FALSE(whole.Read().truncated);
        for (const int mark : {0x01, 0xC4, 0xD0, 0xD7, 0xDA, 0xDD, 0xE0, 0xFE})
            for (const std::size_t place : {300U, 500U, 700U, 900U}) {
                const Bytes file = WithMark(whole, place, mark);
                EXPECT_TRUE(!file.Refusal().empty() || file.Read().truncated) << mark << place;
            }
    }
}

TEST(JpegDamage, WhateverLibjpegWarnsOf)
{
    using Set = std::function<void(jpeg_compress_struct&)>;
    for (const Set& set : {Set(), Set(Progressive), Set(Arithmetic)}) {
        const Bytes whole = MakeJpeg(Shaded(64, 64), set);
        int warned = 0;
        for (std::size_t i = 700; i + 3 < whole.Size(); i += 11) {
            Bytes file = whole;
            file.Vector()[i] ^= std::byte{0x5A};
            if (!file.Refusal().empty() || WarningsOfLibjpeg(file) == 0) continue;
            ++warned;
            EXPECT_TRUE(file.Read().truncated) << i;
        }
        EXPECT_GT(warned, 5);
    }
}

TEST(JpegDamage, BytesBeforeTheMarkOfTheEnd)
{
    const Bytes whole = MakeJpeg(Shaded(24, 24));
    const Bytes end{0xFF, 0xD9};
    const PictureRead read = whole.Without(2).Zeros(20).Add(end).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(ColoursOf(read.picture), DecodedByLibjpeg(whole));
}

TEST(JpegDamage, WhatIsNone)
{
    const Bytes whole = MakeJpeg(Shaded(24, 24));
    // Behind the end anything may follow; and a version of the head that nobody knows is none.
    EXPECT_FALSE(Bytes(whole).Add({1, 2, 3, 0xFF, 0xDA}).Read().truncated);
    Bytes newer = whole;
    ASSERT_EQ(newer.Vector()[11], std::byte{1});
    newer.Vector()[11] = std::byte{2};
    EXPECT_FALSE(newer.Read().truncated);
}

TEST(JpegDamage, SomethingElseBehindTheFirstMark)
{
    const Bytes whole = MakeJpeg(Shaded(24, 24));
    for (const int byte : {0, 0x20, 0xD8}) {
        const PictureRead read = Replaced(whole, {0xFF, 0xD8}, {0xFF, 0xD8, byte}).Read();
        EXPECT_TRUE(read.truncated);
        EXPECT_EQ(ColoursOf(read.picture), DecodedByLibjpeg(whole));
    }
    EXPECT_THAT((Bytes{0xFF, 0xD8}).Refusal(), testing::HasSubstr("il file JPEG è danneggiato"));
}

}  // namespace
}  // namespace pixano::test
