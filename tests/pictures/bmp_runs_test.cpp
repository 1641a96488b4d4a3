// BMP files whose pixels come in runs, spelt out by hand.
#include "pictures/bmp_maker.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

constexpr Colour A = Rgb(10, 11, 12);
constexpr Colour B = Rgb(20, 21, 22);
constexpr Colour C = Rgb(30, 31, 32);
constexpr Colour Skipped = Background;

/// A picture of 4 by 2 pixels with the colours A, B and C.
Bytes Runs(unsigned bits, const Bytes& pixels, int width = 4, int height = 2)
{
    const Bytes palette{12, 11, 10, 0, 22, 21, 20, 0, 32, 31, 30, 0};
    const BmpHead head{.width = width,
                       .height = height,
                       .bits = bits,
                       .compression = bits == 8 ? 1U : 2U,
                       .colours = 3};
    return Bmp(head, palette, pixels);
}

TEST(BmpRuns, EightBitRunsAndSinglePixels)
{
    // Lower row: three B, one A. Upper row: A B C A one by one, in two words.
    EXPECT_EQ(ReadColours(Runs(8, {3, 1, 1, 0, 0, 0, 0, 4, 0, 1, 2, 0, 0, 0, 0, 1})),
              (Colours{A, B, C, A, B, B, B, A}));
}

TEST(BmpRuns, SinglePixelsFillWholeWords)
{
    // Three single pixels are followed by a byte of filling, here 99.
    EXPECT_EQ(ReadColours(Runs(8, {0, 3, 0, 1, 2, 99, 1, 1, 0, 0, 4, 2, 0, 1})),
              (Colours{C, C, C, C, A, B, C, B}));
}

TEST(BmpRuns, FourBitRunsAlternate)
{
    // Lower row: A B A B from one byte. Upper row: C A B one by one (two bytes, one word), C.
    EXPECT_EQ(ReadColours(Runs(4, {4, 0x01, 0, 0, 0, 3, 0x20, 0x10, 1, 0x20, 0, 1})),
              (Colours{C, A, B, C, A, B, A, B}));
}

TEST(BmpRuns, FourBitSinglePixelsFillWholeWords)
{
    // Five pixels are three bytes and one of filling.
    EXPECT_EQ(ReadColours(Runs(4, {0, 5, 0x01, 0x20, 0x10, 0x99, 1, 0x20, 0, 1}, 6, 1)),
              (Colours{A, B, C, A, B, C}));
}

TEST(BmpRuns, SkippedPixelsShowTheBackground)
{
    // A, then two to the right and one up: the fourth pixel of the upper row.
    EXPECT_EQ(ReadColours(Runs(8, {1, 0, 0, 2, 2, 1, 1, 1, 0, 1})),
              (Colours{Skipped, Skipped, Skipped, B, A, Skipped, Skipped, Skipped}));
}

TEST(BmpRuns, AnEarlyEndLeavesTheBackground)
{
    EXPECT_EQ(ReadColours(Runs(8, {2, 1, 0, 1})),
              (Colours{Skipped, Skipped, Skipped, Skipped, B, B, Skipped, Skipped}));
}

TEST(BmpRuns, ARunIsCutWhereItsRowEnds)
{
    EXPECT_EQ(ReadColours(Runs(8, {255, 1, 0, 0, 1, 2, 0, 1})),
              (Colours{C, Skipped, Skipped, Skipped, B, B, B, B}));
}

TEST(BmpRuns, AJumpOutOfThePictureEndsIt)
{
    EXPECT_EQ(ReadColours(Runs(8, {4, 1, 0, 2, 255, 255, 9, 2, 0, 1})),
              (Colours{Skipped, Skipped, Skipped, Skipped, B, B, B, B}));
    EXPECT_EQ(ReadColours(Runs(8, {0, 2, 255, 1, 2, 2, 0, 1})), Colours(8, Skipped));
}

TEST(BmpRuns, NoMarkIsNeededBehindTheLastPixel)
{
    EXPECT_EQ(ReadColours(Runs(8, {4, 0, 0, 0, 4, 1})), (Colours{B, B, B, B, A, A, A, A}));
    EXPECT_EQ(ReadColours(Runs(8, {4, 0, 0, 0, 4, 1, 0, 0})), (Colours{B, B, B, B, A, A, A, A}));
}

TEST(BmpRuns, TheFileMayEndAnywhere)
{
    const Bytes whole = Runs(8, {2, 1, 0, 2, 1, 0, 1, 1, 0, 0, 0, 3, 0, 1, 2, 99, 1, 1, 0, 1});
    EXPECT_FALSE(whole.Read().truncated);
    for (std::size_t missing = 3; missing < 20; ++missing) {
        const PictureRead read = whole.Without(missing).Read();
        EXPECT_TRUE(read.truncated) << missing;
        // Only the first run, two B at the lower left, is there in all of them but the last.
        EXPECT_EQ(read.picture.Point(0, 1), missing > 18 ? Skipped : B) << missing;
    }
    // What single pixels there are is drawn: of A, B and C the first.
    EXPECT_EQ(ColoursOf(whole.Without(7).Read().picture),
              (Colours{A, Skipped, Skipped, Skipped, B, B, Skipped, B}));
}

TEST(BmpRuns, RunsFromTheTop)
{
    EXPECT_EQ(ReadColours(Runs(8, {4, 0, 0, 0, 4, 1, 0, 1}, 4, -2)),
              (Colours{A, A, A, A, B, B, B, B}));
}

TEST(BmpRuns, TrueColourRunsOfOs2)
{
    const BmpHead head{.size = 64, .width = 4, .bits = 24, .compression = 4};
    // One by one, four pixels are six words.
    const Bytes even{0, 4, 12, 11, 10, 22, 21, 20, 32, 31, 30, 12, 11, 10, 0, 1};
    EXPECT_EQ(ReadColours(Bmp(head, Bytes().Zeros(24), even)), (Colours{A, B, C, A}));
    // Three are nine bytes and one of filling.
    const Bytes odd{0, 3, 12, 11, 10, 22, 21, 20, 32, 31, 30, 99, 1, 12, 11, 10, 0, 1};
    EXPECT_EQ(ReadColours(Bmp(head, Bytes().Zeros(24), odd)), (Colours{A, B, C, A}));
    const Bytes run{3, 22, 21, 20, 1, 12, 11, 10, 0, 1};
    EXPECT_EQ(ReadColours(Bmp(head, Bytes().Zeros(24), run)), (Colours{B, B, B, A}));
}

}  // namespace
}  // namespace pixano::test
