// JPEG files of every kind against libjpeg's own decoding, and cut ones.
#include "pictures/jpeg_maker.h"

#include <gmock/gmock-matchers.h>

namespace pixano::test {
namespace {

void ExpectAsLibjpeg(const Bytes& file)
{
    const PictureRead read = file.Read();
    EXPECT_FALSE(read.truncated);
    EXPECT_EQ(ColoursOf(read.picture), DecodedByLibjpeg(file));
}

void HalveColours(jpeg_compress_struct& jpeg)
{
    jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = 2;
}

TEST(Jpeg, OneColour)
{
    // Grey is kept exactly: light 128, no tint.
    const PictureRead read = MakeJpeg(Surface(20, 10, Rgb(128, 128, 128))).Read();
    EXPECT_EQ(read.picture, Surface(20, 10, Rgb(128, 128, 128)));
    EXPECT_FALSE(read.truncated);
}

TEST(Jpeg, PixelsAreLibjpegsOwn)
{
    ExpectAsLibjpeg(MakeJpeg(Shaded(83, 61)));
    ExpectAsLibjpeg(MakeJpeg(Shaded(1, 1)));
    ExpectAsLibjpeg(MakeJpeg(Shaded(83, 61), HalveColours));
}

TEST(Jpeg, ProgressiveAndRestartMarkers)
{
    ExpectAsLibjpeg(MakeJpeg(Shaded(83, 61), Progressive));
    ExpectAsLibjpeg(MakeJpeg(Shaded(83, 61), [](auto& jpeg) { jpeg.restart_interval = 3; }));
    ExpectAsLibjpeg(MakeJpeg(Shaded(83, 61), [](auto& jpeg) { jpeg.arith_code = TRUE; }));
}

TEST(Jpeg, ColoursStoredAsRgb)
{
    ExpectAsLibjpeg(
        MakeJpeg(Shaded(40, 30), [](auto& jpeg) { jpeg_set_colorspace(&jpeg, JCS_RGB); }));
}

TEST(Jpeg, Grey)
{
    JpegPlan plan{.width = 16, .height = 8, .space = JCS_GRAYSCALE};
    for (int i = 0; i < 16 * 8; ++i)
        plan.samples.push_back(static_cast<std::uint8_t>(i % 16 < 8 ? 40 : 200));
    const Bytes file = MakeJpeg(plan);
    const Surface picture = file.Read().picture;
    EXPECT_EQ(picture.Point(0, 0), Rgb(40, 40, 40));
    EXPECT_EQ(picture.Point(15, 7), Rgb(200, 200, 200));
    ExpectAsLibjpeg(file);
}

/// One block of inks that libjpeg keeps exactly.
Bytes Inks(const std::vector<std::uint8_t>& inks, bool adobe)
{
    JpegPlan plan{.width = 8, .height = 8, .space = JCS_CMYK};
    for (int i = 0; i < 64; ++i)
        plan.samples.insert(plan.samples.end(), inks.begin(), inks.end());
    plan.set = [adobe](auto& jpeg) { jpeg.write_Adobe_marker = adobe ? TRUE : FALSE; };
    return MakeJpeg(plan);
}

TEST(Jpeg, InksAreInvertedWithAdobesMarkOrWithoutIt)
{
    // 255 is no ink: red = 200 * 128 / 255 = 100.4, green = 255 * 128 / 255, blue = 0.
    for (const bool adobe : {true, false})
        EXPECT_EQ(Inks({200, 255, 0, 128}, adobe).Read().picture, Surface(8, 8, Rgb(100, 128, 0)));
}

TEST(Jpeg, InksAreRoundedToTheNearest)
{
    // 200 * 130 / 255 is 101.96, 255 * 130 / 255 is 130, 99 * 130 / 255 is 50.47.
    EXPECT_EQ(Inks({200, 255, 99, 130}, true).Read().picture, Surface(8, 8, Rgb(102, 130, 50)));
    // 1 * 128 / 255 is 0.502, 1 * 127 / 255 is 0.498.
    EXPECT_EQ(Inks({1, 0, 255, 128}, true).Read().picture, Surface(8, 8, Rgb(1, 0, 128)));
    EXPECT_EQ(Inks({1, 0, 255, 127}, true).Read().picture, Surface(8, 8, Rgb(0, 0, 127)));
}

TEST(Jpeg, InksStoredAsLightAndTint)
{
    // Equal inks have no tint and are kept exactly; libjpeg stores 255 - 90 as light.
    JpegPlan plan{.width = 8, .height = 8, .space = JCS_CMYK};
    for (int i = 0; i < 64; ++i)
        plan.samples.insert(plan.samples.end(), {90, 90, 90, 255});
    plan.set = [](auto& jpeg) { jpeg_set_colorspace(&jpeg, JCS_YCCK); };
    EXPECT_EQ(MakeJpeg(plan).Read().picture, Surface(8, 8, Rgb(90, 90, 90)));
}

TEST(Jpeg, ACutFileShowsTheBackgroundBelowTheCut)
{
    const Surface picture = Shaded(64, 160);
    for (const auto& set : {std::function<void(jpeg_compress_struct&)>{},
                            std::function<void(jpeg_compress_struct&)>(HalveColours)}) {
        const Bytes whole = MakeJpeg(picture, set);
        const Colours complete = DecodedByLibjpeg(whole);
        const PictureRead read = whole.Without(whole.Size() / 2).Read();
        EXPECT_TRUE(read.truncated);
        const Colours cut = ColoursOf(read.picture);
        ASSERT_EQ(cut.size(), complete.size());
        // The first rows are whole; the last show the background.
        EXPECT_TRUE(std::equal(cut.begin(), cut.begin() + 64 * 32, complete.begin()));
        EXPECT_EQ(Colours(cut.end() - 64 * 32, cut.end()), Colours(64 * 32, Background));
    }
}

TEST(Jpeg, ACutProgressiveFileIsCoarse)
{
    const Bytes whole = MakeJpeg(Shaded(64, 64), Progressive);
    const PictureRead read = whole.Without(whole.Size() / 3).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(read.picture.Width(), 64);
    EXPECT_EQ(read.picture, whole.Without(whole.Size() / 3).Read().picture);
}

TEST(Jpeg, OnlyTheEndMarkIsMissing)
{
    const Bytes whole = MakeJpeg(Shaded(64, 64));
    const PictureRead read = whole.Without(2).Read();
    EXPECT_FALSE(read.truncated);
    EXPECT_EQ(ColoursOf(read.picture), DecodedByLibjpeg(whole));
}

TEST(Jpeg, CutAnywhereItIsReadOrRefused)
{
    const Bytes whole = MakeJpeg(Shaded(24, 24));
    int refused = 0;
    int cut = 0;
    for (std::size_t missing = 3; missing < whole.Size() - 3; ++missing) {
        const Bytes file = whole.Without(missing);
        const std::string refusal = file.Refusal();
        if (refusal.empty())
            cut += file.Read().truncated ? 1 : 0;
        else
            refused += refusal.ends_with("il file JPEG è danneggiato") ? 1 : 0;
    }
    EXPECT_GT(refused, 600);  // the tables come before the pixels
    EXPECT_GT(cut, 100);
}

}  // namespace
}  // namespace pixano::test
