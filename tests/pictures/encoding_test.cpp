// The formats that pictures are written in, by the name's extension or to any sink.
#include "files/descriptor.h"
#include "pictures/byte_files.h"
#include "pictures/jpeg_maker.h"

#include <gmock/gmock-matchers.h>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <png.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;

/// Keeps what it is given, up to `room` bytes.
class MemorySink final : public ByteSink {
  public:
    explicit MemorySink(std::size_t room = SIZE_MAX) : room_(room) {}
    bool Write(std::span<const std::byte> bytes) noexcept override
    {
        full_ = full_ || content.Size() + bytes.size() > room_;
        if (full_) return false;
        content.Add({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
        return true;
    }
    int Error() const noexcept override { return full_ ? ENOSPC : 0; }

    Bytes content;

  private:
    std::size_t room_;
    bool full_ = false;
};

Bytes Encoded(const Surface& surface, PictureFormat format)
{
    MemorySink sink;
    Encode(surface, format, sink, "prova");
    return sink.content;
}

Colours DecodedByLibpng(const Bytes& file)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    EXPECT_NE(png_image_begin_read_from_memory(&image, file.Vector().data(), file.Size()), 0);
    EXPECT_EQ(image.format, static_cast<png_uint_32>(PNG_FORMAT_RGB));
    image.format = PNG_FORMAT_RGB;
    std::vector<std::uint8_t> samples(PNG_IMAGE_SIZE(image));
    EXPECT_NE(png_image_finish_read(&image, nullptr, samples.data(), 0, nullptr), 0);
    Colours colours;
    for (std::size_t i = 0; i < samples.size(); i += 3)
        colours.push_back(Rgb(samples[i], samples[i + 1], samples[i + 2]));
    return colours;
}

TEST(Encoding, PngKeepsEveryPixel)
{
    for (const Surface& picture : {Shaded(83, 61), Shaded(1, 1), Surface(7, 300, Rgb(9, 8, 7))})
        EXPECT_EQ(DecodedByLibpng(Encoded(picture, PictureFormat::Png)), ColoursOf(picture));
}

TEST(Encoding, JpegKeepsGreyAndAllButTheFinestShades)
{
    const Surface grey(30, 20, Rgb(128, 128, 128));
    EXPECT_EQ(Encoded(grey, PictureFormat::Jpeg).Read().picture, grey);
    const Surface picture = Shaded(80, 60);
    const Colours read = DecodedByLibjpeg(Encoded(picture, PictureFormat::Jpeg));
    const Colours written = ColoursOf(picture);
    // Red and green of `Shaded` change gently everywhere.
    for (std::size_t i = 0; i < written.size(); ++i)
        for (const int shift : {0, 8})
            ASSERT_NEAR(written[i] >> shift & 255, read[i] >> shift & 255, 24) << i;
}

TEST(Encoding, JpegKeepsTheColourOfEachPixelOnItsOwn)
{
    // Red and blue columns take turns, and then rows: were colours halved that way, all would be
    // the same purple.
    for (const bool across : {true, false}) {
        Surface stripes(16, 16);
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x)
                stripes.PSet(x, y, (across ? x : y) % 2 == 0 ? Rgb(200, 40, 40) : Rgb(40, 40, 200));
        const Surface read = Encoded(stripes, PictureFormat::Jpeg).Read().picture;
        EXPECT_GT(read.Point(8, 8) & 255, 170) << across;
        EXPECT_LT((across ? read.Point(9, 8) : read.Point(8, 9)) & 255, 70) << across;
    }
}

// Longer than what is written at once; nothing follows the mark of the end.
TEST(Encoding, LongFilesAreWholeToTheirLastByte)
{
    Surface noise(400, 300);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x)
            noise.PSet(x, y, static_cast<Colour>((x * 7919U + y * 104729U) * 2654435761U >> 8));
    EXPECT_EQ(DecodedByLibpng(Encoded(noise, PictureFormat::Png)), ColoursOf(noise));
    for (const Surface& picture : {noise, Surface(2, 2)}) {
        const Bytes jpeg = Encoded(picture, PictureFormat::Jpeg);
        EXPECT_EQ(jpeg.Size() > 65536, picture.Width() == 400);
        EXPECT_FALSE(jpeg.Read().truncated);
        EXPECT_EQ(WarningsOfLibjpeg(jpeg), 0);
        EXPECT_EQ(ColoursOf(jpeg.Read().picture), DecodedByLibjpeg(jpeg));
        EXPECT_EQ(std::vector(jpeg.Vector().end() - 2, jpeg.Vector().end()),
                  (std::vector{std::byte{0xFF}, std::byte{0xD9}}));
        // One mark of the end, and only one.
        const std::byte end[] = {std::byte{0xFF}, std::byte{0xD9}};
        EXPECT_EQ(
            std::search(jpeg.Vector().begin(), jpeg.Vector().end(), std::begin(end), std::end(end)),
            jpeg.Vector().end() - 2);
    }
}

TEST(Encoding, TheExtensionTellsTheFormat)
{
    EXPECT_EQ(FormatOf("a.bmp"), PictureFormat::Bmp);
    EXPECT_EQ(FormatOf("A.B/c.PNG"), PictureFormat::Png);
    EXPECT_EQ(FormatOf("x.Jpg"), PictureFormat::Jpeg);
    EXPECT_EQ(FormatOf("x.bmp.JPEG"), PictureFormat::Jpeg);
    for (const char* name : {"", "bmp", "a.gif", "a.bmp/b", "a.bmp.", "a.png "})
        EXPECT_THROW(FormatOf(name), PictureError) << name;
}

TEST(Encoding, SavePictureWritesThatFormat)
{
    const TemporaryFolder folder;
    const Surface picture = Shaded(20, 10);
    SavePicture(picture, folder / "a.png");
    EXPECT_EQ(DecodedByLibpng(ReadFile(folder / "a.png")), ColoursOf(picture));
    SavePicture(picture, folder / "a.jpg");
    EXPECT_EQ(ReadFile(folder / "a.jpg"), Encoded(picture, PictureFormat::Jpeg));
    SavePicture(picture, folder / "a.bmp");
    EXPECT_EQ(ReadPicture(folder / "a.bmp").picture, picture);
    EXPECT_THROW(SavePicture(picture, folder / "a.tiff"), PictureError);
    EXPECT_EQ(folder.Names().size(), 3U);
}

TEST(Encoding, ASinkThatFailsIsTold)
{
    for (const PictureFormat format : {PictureFormat::Bmp, PictureFormat::Png, PictureFormat::Jpeg})
        for (const std::size_t room : {0U, 20U, 300U}) {
            MemorySink sink(room);
            try {
                Encode(Shaded(300, 200), format, sink, "uscita");
                ADD_FAILURE() << "nothing was told";
            } catch (const PictureError& error) {
                EXPECT_STREQ(error.what(),
                             "Impossibile scrivere «uscita»: non c'è più spazio sul disco");
            }
        }
}

TEST(Encoding, ToAnOpenFile)
{
    const Descriptor full(open("/dev/full", O_WRONLY | O_CLOEXEC));
    DescriptorSink sink(full.Number());
    try {
        Encode(Shaded(30, 20), PictureFormat::Bmp, sink, "uscita");
        ADD_FAILURE() << "nothing was told";
    } catch (const PictureError& error) {
        EXPECT_THAT(error.what(), HasSubstr("non c'è più spazio"));
    }
    const TemporaryFolder folder;
    const Descriptor file(open((folder / "a").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    DescriptorSink toFile(file.Number());
    Encode(Shaded(30, 20), PictureFormat::Bmp, toFile, "uscita");
    EXPECT_EQ(ReadFile(folder / "a"), Encoded(Shaded(30, 20), PictureFormat::Bmp));
}

}  // namespace
}  // namespace pixano::test
