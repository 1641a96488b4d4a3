// GIF files whose table of codes is full, and what stands before a frame in more than one piece.
#include "pictures/gif_maker.h"

#include <gtest/gtest.h>

namespace pixano::test::gif {
namespace {

/// Codes as long as a reader expects them: a bit more whenever its table has outgrown the last one,
/// twelve at most. In blocks of 255 bytes. Two bits a pixel, and one clearing, the first code.
Bytes GrowingCodes(const std::vector<int>& codes)
{
    std::vector<int> packed;
    std::size_t used = 0;
    int width = 3;
    int next = 6;
    for (std::size_t i = 0; i < codes.size(); ++i) {
        for (int bit = 0; bit < width; ++bit, ++used) {
            if (used % 8 == 0) packed.push_back(0);
            packed.back() |= (codes[i] >> bit & 1) << used % 8;
        }
        // Neither the clearing nor the code behind it is learned from.
        if (i >= 2 && next < 4096) ++next;
        if (next == 1 << width && width < 12) ++width;
    }
    Bytes data{2};
    for (std::size_t i = 0; i < packed.size(); i += 255) {
        const std::size_t count = std::min<std::size_t>(255, packed.size() - i);
        data.Add({static_cast<int>(count)});
        for (std::size_t k = 0; k < count; ++k)
            data.Add({packed[i + k]});
    }
    return data.Add({0});
}

// 4091 colours one by one make the 4090 codes from 6 to 4095, each for two neighbours. One more is
// learned nothing from; then the last of these codes are used.
TEST(GifCodes, AFullTableKeepsTwelveBitsAndItsLastCode)
{
    constexpr int Single = 4092;
    constexpr int Pairs = 54;
    constexpr Colour Letters4[] = {A, B, C, D};
    std::vector<int> codes{4};
    Colours expected;
    const auto colour = [](int i) { return (i * i + i / 7) % 4; };
    for (int i = 0; i < Single; ++i) {
        codes.push_back(colour(i));
        expected.push_back(Letters4[colour(i)]);
    }
    for (int code = 4095; code > 4095 - Pairs; --code) {
        codes.push_back(code);
        expected.push_back(Letters4[colour(code - 6)]);
        expected.push_back(Letters4[colour(code - 5)]);
    }
    codes.push_back(5);
    EXPECT_EQ(ReadColours(
                  File({GifScreen(100, 42), GifFrame(0, 0, 100, 42), GrowingCodes(codes), GifEnd})),
              expected);
}

TEST(GifCodes, ACodeLearnedJustBeforeTheTableGrowsHasOneBitLess)
{
    // 6 and 7 are learned with three bits each; the code behind has four.
    EXPECT_EQ(ReadColours(File({GifScreen(7, 1), GifFrame(0, 0, 7, 1),
                                GrowingCodes({4, 0, 1, 2, 7, 8, 5}), GifEnd})),
              (Colours{A, B, C, B, C, C, B}));
}

TEST(GifCodes, TheLastWordOnTransparencyCounts)
{
    const Bytes none{0x21, 0xF9, 4, 0, 0, 0, 2, 0};
    const auto read = [](const Bytes& controls) {
        return ReadColours(File(
            {GifScreen(4, 1), controls, GifFrame(0, 0, 4, 1), GifPixels({0, 1, 2, 3}), GifEnd}));
    };
    EXPECT_EQ(read(File({GifTransparency(2), none})), (Colours{A, B, C, D}));
    EXPECT_EQ(read(File({none, GifTransparency(2)})), (Colours{A, B, Hole, D}));
    EXPECT_EQ(read(File({GifTransparency(1), GifTransparency(3)})), (Colours{A, B, C, Hole}));
}

// A comment or a text of four bytes is no word on transparency.
TEST(GifCodes, OtherExtensionsOfFourBytesSayNothing)
{
    for (const int kind : {0xFE, 0x01, 0xFF})
        EXPECT_EQ(ReadColours(File({GifScreen(2, 1),
                                    {0x21, kind, 4, 1, 0, 0, 1, 0},
                                    GifFrame(0, 0, 2, 1),
                                    GifPixels({0, 1}),
                                    GifEnd})),
                  (Colours{A, B}))
            << kind;
}

TEST(GifCodes, AHoleIsNoColourOfTheFramesOwn)
{
    const Bytes own{9, 9, 9, 8, 8, 8, 7, 7, 7, 6, 6, 6};
    EXPECT_EQ(ReadColours(File({GifScreen(3, 1), GifTransparency(1), GifFrame(0, 0, 3, 1, 0x81),
                                own, GifPixels({0, 1, 2}), GifEnd})),
              (Colours{Rgb(9, 9, 9), Hole, Rgb(7, 7, 7)}));
}

// Rows come in the order 0, 4, 2, 1, 3, 5: those below the screen's two are passed over, no more.
TEST(GifCodes, AnInterlacedFrameLongerThanItsScreen)
{
    EXPECT_EQ(ReadColours(File({GifScreen(1, 2), GifFrame(0, 0, 1, 6, 0x40),
                                GifPixels({0, 1, 2, 3, 1, 2}), GifEnd})),
              (Colours{A, D}));
}

}  // namespace
}  // namespace pixano::test::gif
