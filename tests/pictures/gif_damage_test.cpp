// GIF files with frames of no pixels, codes of no meaning and bytes of no block.
#include "pictures/gif_maker.h"

#include <gmock/gmock-matchers.h>

namespace pixano::test::gif {
namespace {

using testing::HasSubstr;

/// What is shown of a file that is not sound.
Colours ShownOf(const Bytes& file)
{
    const PictureRead read = file.Read();
    EXPECT_TRUE(read.truncated);
    return ColoursOf(read.picture);
}

const std::vector<Bytes> FramesWithoutPixels{
    File({GifFrame(0, 0, 0, 2), GifPixels({})}), File({GifFrame(0, 0, 2, 0), GifPixels({})}),
    File({GifFrame(7, 7, 0, 0, 0x81), GifTable, GifPixels({1, 2, 3}, 1)}),
    File({GifFrame(0, 0, 0, 0), {99, 0}})};

TEST(GifDamage, TheFirstFrameThatHasPixelsCounts)
{
    for (const std::uint32_t screen : {2U, 0U})
        for (const Bytes& none : FramesWithoutPixels) {
            const Bytes file = File({GifScreen(screen, screen / 2), none, none,
                                     GifFrame(0, 0, 2, 1), GifPixels({1, 3}), GifEnd});
            EXPECT_EQ(ReadColours(file), (Colours{B, D}));
        }
}

TEST(GifDamage, AFrameWithoutPixelsLendsNothingToTheNext)
{
    const Bytes own{9, 9, 9, 8, 8, 8, 7, 7, 7, 6, 6, 6};
    const Bytes none = File({GifTransparency(1), GifFrame(0, 0, 0, 1, 0x81), own, GifPixels({})});
    EXPECT_EQ(
        ReadColours(File({GifScreen(2, 1), none, GifFrame(0, 0, 2, 1), GifPixels({1, 2}), GifEnd})),
        (Colours{B, C}));
    EXPECT_EQ(ReadColours(File({GifScreen(2, 1), none, GifTransparency(2), GifFrame(0, 0, 2, 1),
                                GifPixels({1, 2}), GifEnd})),
              (Colours{B, Hole}));
}

TEST(GifDamage, NoFrameWithPixelsAtAll)
{
    constexpr auto Message = "il file GIF non contiene nessuna immagine";
    EXPECT_THAT(File({GifScreen(2, 2), GifEnd}).Refusal(), HasSubstr(Message));
    for (const std::uint32_t screen : {2U, 0U})
        for (const Bytes& none : FramesWithoutPixels)
            EXPECT_THAT(File({GifScreen(screen, screen), none, GifEnd}).Refusal(),
                        HasSubstr(Message));
}

TEST(GifDamage, PixelsOfUpToElevenBits)
{
    for (int bits = 2; bits <= 11; ++bits)
        EXPECT_EQ(ReadColours(File({GifScreen(5, 1), GifFrame(0, 0, 5, 1),
                                    GifPixels({3, 0, 1, 2, 3}, 255, bits), GifEnd})),
                  (Colours{D, A, B, C, D}))
            << bits;
    // What has no colour is black.
    EXPECT_EQ(ReadColours(File({GifScreen(3, 1), GifFrame(0, 0, 3, 1),
                                GifPixels({2047, 3, 256}, 255, 11), GifEnd})),
              (Colours{0, D, 0}));
    // Codes of more than twelve bits there are not.
    for (const int bits : {12, 13, 255})
        EXPECT_THAT(File({GifScreen(1, 1), GifFrame(0, 0, 1, 1), {bits, 1, 0, 0}}).Refusal(),
                    HasSubstr("il file GIF è danneggiato"));
}

TEST(GifDamage, PixelsOfOneBit)
{
    // Codes begin with two bits: 2 clears, 3 ends. Behind the first pixel they have three: 0, and 4
    // for its two pixels, 1 and 0.
    // 10 01 000 100: the bytes 0b00'000'01'10 and 0b1 (with the last code's upper bits).
    EXPECT_EQ(ReadColours(File({GifScreen(4, 1), GifFrame(0, 0, 4, 1), {1, 2, 0x06, 0x02, 0}})),
              (Colours{B, A, B, A}));
}

TEST(GifDamage, ACodeWithoutMeaningEndsWhatIsKnown)
{
    constexpr int Clear = 4;
    // Right behind a clearing only the four colours have a meaning; behind the first one 6 has one
    // too: that colour twice.
    const std::vector<std::pair<std::vector<int>, Colours>> files{
        {{Clear, 1, 7, 2, 3}, {B, Hole, Hole, Hole}},
        {{Clear, 6, 1, 2, 3}, {Hole, Hole, Hole, Hole}},
        {{Clear, 1, 6, Clear, 6}, {B, B, B, Hole}},
        {{7}, {Hole, Hole, Hole, Hole}},
    };
    for (const auto& [codes, expected] : files)
        EXPECT_EQ(ShownOf(File({GifScreen(4, 1), GifFrame(0, 0, 4, 1), GifCoded(codes, 2)})),
                  expected);
}

TEST(GifDamage, BytesThatBelongToNoBlock)
{
    const Bytes frame = File({GifFrame(0, 0, 2, 1), GifPixels({1, 2}), GifEnd});
    for (const Bytes& stray : {Bytes{0}, Bytes{0x55, 0xFF, 0, 1}, Bytes().Zeros(100'000)}) {
        EXPECT_EQ(ShownOf(File({GifScreen(2, 1), stray, frame})), (Colours{B, C}));
        EXPECT_EQ(ShownOf(File({GifScreen(2, 1), GifTransparency(1), stray, frame})),
                  (Colours{Hole, C}));
        EXPECT_EQ(ShownOf(File({GifScreen(2, 1), FramesWithoutPixels[0], stray, frame})),
                  (Colours{B, C}));
        EXPECT_THAT(File({GifScreen(2, 1), stray}).Refusal(), HasSubstr("danneggiato"));
        EXPECT_THAT(File({GifScreen(2, 1), stray, GifEnd}).Refusal(),
                    HasSubstr("non contiene nessuna immagine"));
    }
}

TEST(GifDamage, BeforeThePixelsACutFileIsRefused)
{
    const Bytes whole = File({GifScreen(2, 2), GifTransparency(1), FramesWithoutPixels[2],
                              GifFrame(0, 0, 2, 2), GifPixels({0, 1, 2, 3})});
    const std::size_t head =
        (whole.Size() - GifPixels({0, 1, 2, 3}).Size()) + 1;  // the pixels' size too
    for (std::size_t size = 6; size < head; ++size)
        EXPECT_THAT(whole.Without(whole.Size() - size).Refusal(),
                    HasSubstr("il file GIF è danneggiato"))
            << size;
    EXPECT_EQ(ShownOf(whole.Without(whole.Size() - head)), Colours(4, Hole));
}

TEST(GifDamage, OtherSignaturesAreNone)
{
    const Bytes rest = File({GifScreen(1, 1), GifFrame(0, 0, 1, 1), GifPixels({2}), GifEnd});
    for (const std::string_view signature : {"GIF87a", "GIF89a"}) {
        Bytes file = Bytes().Add(signature);
        file.Vector().insert(file.Vector().end(), rest.Vector().begin() + 6, rest.Vector().end());
        EXPECT_EQ(ReadColours(file), (Colours{C}));
    }
    for (const std::string_view signature : {"GIF88a", "GIF89b", "GIF87A", "gif89a", "GIF8"}) {
        Bytes file = Bytes().Add(signature);
        file.Vector().insert(file.Vector().end(),
                             rest.Vector().begin() + static_cast<std::ptrdiff_t>(signature.size()),
                             signature.size() == 6 ? rest.Vector().end()
                                                   : rest.Vector().begin() + 4);
        EXPECT_THAT(file.Refusal(), HasSubstr("non è un'immagine BMP, JPEG o GIF")) << signature;
    }
}

}  // namespace
}  // namespace pixano::test::gif
