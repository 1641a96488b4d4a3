// The colour profile on its way from a picture's file to a result.
#include "pictures/bmp_maker.h"
#include "pictures/byte_files.h"
#include "pictures/gif_maker.h"
#include "pictures/jpeg_maker.h"

#include <gtest/gtest.h>

#include <png.h>

namespace pixano::test {
namespace {

using Profile = std::vector<std::byte>;

/// A profile of `size` bytes for the colours `space`, of a screen and without tags: a head of 128
/// bytes, the number of its tags, and noughts.
Bytes MadeProfile(std::size_t size = 132, std::string_view space = "RGB ", int claimed = 0)
{
    const auto length = claimed > 0 ? claimed : static_cast<int>(size);
    return Bytes{length >> 24, length >> 16 & 255, length >> 8 & 255, length & 255}
        .Zeros(4)
        .Add({4, 0x30, 0, 0})
        .Add("mntr")
        .Add(space)
        .Add("XYZ ")
        .Zeros(12)
        .Add("acsp")
        .Zeros(28)
        .Add({0, 0, 0xF6, 0xD6, 0, 1, 0, 0, 0, 0, 0xD3, 0x2D})
        .Zeros(size - 80);
}

Bytes Part(const Bytes& content, int number, int count)
{
    return Bytes().Add("ICC_PROFILE").Add({0, number, count}).Add(content);
}

/// A JPEG with those APP2 segments.
Bytes JpegWith(const std::vector<Bytes>& segments)
{
    return MakeJpeg(Surface(2, 1), {}, [&](jpeg_compress_struct& jpeg) {
        for (const Bytes& segment : segments)
            jpeg_write_marker(&jpeg, JPEG_APP0 + 2,
                              reinterpret_cast<const JOCTET*>(segment.Vector().data()),
                              static_cast<unsigned>(segment.Size()));
    });
}

/// A BMP of one pixel whose head of 124 bytes says that `profile` lies behind the pixels.
Bytes BmpWith(const Bytes& profile, std::string_view kind = "DEBM")
{
    BmpHead head;
    head.size = 124;
    Bytes rest;
    rest.Zeros(16).Add(kind).Zeros(48).Zeros(4).U32(124 + 4).U32(
        static_cast<std::uint32_t>(profile.Size()));
    return Bmp(head, rest.Zeros(4), Bytes().Zeros(4)).Add(profile);
}

Bytes GifWith(std::string_view name, const Bytes& profile)
{
    Bytes file =
        GifScreen(1, 1).Add({0x21, 0xF9, 4, 0, 0, 0, 0, 0}).Add({0x21, 0xFF, 11}).Add(name);
    return file.Add({static_cast<int>(profile.Size())})
        .Add(profile)
        .Add({0})
        .Add(GifFrame(0, 0, 1, 1))
        .Add(GifPixels({2}))
        .Add(GifEnd);
}

TEST(IccProfile, IsFoundInEveryFormat)
{
    const Bytes profile = MadeProfile();
    const Profile& expected = profile.Vector();
    EXPECT_EQ(JpegWith({Part(profile, 1, 1)}).Read().profile, expected);
    EXPECT_EQ(BmpWith(profile).Read().profile, expected);
    EXPECT_EQ(GifWith("ICCRGBG1012", profile).Read().profile, expected);
}

// Behind marks that are no segments, and before extensions that only look like it.
TEST(IccProfile, IsFoundBehindWhatElseTheHeadMayHold)
{
    const Bytes profile = MadeProfile();
    const Bytes jpeg = JpegWith({Part(profile, 1, 1)});
    for (const int alone : {0x01, 0xD0, 0xD3, 0xD7}) {
        Bytes file{0xFF, 0xD8, 0xFF, alone};
        file.Vector().insert(file.Vector().end(), jpeg.Vector().begin() + 2, jpeg.Vector().end());
        EXPECT_EQ(file.Read().profile, profile.Vector()) << alone;
    }
    const Bytes gif = GifWith("ICCRGBG1012", profile);
    const std::size_t screen = GifScreen(1, 1).Size();
    Bytes comment;
    comment.Vector().assign(gif.Vector().begin(),
                            gif.Vector().begin() + static_cast<std::ptrdiff_t>(screen));
    comment.Add({0x21, 0xFE, 11}).Add("ICCRGBG1012").Add({3}).Add("bis").Add({0});
    comment.Vector().insert(comment.Vector().end(),
                            gif.Vector().begin() + static_cast<std::ptrdiff_t>(screen),
                            gif.Vector().end());
    EXPECT_EQ(comment.Read().profile, profile.Vector());
}

TEST(IccProfile, IsPutTogetherFromItsParts)
{
    const Bytes profile = MadeProfile(300);
    const Bytes first = profile.Without(100);
    Bytes second;
    second.Vector().assign(profile.Vector().begin() + 200, profile.Vector().end());
    const Bytes stranger = Bytes().Add("ICC").Zeros(40);
    EXPECT_EQ(JpegWith({Part(second, 2, 2), stranger, Part(first, 1, 2)}).Read().profile,
              profile.Vector());
    EXPECT_EQ(JpegWith({Part(first, 1, 2)}).Read().profile, Profile());
}

TEST(IccProfile, IsLeftWhereItDoesNotFitThePixels)
{
    const Bytes profile = MadeProfile();
    for (const Bytes& file :
         {MakeJpeg(Surface(2, 1)), JpegWith({Part(MadeProfile(132, "CMYK"), 1, 1)}),
          JpegWith({Part(MadeProfile(132, "GRAY"), 1, 1)}),
          JpegWith({Part(MadeProfile(132, "RGB ", 133), 1, 1)}), JpegWith({Bytes().Add("ICC")}),
          JpegWith({Part(profile.Without(1), 1, 1)}), BmpWith(profile, "KNIL"),
          BmpWith(profile).Without(1), GifWith("NETSCAPE2.0", profile)}) {
        const PictureRead read = file.Read();
        EXPECT_EQ(read.profile, Profile());
        EXPECT_FALSE(read.truncated);
    }
    std::vector<Bytes> parts(40, Bytes().Add("ICC_PROFILE").Add({0, 1, 40}).Zeros(60000));
    EXPECT_EQ(JpegWith(parts).Read().profile, Profile());
}

/// The profile that libpng finds in the file.
Profile ProfileOfPng(const Bytes& file)
{
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    Bytes rest = file;
    png_set_read_fn(png, &rest, [](png_structp reader, png_bytep to, std::size_t count) {
        auto& bytes = static_cast<Bytes*>(png_get_io_ptr(reader))->Vector();
        std::copy_n(reinterpret_cast<png_const_bytep>(bytes.data()), count, to);
        bytes.erase(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count));
    });
    png_read_info(png, info);
    png_charp name = nullptr;
    int compression = 0;
    png_bytep found = nullptr;
    png_uint_32 length = 0;
    Profile profile;
    if (png_get_iCCP(png, info, &name, &compression, &found, &length) != 0) {
        const auto bytes = std::as_bytes(std::span(found, length));
        profile.assign(bytes.begin(), bytes.end());
    }
    png_destroy_read_struct(&png, &info, nullptr);
    return profile;
}

TEST(IccProfile, GoesIntoJpegAndPngResults)
{
    const TemporaryFolder folder;
    // Longer than one segment of a JPEG holds.
    const Profile profile = MadeProfile(70000).Vector();
    const Surface picture = Shaded(5, 4);
    SaveWithExtras(picture, folder / "a.jpg", {.profile = profile});
    EXPECT_EQ(ReadPicture(folder / "a.jpg").profile, profile);
    SaveWithExtras(picture, folder / "a.png", {.profile = profile});
    EXPECT_EQ(ProfileOfPng(ReadFile(folder / "a.png")), profile);
    SaveWithExtras(picture, folder / "b.png", {.profile = MadeProfile(133).Vector()});
    EXPECT_EQ(ProfileOfPng(ReadFile(folder / "b.png")), Profile()) << "its length is odd";
    Profile strange = profile;
    std::fill_n(strange.begin() + 64, 4, std::byte{0xFF});
    SaveWithExtras(picture, folder / "c.png", {.profile = strange});
    EXPECT_EQ(ProfileOfPng(ReadFile(folder / "c.png")), Profile()) << "there is no such intent";
    SaveWithExtras(picture, folder / "a.bmp", {.profile = profile});
    SavePicture(picture, folder / "b.bmp");
    EXPECT_EQ(ReadFile(folder / "a.bmp"), ReadFile(folder / "b.bmp"));
}

TEST(Extras, TellTheQualityOfAJpeg)
{
    const TemporaryFolder folder;
    const Surface picture = Shaded(80, 60);
    SavePicture(picture, folder / "usual.jpg");
    for (const auto& [name, quality] :
         {std::pair("1.jpg", 1), std::pair("95.jpg", 95), std::pair("100.jpg", 100)})
        SaveWithExtras(picture, folder / name, {.quality = quality});
    EXPECT_EQ(ReadFile(folder / "95.jpg"), ReadFile(folder / "usual.jpg"));
    EXPECT_LT(ReadFile(folder / "1.jpg").Size(), ReadFile(folder / "95.jpg").Size());
    EXPECT_LT(ReadFile(folder / "95.jpg").Size(), ReadFile(folder / "100.jpg").Size());
}

}  // namespace
}  // namespace pixano::test
