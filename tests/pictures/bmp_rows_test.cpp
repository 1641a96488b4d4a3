// Uncompressed BMP files of every kind, spelt out by hand.
#include "pictures/bmp_maker.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

constexpr Colour Red = Rgb(255, 0, 0);
constexpr Colour Green = Rgb(0, 255, 0);
constexpr Colour Blue = Rgb(0, 0, 255);

/// Blue, green, red, filler: the colours of these tests as four-byte palette entries.
const Bytes RedGreenBlueWhite{0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0, 255, 255, 255, 0};

TEST(BmpRows, TrueColourBottomUpWithPadding)
{
    // Rows of two pixels take six bytes and two of padding; the lower row comes first.
    const Bytes pixels{3, 2, 1, 6, 5, 4, 99, 99, 9, 8, 7, 12, 11, 10, 99, 99};
    EXPECT_EQ(ReadColours(Bmp({.width = 2, .height = 2}, {}, pixels)),
              (Colours{Rgb(7, 8, 9), Rgb(10, 11, 12), Rgb(1, 2, 3), Rgb(4, 5, 6)}));
}

TEST(BmpRows, NegativeHeightIsTopDown)
{
    const Bytes pixels{3, 2, 1, 0, 6, 5, 4, 0};
    EXPECT_EQ(ReadColours(Bmp({.width = 1, .height = -2}, {}, pixels)),
              (Colours{Rgb(1, 2, 3), Rgb(4, 5, 6)}));
}

TEST(BmpRows, OneBitPixelsFromTheHighBitOn)
{
    // 1011 0000 1: nine pixels, two bytes and two of padding.
    const Bytes palette{0, 0, 255, 0, 255, 0, 0, 0};
    const Bytes pixels{0xB0, 0x80, 0, 0};
    EXPECT_EQ(ReadColours(Bmp({.width = 9, .bits = 1}, palette, pixels)),
              (Colours{Blue, Red, Blue, Blue, Red, Red, Red, Red, Blue}));
}

TEST(BmpRows, TwoBitPixels)
{
    // 00 01 10 11 | 10
    EXPECT_EQ(ReadColours(Bmp({.width = 5, .bits = 2}, RedGreenBlueWhite, {0x1B, 0x80, 0, 0})),
              (Colours{Red, Green, Blue, White, Blue}));
}

TEST(BmpRows, FourBitPixels)
{
    EXPECT_EQ(ReadColours(Bmp({.width = 3, .bits = 4, .colours = 4}, RedGreenBlueWhite,
                              {0x31, 0x20, 0, 0})),
              (Colours{White, Green, Blue}));
}

TEST(BmpRows, EightBitPixels)
{
    EXPECT_EQ(
        ReadColours(Bmp({.width = 3, .bits = 8, .colours = 4}, RedGreenBlueWhite, {2, 1, 3, 0})),
        (Colours{Blue, Green, White}));
}

TEST(BmpRows, AnIndexWithoutColourIsBlack)
{
    EXPECT_EQ(
        ReadColours(Bmp({.width = 2, .bits = 8, .colours = 4}, RedGreenBlueWhite, {4, 255, 0, 0})),
        (Colours{0, 0}));
}

TEST(BmpRows, APaletteEndsWherePixelsBegin)
{
    // The head speaks of 256 colours; only three are there. Index 3 is no colour made of pixels.
    const Bytes palette{0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0};
    EXPECT_EQ(ReadColours(Bmp({.width = 4, .bits = 8}, palette, {0, 1, 2, 3})),
              (Colours{Red, Green, Blue, 0}));
}

TEST(BmpRows, APaletteLongerThanItCanBe)
{
    Bytes palette = RedGreenBlueWhite;
    palette.Zeros(300 * 4 - palette.Size());
    EXPECT_EQ(ReadColours(Bmp({.width = 4, .bits = 8, .colours = 300}, palette, {0, 1, 2, 3})),
              (Colours{Red, Green, Blue, White}));
}

TEST(BmpRows, PixelsBeginWhereTheHeadSays)
{
    const Bytes extra = Bytes(RedGreenBlueWhite).Add({77, 77, 77});
    EXPECT_EQ(ReadColours(Bmp({.width = 4, .bits = 8, .colours = 4}, extra, {3, 2, 1, 0})),
              (Colours{White, Blue, Green, Red}));
}

TEST(BmpRows, AnOffsetOfZeroMeansBehindThePalette)
{
    const BmpHead head{.width = 4, .bits = 8, .colours = 4, .offset = 0};
    EXPECT_EQ(ReadColours(Bmp(head, RedGreenBlueWhite, {3, 2, 1, 0})),
              (Colours{White, Blue, Green, Red}));
    // Without a palette that is right behind the head, unless the head speaks of colours for poorer
    // screens.
    const BmpHead plain{.width = 2, .offset = 0};
    EXPECT_EQ(ReadColours(Bmp(plain, {}, {3, 2, 1, 6, 5, 4, 0, 0})),
              (Colours{Rgb(1, 2, 3), Rgb(4, 5, 6)}));
    const BmpHead advised{.width = 2, .colours = 4, .offset = 0};
    EXPECT_EQ(ReadColours(Bmp(advised, RedGreenBlueWhite, {3, 2, 1, 6, 5, 4, 0, 0})),
              (Colours{Rgb(1, 2, 3), Rgb(4, 5, 6)}));
}

TEST(BmpRows, PixelsDoNotBeginWhereThePaletteDoes)
{
    const Bytes pixels{3, 2, 1, 0};
    const Colours expected{White, Blue, Green, Red};
    const BmpHead four{.width = 4, .bits = 8, .colours = 4, .offset = 14 + 40};
    EXPECT_EQ(ReadColours(Bmp(four, RedGreenBlueWhite, pixels)), expected);
    BmpHead all = four;
    all.colours = 0;
    EXPECT_EQ(ReadColours(Bmp(all, Bytes(RedGreenBlueWhite).Zeros(252 * 4), pixels)), expected);
    const Bytes short3{0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 255};
    const BmpHead core{.size = 12, .width = 4, .bits = 2, .offset = 14 + 12};
    EXPECT_EQ(ReadColours(Bmp(core, short3, {0xE4, 0, 0, 0})), expected);
    const BmpHead runs{.width = 4, .bits = 8, .compression = 1, .colours = 4, .offset = 14 + 40};
    EXPECT_EQ(ReadColours(Bmp(runs, RedGreenBlueWhite, {1, 3, 1, 2, 1, 1, 1, 0, 0, 1})), expected);
    // Where there is no palette, pixels begin there as a rule.
    EXPECT_EQ(ReadColours(Bmp({.offset = 14 + 40}, {}, {3, 2, 1, 0})), (Colours{Rgb(1, 2, 3)}));
}

TEST(BmpRows, FirstOs2HeaderHasThreeByteColours)
{
    const Bytes palette{0, 0, 255, 0, 255, 0};
    EXPECT_EQ(ReadColours(Bmp({.size = 12, .width = 3, .bits = 1}, palette, {0x40, 0, 0, 0})),
              (Colours{Red, Green, Red}));
}

TEST(BmpRows, SecondOs2HeaderMayBeCutAnywhere)
{
    for (const std::uint32_t size : {16U, 24U, 36U})
        EXPECT_EQ(ReadColours(Bmp({.size = size, .width = 2, .bits = 2}, RedGreenBlueWhite,
                                  {0x40, 0, 0, 0})),
                  (Colours{Green, Red}))
            << size;
    const Bytes rest = Bytes().Zeros(24).Add(RedGreenBlueWhite);
    EXPECT_EQ(ReadColours(Bmp({.size = 64, .width = 2, .bits = 2}, rest, {0x40, 0, 0, 0})),
              (Colours{Green, Red}));
}

TEST(BmpRows, LongWindowsHeaders)
{
    for (const std::uint32_t size : {52U, 56U, 108U, 124U}) {
        const Bytes rest = Bytes().Zeros(size - 40).Add(RedGreenBlueWhite);
        EXPECT_EQ(ReadColours(Bmp({.size = size, .width = 2, .bits = 2}, rest, {0x40, 0, 0, 0})),
                  (Colours{Green, Red}))
            << size;
    }
}

TEST(BmpRows, MissingPixelsShowTheBackground)
{
    // Two rows of three pixels, 12 bytes each; of the upper row one pixel and a half are left.
    const Bytes whole = Bmp({.width = 3, .height = 2}, {}, {1, 1, 1, 2, 2, 2, 3, 3, 3, 0, 0, 0,
                                                            4, 4, 4, 5, 5, 5, 6, 6, 6, 0, 0, 0});
    const PictureRead read = whole.Without(8).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(ColoursOf(read.picture), (Colours{Rgb(4, 4, 4), Background, Background, Rgb(1, 1, 1),
                                                Rgb(2, 2, 2), Rgb(3, 3, 3)}));
}

TEST(BmpRows, MissingPaddingIsNoLoss)
{
    const Bytes whole = Bmp({.width = 1, .height = 1}, {}, {3, 2, 1, 0});
    EXPECT_EQ(ReadColours(whole.Without(1)), (Colours{Rgb(1, 2, 3)}));
    EXPECT_TRUE(whole.Without(2).Read().truncated);
}

TEST(BmpRows, MoreRowsThanOneBlockHolds)
{
    // 700 rows of 401 pixels are 842 kB; each pixel tells its place.
    constexpr int Width = 401;
    constexpr int Height = 700;
    Bytes pixels;
    for (int y = Height - 1; y >= 0; --y) {
        for (int x = 0; x < Width; ++x)
            pixels.Add({x & 255, x >> 8 | y >> 8 << 4, y & 255});
        pixels.Zeros(1);
    }
    const Surface picture = Bmp({.width = Width, .height = Height}, {}, pixels).Read().picture;
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            ASSERT_EQ(picture.Point(x, y), Rgb(y & 255, x >> 8 | y >> 8 << 4, x & 255));
}

}  // namespace
}  // namespace pixano::test
