// Heads of BMP files at the limits of what they may say: where masks, palette and pixels begin and
// end, and files that end within a run.
#include "pictures/bmp_maker.h"

#include <gmock/gmock-matchers.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;

// A head that leaves open where the pixels begin has them behind the masks: three of them, or four.
TEST(BmpLimits, PixelsBehindTheMasksWhereTheHeadLeavesItOpen)
{
    const Bytes masks = Bytes().U32(0xFF).U32(0xFF00).U32(0xFF0000);
    const Bytes pixel{1, 2, 3, 0};
    EXPECT_EQ(ReadColours(Bmp({.bits = 32, .compression = 3, .offset = 0}, masks, pixel)),
              (Colours{Rgb(1, 2, 3)}));
    EXPECT_EQ(ReadColours(Bmp({.bits = 32, .compression = 6, .offset = 0},
                              Bytes(masks).U32(0xFF000000), pixel)),
              (Colours{Rgb(1, 2, 3)}));
    EXPECT_EQ(
        ReadColours(Bmp({.size = 52, .bits = 32, .compression = 3, .offset = 0}, masks, pixel)),
        (Colours{Rgb(1, 2, 3)}));
}

TEST(BmpLimits, Os2KnowsNoMasks)
{
    for (const unsigned bits : {16U, 32U})
        for (const std::uint32_t compression : {3U, 6U})
            EXPECT_THAT(Bmp({.size = 64, .bits = bits, .compression = compression},
                            Bytes().Zeros(40), Bytes().Zeros(64))
                            .Refusal(),
                        HasSubstr("non è previsto (" + std::to_string(bits) +
                                  " bit per pixel, compressione " + std::to_string(compression)));
}

// Four colours lie there, of which the head counts two.
TEST(BmpLimits, ColoursThatTheHeadDoesNotCountAreBlack)
{
    const Bytes palette{3, 2, 1, 0, 6, 5, 4, 0, 9, 8, 7, 0, 12, 11, 10, 0};
    EXPECT_EQ(ReadColours(Bmp({.width = 4, .bits = 8, .colours = 2}, palette, {0, 1, 2, 3})),
              (Colours{Rgb(1, 2, 3), Rgb(4, 5, 6), 0, 0}));
}

struct Masks {
    std::uint32_t red;
    std::uint32_t green;
    std::uint32_t blue;
};

TEST(BmpLimits, NoMaskMayHaveAGap)
{
    for (const auto& [red, green, blue] :
         {Masks{0xF0F, 0xFF000, 0xFF00000}, {0xFF, 0xF0F00, 0xFF00000}, {0xFF, 0xFF00, 0xF0F0000}})
        EXPECT_THAT(
            Bmp({.bits = 32, .compression = 3}, Bytes().U32(red).U32(green).U32(blue), {1, 2, 3, 4})
                .Refusal(),
            HasSubstr("le maschere dei colori del file BMP non sono valide"));
}

// Two channels of eight bits and one of seven, which is scaled: 100 of 127 is 200.79 of 255.
TEST(BmpLimits, AChannelOfFewerBitsIsScaledBesideTwoOfEight)
{
    const auto read = [](const Masks& masks, std::uint32_t pixel) {
        return ReadColours(Bmp({.bits = 32, .compression = 3},
                               Bytes().U32(masks.red).U32(masks.green).U32(masks.blue),
                               Bytes().U32(pixel)))[0];
    };
    EXPECT_EQ(read({0x7F, 0xFF00, 0xFF0000}, 0x030264), Rgb(201, 2, 3));
    EXPECT_EQ(read({0xFF, 0x7F00, 0xFF0000}, 0x036401), Rgb(1, 201, 3));
    EXPECT_EQ(read({0xFF, 0xFF00, 0x7F0000}, 0x640201), Rgb(1, 2, 201));
}

TEST(BmpLimits, ARunWhoseColourIsMissingDrawsNothing)
{
    const BmpHead trueColour{.size = 64, .width = 4, .bits = 24, .compression = 4};
    const BmpHead indexed{.width = 4, .bits = 8, .compression = 1, .colours = 1};
    const Bytes palette{9, 9, 9, 0};
    // A run's length alone, and one, two or no bytes of its colour.
    for (const Bytes& run : {Bytes{3}, Bytes{3, 22}, Bytes{3, 22, 21}}) {
        const PictureRead read = Bmp(trueColour, Bytes().Zeros(24), run).Read();
        EXPECT_TRUE(read.truncated);
        EXPECT_EQ(ColoursOf(read.picture), Colours(4, Background)) << run.Size();
    }
    const PictureRead read = Bmp(indexed, palette, {3}).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(ColoursOf(read.picture), Colours(4, Background));
}

}  // namespace
}  // namespace pixano::test
