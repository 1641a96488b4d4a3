// BMP files that are refused, and what is said of them.
#include "pictures/bmp_maker.h"

#include <gmock/gmock-matchers.h>

#include <climits>

namespace pixano::test {
namespace {

using testing::HasSubstr;

std::string RefusalOf(const BmpHead& head)
{
    return Bmp(head, Bytes().Zeros(1100), Bytes().Zeros(64)).Refusal();
}

TEST(BmpHeader, SizesThatCannotBe)
{
    EXPECT_THAT(RefusalOf({.width = 0}), HasSubstr("misure dell'immagine non sono valide (0 x 1)"));
    EXPECT_THAT(RefusalOf({.height = 0}), HasSubstr("misure dell'immagine non sono valide"));
    EXPECT_THAT(RefusalOf({.width = -5}), HasSubstr("misure dell'immagine non sono valide"));
    EXPECT_THAT(RefusalOf({.width = INT_MIN}), HasSubstr("misure dell'immagine non sono valide"));
}

TEST(BmpHeader, SizesBeyondTheBounds)
{
    EXPECT_THAT(RefusalOf({.width = 32768}), HasSubstr("troppo grande (32768 x 1)"));
    EXPECT_THAT(RefusalOf({.height = -32768}), HasSubstr("troppo grande (1 x 32768)"));
    EXPECT_THAT(RefusalOf({.height = INT_MIN}), HasSubstr("troppo grande (1 x 2147483648)"));
    EXPECT_THAT(RefusalOf({.width = INT_MAX, .height = INT_MAX}), HasSubstr("troppo grande"));
    // 32767 * 8193 is 31 more than 256 * 1024 * 1024.
    EXPECT_THAT(RefusalOf({.width = 32767, .height = 8193}), HasSubstr("268 milioni"));
    EXPECT_THAT(RefusalOf({.size = 12, .width = 0xFFFF}), HasSubstr("troppo grande (65535 x 1)"));
}

TEST(BmpHeader, TheLongestSide)
{
    const PictureRead read =
        Bmp({.width = 32767, .bits = 1}, Bytes().Zeros(8), Bytes().Zeros(4096)).Read();
    EXPECT_EQ(read.picture.Width(), 32767);
    EXPECT_FALSE(read.truncated);
}

TEST(BmpHeader, HeadersOfUnknownLength)
{
    for (const std::uint32_t size : {0U, 11U, 13U, 65U, 100U, 125U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        Bytes file = Bmp({}, Bytes().Zeros(200), {1, 2, 3, 0});
        for (std::size_t i = 0; i < 4; ++i)
            file.Vector()[14 + i] = static_cast<std::byte>(size >> 8 * i & 255);
        EXPECT_THAT(file.Refusal(), HasSubstr("l'intestazione del file BMP non è valida")) << size;
    }
}

TEST(BmpHeader, KindsThatAreNotRead)
{
    EXPECT_THAT(RefusalOf({.bits = 0}), HasSubstr("non è previsto (0 bit per pixel"));
    EXPECT_THAT(RefusalOf({.bits = 3}), HasSubstr("non è previsto"));
    EXPECT_THAT(RefusalOf({.bits = 64}), HasSubstr("non è previsto"));
    EXPECT_THAT(RefusalOf({.bits = 0xFFFF}), HasSubstr("non è previsto"));
    EXPECT_THAT(RefusalOf({.bits = 4, .compression = 1}), HasSubstr("non è previsto"));
    EXPECT_THAT(RefusalOf({.bits = 8, .compression = 2}), HasSubstr("non è previsto"));
    EXPECT_THAT(RefusalOf({.bits = 24, .compression = 3}), HasSubstr("non è previsto"));
    EXPECT_THAT(RefusalOf({.size = 64, .bits = 1, .compression = 3}), HasSubstr("non è previsto"));
    EXPECT_THAT(RefusalOf({.compression = 0xFFFFFFFF}), HasSubstr("non è previsto"));
    EXPECT_THAT(RefusalOf({.planes = 3}), HasSubstr("non è valida"));
}

TEST(BmpHeader, OtherFormatsInside)
{
    EXPECT_THAT(RefusalOf({.bits = 0, .compression = 4}), HasSubstr("contiene un'immagine JPEG"));
    EXPECT_THAT(RefusalOf({.bits = 0, .compression = 5}), HasSubstr("contiene un'immagine PNG"));
}

TEST(BmpHeader, MasksWithGaps)
{
    const Bytes masks = Bytes().U32(0xFF0000).U32(0xF0F).U32(0xF0);
    EXPECT_THAT(Bmp({.bits = 32, .compression = 3}, masks, {1, 2, 3, 4}).Refusal(),
                HasSubstr("le maschere dei colori"));
}

TEST(BmpHeader, PixelsWhereTheyCannotBe)
{
    constexpr auto Message = "i pixel cominciano dove non possono stare";
    EXPECT_THAT(RefusalOf({.offset = 1}), HasSubstr(Message));
    EXPECT_THAT(RefusalOf({.offset = 53}), HasSubstr(Message));
    EXPECT_THAT(RefusalOf({.offset = 54 + 1100 + 64}), HasSubstr(Message));
    EXPECT_THAT(RefusalOf({.offset = 0xFFFFFFFF}), HasSubstr(Message));
}

TEST(BmpHeader, AFileThatEndsInItsHeader)
{
    const Bytes whole = Bmp({.size = 124, .bits = 8}, Bytes().Zeros(84), {1, 2, 3, 0});
    for (std::size_t size = 2; size < 14 + 124; ++size)
        EXPECT_THAT(whole.Without(whole.Size() - size).Refusal(),
                    HasSubstr("finisce troppo presto"))
            << size;
}

TEST(BmpHeader, AMessageNamesTheFile)
{
    EXPECT_EQ(RefusalOf({.width = 0}),
              "Impossibile leggere «prova»: le misure dell'immagine non sono valide (0 x 1)");
}

}  // namespace
}  // namespace pixano::test
