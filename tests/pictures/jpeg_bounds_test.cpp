// JPEG files that ask for too much, and their refusal.
#include "pictures/jpeg_maker.h"

#include <gmock/gmock-matchers.h>

#include <algorithm>

namespace pixano::test {
namespace {

using testing::HasSubstr;

TEST(JpegBounds, SidesAndPixels)
{
    const Bytes file = MakeJpeg(Shaded(16, 16));
    EXPECT_THAT(WithSides(file, 32768, 1).Refusal(), HasSubstr("troppo grande (32768 x 1)"));
    EXPECT_THAT(WithSides(file, 1, 65500).Refusal(), HasSubstr("troppo grande (1 x 65500)"));
    EXPECT_THAT(WithSides(file, 65535, 65535).Refusal(),
                AllOf(HasSubstr("l'immagine è troppo grande (più di 65500 pixel per lato)"),
                      HasSubstr("al massimo 32767 pixel")));
    EXPECT_THAT(WithSides(file, 32767, 32767).Refusal(), HasSubstr("268 milioni"));
    EXPECT_THAT(WithSides(file, 16, 0).Refusal(), HasSubstr("non sono valide"));
    EXPECT_THAT(WithSides(file, 0, 16).Refusal(), HasSubstr("non sono valide"));
    const PictureRead read = WithSides(file, 16, 32767).Read();
    EXPECT_EQ(read.picture.Height(), 32767);
    EXPECT_TRUE(read.truncated);
}

/// A sound file whose byte at `place` behind the mark of its frame is another one. The mark itself
/// is at -1, the precision at 2.
Bytes WithFrameByte(std::ptrdiff_t place, int value)
{
    Bytes file = MakeJpeg(Shaded(16, 16));
    const std::byte mark[] = {std::byte{0xFF}, std::byte{0xC0}};
    const auto frame =
        std::search(file.Vector().begin(), file.Vector().end(), std::begin(mark), std::end(mark));
    frame[2 + place] = static_cast<std::byte>(value);
    return file;
}

TEST(JpegBounds, KindsThatAreNotRead)
{
    // Frames without loss, in steps of their own, and samples of twelve bits.
    for (const Bytes& file : {WithFrameByte(-1, 0xC3), WithFrameByte(-1, 0xC5),
                              WithFrameByte(-1, 0xCB), WithFrameByte(2, 12)})
        EXPECT_EQ(file.Refusal(),
                  "Impossibile leggere «prova»: questo tipo di JPEG non è previsto");
}

TEST(JpegBounds, ManyScansOfAFewPixels)
{
    const PictureRead most = InScans(32, 157, 500).Read();
    EXPECT_EQ(most.picture, Surface(32, 157, Rgb(77, 77, 77)));
    EXPECT_FALSE(most.truncated);
    for (const Bytes& file : {InScans(32, 157, 501), WithScans(32, 157, 40000)})
        EXPECT_THAT(file.Refusal(), HasSubstr("troppi strati (più di 500)"));
}

TEST(JpegBounds, FewScansOfManyPixels)
{
    // 16 million pixels may be gone through 512 times, 64 million 128 times.
    EXPECT_THAT(WithSides(WithScans(8, 8, 140), 8192, 8192).Refusal(),
                HasSubstr("troppi strati (più di 8589 milioni di pixel in tutto)"));
}

}  // namespace
}  // namespace pixano::test
