// GIF files spelt out by hand: frames, transparency, interlace, damage.
#include "pictures/gif_maker.h"

#include <gmock/gmock-matchers.h>

namespace pixano::test::gif {
namespace {

using testing::HasSubstr;

TEST(Gif, AFrameThatFillsTheScreen)
{
    EXPECT_EQ(ReadColours(File(
                  {GifScreen(3, 2), GifFrame(0, 0, 3, 2), GifPixels({0, 1, 2, 3, 2, 1}), GifEnd})),
              (Colours{A, B, C, D, C, B}));
}

TEST(Gif, OnlyTheFirstFrameCounts)
{
    EXPECT_EQ(ReadColours(File({GifScreen(2, 1), GifFrame(0, 0, 2, 1), GifPixels({0, 1}),
                                GifFrame(0, 0, 2, 1), GifPixels({2, 3}), GifEnd})),
              (Colours{A, B}));
    // What follows need not even be GIF.
    EXPECT_EQ(
        ReadColours(File({GifScreen(2, 1), GifFrame(0, 0, 2, 1), GifPixels({0, 1}), {99, 98}})),
        (Colours{A, B}));
}

TEST(Gif, TheBackgroundShowsThroughTransparentPixels)
{
    EXPECT_EQ(ReadColours(File({GifScreen(4, 1), GifTransparency(2), GifFrame(0, 0, 4, 1),
                                GifPixels({0, 1, 2, 3}), GifEnd})),
              (Colours{A, B, Hole, D}));
}

TEST(Gif, AnIndexWithoutMeaningIsNotTransparent)
{
    // The same block with its first bit off says that nothing is transparent.
    const Bytes control{0x21, 0xF9, 4, 0, 0, 0, 2, 0};
    EXPECT_EQ(ReadColours(File({GifScreen(4, 1), control, GifFrame(0, 0, 4, 1),
                                GifPixels({0, 1, 2, 3}), GifEnd})),
              (Colours{A, B, C, D}));
}

TEST(Gif, TheBackgroundShowsAroundASmallFrame)
{
    EXPECT_EQ(ReadColours(File({GifScreen(3, 3), GifFrame(1, 1, 1, 1), GifPixels({3}), GifEnd})),
              (Colours{Hole, Hole, Hole, Hole, D, Hole, Hole, Hole, Hole}));
}

TEST(Gif, AFrameIsCutAtTheScreensEdge)
{
    EXPECT_EQ(
        ReadColours(File({GifScreen(2, 2), GifFrame(1, 1, 2, 2), GifPixels({0, 1, 2, 3}), GifEnd})),
        (Colours{Hole, Hole, Hole, A}));
    EXPECT_EQ(ReadColours(File({GifScreen(2, 1), GifFrame(2, 0, 2, 1), GifPixels({0, 1}), GifEnd})),
              (Colours{Hole, Hole}));
    EXPECT_EQ(
        ReadColours(File({GifScreen(1, 1), GifFrame(65535, 65535, 1, 1), GifPixels({0}), GifEnd})),
        (Colours{Hole}));
}

TEST(Gif, InterlacedRows)
{
    // Ten rows of one pixel come in the order 0 8, 4, 2 6, 1 3 5 7 9.
    constexpr int Interlaced = 0x40;
    EXPECT_EQ(ReadColours(File({GifScreen(1, 10), GifFrame(0, 0, 1, 10, Interlaced),
                                GifPixels({0, 1, 2, 3, 0, 1, 2, 3, 0, 2}), GifEnd})),
              (Colours{A, B, D, C, C, D, A, A, B, C}));
}

TEST(Gif, AFramesOwnColours)
{
    const Bytes own{9, 9, 9, 8, 8, 8, 7, 7, 7, 6, 6, 6};
    EXPECT_EQ(ReadColours(File(
                  {GifScreen(2, 1), GifFrame(0, 0, 2, 1, 0x81), own, GifPixels({3, 0}), GifEnd})),
              (Colours{Rgb(6, 6, 6), Rgb(9, 9, 9)}));
}

TEST(Gif, NoColoursAtAll)
{
    EXPECT_EQ(ReadColours(
                  File({GifScreen(2, 1, false), GifFrame(0, 0, 2, 1), GifPixels({3, 0}), GifEnd})),
              (Colours{0, 0}));
}

TEST(Gif, OtherExtensionsAreSkipped)
{
    const Bytes comment = Bytes{0x21, 0xFE, 5}.Add("ciao!").Add({3}).Add("bis").Add({0});
    EXPECT_EQ(
        ReadColours(File({GifScreen(1, 1), comment, GifFrame(0, 0, 1, 1), GifPixels({1}), GifEnd})),
        (Colours{B}));
}

TEST(Gif, AScreenWithoutSizeTakesItsFrames)
{
    EXPECT_EQ(ReadColours(File({GifScreen(0, 0), GifFrame(5, 5, 2, 1), GifPixels({1, 2}), GifEnd})),
              (Colours{B, C}));
}

// One side of no pixels is as good as two.
TEST(Gif, AScreenWithOneSideOfNoPixelsTakesItsFrames)
{
    for (const auto& [width, height] : {std::pair(0U, 7U), std::pair(7U, 0U)}) {
        const Surface picture =
            File({GifScreen(width, height), GifFrame(5, 3, 2, 1), GifPixels({1, 2}), GifEnd})
                .Read()
                .picture;
        EXPECT_EQ(picture.Width(), 2);
        EXPECT_EQ(picture.Height(), 1);
        EXPECT_EQ(ColoursOf(picture), (Colours{B, C}));
    }
}

TEST(Gif, ACutFileShowsEveryPixelThatItHas)
{
    // Nine pixels are five clearings, nine indices and the end, three bits each, in six bytes. The
    // first five bytes end in the codes: A; clear C; clear A; B clear; clear C D.
    const std::vector<int> pixels{0, 1, 2, 3, 0, 1, 2, 3, 1};
    const Colours whole{A, B, C, D, A, B, C, D, B};
    const std::vector<std::ptrdiff_t> there{0, 1, 3, 5, 6, 8, 9};
    for (const std::size_t blockLength : {255U, 1U, 4U}) {
        const Bytes data = GifPixels(pixels, blockLength);
        const Bytes file = File({GifScreen(3, 3), GifFrame(0, 0, 3, 3), data});
        for (std::size_t bytes = 0; bytes <= 6; ++bytes) {
            const std::size_t lengths = (bytes + blockLength - 1) / blockLength;
            const PictureRead read = file.Without(data.Size() - 1 - lengths - bytes).Read();
            Colours expected = whole;
            std::fill(expected.begin() + there[bytes], expected.end(), Hole);
            EXPECT_EQ(ColoursOf(read.picture), expected)
                << bytes << " in blocks of " << blockLength;
            EXPECT_EQ(read.truncated, bytes < 6) << bytes;
        }
    }
}

TEST(Gif, ACutInterlacedFile)
{
    const Bytes whole =
        File({GifScreen(1, 4), GifFrame(0, 0, 1, 4, 0x40), GifPixels({0, 1, 2, 3})});
    // Rows come in the order 0, 2, 1, 3. Of the three bytes two are left, which hold the codes
    // clear, A, B, clear, C.
    const PictureRead read = whole.Without(2).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(ColoursOf(read.picture), (Colours{A, C, B, Hole}));
}

TEST(Gif, TheMarkOfTheEndBeforeTheLastPixel)
{
    const PictureRead read =
        File({GifScreen(2, 1), GifFrame(0, 0, 2, 1), GifPixels({1}), GifEnd}).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(ColoursOf(read.picture), (Colours{B, Hole}));
}

TEST(Gif, SizesBeyondTheBounds)
{
    const Bytes frame = File({GifFrame(0, 0, 1, 1), GifPixels({0}), GifEnd});
    EXPECT_THAT(File({GifScreen(32768, 1), frame}).Refusal(),
                HasSubstr("troppo grande (32768 x 1)"));
    EXPECT_THAT(File({GifScreen(65535, 65535), frame}).Refusal(), HasSubstr("troppo grande"));
    EXPECT_THAT(File({GifScreen(30000, 30000), frame}).Refusal(), HasSubstr("268 milioni"));
    EXPECT_THAT(
        File({GifScreen(1, 1), GifFrame(0, 0, 65535, 65535), GifPixels({0}), GifEnd}).Refusal(),
        HasSubstr("troppo grande"));
}

}  // namespace
}  // namespace pixano::test::gif
