// JPEG files that ask for too much, and their refusal.
#include "pictures/jpeg_maker.h"

#include <gmock/gmock.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;

/// The file with the sides of its frame header replaced.
Bytes WithSides(Bytes file, int width, int height)
{
    std::vector<std::byte>& bytes = file.Vector();
    for (std::size_t i = 2; i + 8 < bytes.size();) {
        const int marker = std::to_integer<int>(bytes[i + 1]);
        if (marker == 0xC0 || marker == 0xC2) {
            bytes[i + 5] = static_cast<std::byte>(height >> 8);
            bytes[i + 6] = static_cast<std::byte>(height & 255);
            bytes[i + 7] = static_cast<std::byte>(width >> 8);
            bytes[i + 8] = static_cast<std::byte>(width & 255);
            break;
        }
        i += 2 + (std::to_integer<std::size_t>(bytes[i + 2]) << 8 |
                  std::to_integer<std::size_t>(bytes[i + 3]));
    }
    return file;
}

TEST(JpegBounds, SidesAndPixels)
{
    const Bytes file = MakeJpeg(Shaded(16, 16));
    EXPECT_THAT(WithSides(file, 32768, 1).Refusal(), HasSubstr("troppo grande (32768 x 1)"));
    EXPECT_THAT(WithSides(file, 1, 65500).Refusal(), HasSubstr("troppo grande (1 x 65500)"));
    EXPECT_THAT(WithSides(file, 65535, 65535).Refusal(), HasSubstr("la figura è troppo grande"));
    EXPECT_THAT(WithSides(file, 32767, 32767).Refusal(), HasSubstr("256 milioni"));
    EXPECT_THAT(WithSides(file, 16, 0).Refusal(), HasSubstr("non sono valide"));
    EXPECT_THAT(WithSides(file, 0, 16).Refusal(), HasSubstr("non sono valide"));
    const PictureRead read = WithSides(file, 16, 32767).Read();
    EXPECT_EQ(read.picture.Height(), 32767);
    EXPECT_TRUE(read.truncated);
}

/// A progressive grey file in which, after the first scan, `scans` more each change one
/// coefficient. As a script may name each bit of each coefficient only once, the last scan is
/// repeated by hand.
Bytes ManyScans(int width, int height, int scans)
{
    static constexpr jpeg_scan_info Script[] = {{1, {0}, 0, 0, 0, 0}, {1, {0}, 1, 63, 0, 0}};
    JpegPlan plan{.width = width, .height = height, .space = JCS_GRAYSCALE};
    plan.samples.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 77);
    plan.set = [](auto& jpeg) {
        jpeg.scan_info = Script;
        jpeg.num_scans = 2;
    };
    Bytes file = MakeJpeg(plan);
    std::vector<std::byte>& bytes = file.Vector();
    std::size_t last = bytes.size() - 2;
    while (bytes[last] != std::byte{0xFF} || bytes[last + 1] != std::byte{0xDA})
        --last;
    const std::vector<std::byte> scan(bytes.begin() + static_cast<std::ptrdiff_t>(last),
                                      bytes.end() - 2);
    bytes.resize(bytes.size() - 2);
    for (int i = 1; i < scans; ++i)
        bytes.insert(bytes.end(), scan.begin(), scan.end());
    return file.Add({0xFF, 0xD9});
}

TEST(JpegBounds, ManyScansOfAFewPixels)
{
    EXPECT_EQ(ManyScans(32, 157, 400).Read().picture, Surface(32, 157, Rgb(77, 77, 77)));
    EXPECT_THAT(ManyScans(32, 157, 40000).Refusal(), HasSubstr("troppi strati"));
}

TEST(JpegBounds, FewScansOfManyPixels)
{
    // 16 million pixels may be gone through 512 times, 64 million 128 times.
    EXPECT_THAT(WithSides(ManyScans(8, 8, 140), 8192, 8192).Refusal(), HasSubstr("troppi strati"));
}

}  // namespace
}  // namespace pixano::test
