// Photographs turned upright by their Exif orientation, and Exif blocks that make no sense.
#include "pictures/jpeg_maker.h"

#include <gtest/gtest.h>

#include <array>

namespace pixano::test {
namespace {

enum class Order { Intel, Motorola };

constexpr std::uint32_t Short = 3;
constexpr std::uint32_t Long = 4;

/// An Exif block with one directory of one entry.
Bytes Exif(std::uint32_t tag, std::uint32_t type, std::uint32_t value, Order order = Order::Intel)
{
    Bytes block = Bytes().Add("Exif").Zeros(2);
    if (order == Order::Intel)
        return block.Add("II").U16(42).U32(8).U16(1).U16(tag).U16(type).U32(1).U32(value).Zeros(4);
    const auto swapped = [](std::uint32_t n) { return (n & 255) << 8 | n >> 8; };
    block.Add("MM").Add({0, 42, 0, 0, 0, 8, 0, 1}).U16(swapped(tag)).U16(swapped(type));
    block.Add({0, 0, 0, 1}).Zeros(type == Long ? 2 : 0);
    return block.U16(swapped(value)).Zeros(type == Long ? 4 : 6);
}

Bytes Orientation(std::uint32_t value)
{
    return Exif(0x0112, Short, value);
}

/// Four blocks of 8 by 8 pixels in each of two rows, each of one grey, which libjpeg keeps exactly:
/// 10 20 30 40 above 50 60 70 80; with the APP1 segments.
Bytes Photograph(const std::vector<Bytes>& segments)
{
    JpegPlan plan{.width = 32, .height = 16, .space = JCS_GRAYSCALE};
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 32; ++x)
            plan.samples.push_back(static_cast<std::uint8_t>(10 * (1 + x / 8 + y / 8 * 4)));
    plan.write = [&segments](auto& jpeg) {
        for (const Bytes& segment : segments)
            jpeg_write_marker(&jpeg, JPEG_APP0 + 1,
                              reinterpret_cast<const JOCTET*>(segment.Vector().data()),
                              static_cast<unsigned>(segment.Size()));
    };
    return MakeJpeg(plan);
}

/// The greys of the blocks, divided by ten, row after row; every pixel is looked at.
std::vector<std::string> BlocksOf(const Surface& picture)
{
    std::vector<std::string> rows;
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x) {
            const Colour grey = picture.Point(x, y) & 255;
            const char letter = static_cast<char>('0' + grey / 10);
            EXPECT_EQ(picture.Point(x, y), Rgb(grey, grey, grey));
            if (y % 8 == 0 && x == 0) rows.emplace_back();
            if (y % 8 == 0 && x % 8 == 0) rows.back() += letter;
            EXPECT_EQ(rows.back()[static_cast<std::size_t>(x / 8)], letter) << x << " " << y;
        }
    return rows;
}

std::vector<std::string> Upright(const std::vector<Bytes>& segments)
{
    return BlocksOf(Photograph(segments).Read().picture);
}

using Rows = std::vector<std::string>;

const Rows AsStored{"1234", "5678"};

TEST(JpegOrientation, AllEight)
{
    // What Exif calls the visual place of row 0 and of column 0.
    const std::array<Rows, 8> expected{
        AsStored,                      // top, left
        Rows{"4321", "8765"},          // top, right
        Rows{"8765", "4321"},          // bottom, right
        Rows{"5678", "1234"},          // bottom, left
        Rows{"15", "26", "37", "48"},  // left, top
        Rows{"51", "62", "73", "84"},  // right, top
        Rows{"84", "73", "62", "51"},  // right, bottom
        Rows{"48", "37", "26", "15"},  // left, bottom
    };
    for (std::uint32_t value = 1; value <= 8; ++value) {
        for (const std::uint32_t type : {Short, Long})
            for (const Order order : {Order::Intel, Order::Motorola})
                EXPECT_EQ(Upright({Exif(0x0112, type, value, order)}), expected[value - 1])
                    << value << " of type " << type;
    }
}

TEST(JpegOrientation, EveryPixelOfAQuarterTurn)
{
    const auto write = [](auto& jpeg) {
        const Bytes block = Orientation(6);
        jpeg_write_marker(&jpeg, JPEG_APP0 + 1,
                          reinterpret_cast<const JOCTET*>(block.Vector().data()),
                          static_cast<unsigned>(block.Size()));
    };
    const Bytes file = MakeJpeg(Shaded(37, 50), {}, write);
    const Colours stored = DecodedByLibjpeg(file);
    const Surface turned = file.Read().picture;
    ASSERT_EQ(turned.Width(), 50);
    ASSERT_EQ(turned.Height(), 37);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 37; ++x)
            ASSERT_EQ(turned.Point(49 - y, x), stored[static_cast<std::size_t>(y * 37 + x)]);
}

TEST(JpegOrientation, ACutPhotographIsTurnedToo)
{
    Bytes file = Photograph({Orientation(3)});
    // Without its last pixel bytes the lower row of blocks is gone; turned, it is the upper one.
    const PictureRead read = file.Without(6).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(read.picture.Point(31, 15), Rgb(10, 10, 10));
    EXPECT_EQ(read.picture.Point(0, 15), Rgb(40, 40, 40));
}

TEST(JpegOrientation, OtherSegmentsAndEntriesAreNoOrientation)
{
    const Bytes other = Bytes().Add("http://ns.adobe.com/xap/1.0/").Zeros(40);
    EXPECT_EQ(Upright({other}), AsStored);
    EXPECT_EQ(Upright({other, Orientation(2)}), (Rows{"4321", "8765"}));
    EXPECT_EQ(Upright({Orientation(2), Orientation(3)}), (Rows{"4321", "8765"}));
    EXPECT_EQ(Upright({Exif(0x0100, 3, 6)}), AsStored);
    EXPECT_EQ(Upright({Exif(0x0112, 2, 6)}), AsStored);
}

TEST(JpegOrientation, ValuesThatAreNone)
{
    for (const std::uint32_t value : {0U, 9U, 255U, 256U, 0xFFFFU})
        EXPECT_EQ(Upright({Orientation(value)}), AsStored) << value;
    for (const std::uint32_t value : {0U, 9U, 0x10006U, 0xFFFFFFFFU})
        EXPECT_EQ(Upright({Exif(0x0112, Long, value)}), AsStored) << value;
}

TEST(JpegOrientation, BlocksThatMakeNoSense)
{
    const Bytes whole = Orientation(6);
    // The value lies 18 bytes into the TIFF block, which itself begins at the sixth byte.
    for (std::size_t size = 0; size < 6 + 18 + 1; ++size)
        EXPECT_EQ(Upright({whole.Without(whole.Size() - size)}), AsStored) << size;
    Bytes farDirectory = whole;
    farDirectory.Vector()[6 + 7] = std::byte{0xFF};
    EXPECT_EQ(Upright({farDirectory}), AsStored);
    Bytes noOrder = whole;
    noOrder.Vector()[6] = std::byte{'X'};
    EXPECT_EQ(Upright({noOrder}), AsStored);
    Bytes noMark = whole;
    noMark.Vector()[8] = std::byte{43};
    EXPECT_EQ(Upright({noMark}), AsStored);
    Bytes manyEntries = Exif(0x0100, 3, 6);
    manyEntries.Vector()[6 + 8] = manyEntries.Vector()[6 + 9] = std::byte{0xFF};
    EXPECT_EQ(Upright({manyEntries}), AsStored);
}

}  // namespace
}  // namespace pixano::test
