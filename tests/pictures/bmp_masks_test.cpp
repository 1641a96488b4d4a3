// BMP files whose pixels are put together from bits: five each, or as masks say.
#include "pictures/bmp_maker.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

TEST(BmpRows, SixteenBitsAreFiveEach)
{
    // Five bits v become v * 255 / 31 to the nearest: 31 is 255, 1 is 8.2, 16 is 131.6, 15 is
    // 123.4.
    const Bytes pixels = Bytes().U16(0x7FFF).U16(1 << 10 | 16 << 5 | 15).U16(0x8000).U16(0);
    EXPECT_EQ(ReadColours(Bmp({.width = 3, .bits = 16}, {}, pixels)),
              (Colours{White, Rgb(8, 132, 123), 0}));
}

TEST(BmpRows, SixteenBitsByMasks)
{
    // Six bits v become v * 255 / 63 to the nearest: 1 is 4.05, 33 is 133.57.
    const Bytes masks = Bytes().U32(0xF800).U32(0x07E0).U32(0x001F);
    const Bytes pixels = Bytes().U16(0xFFFF).U16(1 << 5).U16(33 << 5).U16(0);
    EXPECT_EQ(ReadColours(Bmp({.width = 3, .bits = 16, .compression = 3}, masks, pixels)),
              (Colours{White, Rgb(0, 4, 0), Rgb(0, 134, 0)}));
}

TEST(BmpRows, ThirtyTwoBitsIgnoreTheFourthByte)
{
    EXPECT_EQ(ReadColours(Bmp({.width = 2, .bits = 32}, {}, {3, 2, 1, 0, 6, 5, 4, 255})),
              (Colours{Rgb(1, 2, 3), Rgb(4, 5, 6)}));
}

TEST(BmpRows, ThirtyTwoBitsByByteMasksInAnyOrder)
{
    const Bytes masks = Bytes().U32(0x0000FF00).U32(0xFF000000).U32(0x000000FF);
    EXPECT_EQ(ReadColours(Bmp({.bits = 32, .compression = 3}, masks, {30, 10, 99, 20})),
              (Colours{Rgb(10, 20, 30)}));
}

TEST(BmpRows, ThirtyTwoBitsByTenBitMasks)
{
    // Ten bits v become v * 255 / 1023: 1023 is 255, 512 is 127.6, 2 is 0.4985, 3 is 0.7478.
    const Bytes masks = Bytes().U32(0x3FF00000).U32(0x000FFC00).U32(0x000003FF);
    const Bytes pixels = Bytes().U32(1023U << 20 | 512 << 10 | 2).U32(3U << 20 | 0xC0000000);
    EXPECT_EQ(ReadColours(Bmp({.width = 2, .bits = 32, .compression = 3}, masks, pixels)),
              (Colours{Rgb(255, 128, 0), Rgb(1, 0, 0)}));
}

TEST(BmpRows, AMaskOfAllBitsAndAnEmptyOne)
{
    const Bytes masks = Bytes().U32(0xFFFFFFFF).U32(0).U32(1);
    const Bytes pixels = Bytes().U32(0xFFFFFFFF).U32(0x80000000);
    // 2^31 * 255 / (2^32 - 1) is 127.50000003.
    EXPECT_EQ(ReadColours(Bmp({.width = 2, .bits = 32, .compression = 3}, masks, pixels)),
              (Colours{Rgb(255, 0, 255), Rgb(128, 0, 0)}));
}

TEST(BmpRows, MasksInsideTheHeaderAndWithAlpha)
{
    const Bytes masks = Bytes().U32(0xFF).U32(0xFF00).U32(0xFF0000);
    EXPECT_EQ(ReadColours(Bmp({.size = 52, .bits = 32, .compression = 3}, masks, {1, 2, 3, 4})),
              (Colours{Rgb(1, 2, 3)}));
    const Bytes withAlpha = Bytes(masks).U32(0xFF000000);
    EXPECT_EQ(ReadColours(Bmp({.size = 56, .bits = 32, .compression = 3}, withAlpha, {1, 2, 3, 0})),
              (Colours{Rgb(1, 2, 3)}));
    EXPECT_EQ(ReadColours(Bmp({.bits = 32, .compression = 6}, withAlpha, {1, 2, 3, 0})),
              (Colours{Rgb(1, 2, 3)}));
}

}  // namespace
}  // namespace pixano::test
