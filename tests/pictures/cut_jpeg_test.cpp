// JPEG files that end within a row of blocks, in the first scan or in a later one.
#include "pictures/jpeg_maker.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

constexpr int Width = 64;
constexpr int Height = 160;

/// Where the marks stand that a file with one between any two rows of blocks has.
std::vector<std::size_t> RestartMarks(const Bytes& file)
{
    std::vector<std::size_t> marks;
    for (std::size_t i = 0; i + 1 < file.Size(); ++i) {
        const auto next = std::to_integer<int>(file.Vector()[i + 1]);
        if (file.Vector()[i] == std::byte{0xFF} && next >= 0xD0 && next <= 0xD7) marks.push_back(i);
    }
    return marks;
}

// Of the row of blocks that is being read the first ones are there; below it nothing is.
TEST(CutJpeg, EndsInARowOfBlocksAndShowsTheBackgroundBelow)
{
    for (const int blockRow : {8, 16}) {
        const Bytes whole = MakeJpeg(Shaded(Width, Height), [blockRow](auto& jpeg) {
            jpeg.restart_in_rows = 1;
            jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = blockRow / 8;
        });
        const Surface complete = whole.Read().picture;
        const std::vector<std::size_t> marks = RestartMarks(whole);
        ASSERT_EQ(marks.size(), static_cast<std::size_t>(Height / blockRow - 1));
        for (std::size_t k = 0; k + 1 < marks.size(); ++k) {
            // The row of blocks k + 1, which lies between these marks, is cut in its middle.
            const std::size_t cut = (marks[k] + marks[k + 1]) / 2;
            const PictureRead read = whole.Without(whole.Size() - cut).Read();
            EXPECT_TRUE(read.truncated);
            const int begun = blockRow * static_cast<int>(k + 1);
            for (int y = 0; y <= begun; ++y)
                EXPECT_EQ(read.picture.Point(0, y), complete.Point(0, y)) << y << " of " << begun;
            for (int y = begun + blockRow; y < Height; ++y)
                for (int x = 0; x < Width; ++x)
                    ASSERT_EQ(read.picture.Point(x, y), Background) << y << " of " << begun;
        }
    }
}

// The first scan has every pixel already, only coarser.
TEST(CutJpeg, InALaterScanIsThereFromTopToBottom)
{
    const Bytes whole = MakeJpeg(Shaded(Width, Height), Progressive);
    for (const std::size_t part : {2U, 3U, 4U}) {
        const PictureRead read = whole.Without(whole.Size() / part).Read();
        EXPECT_TRUE(read.truncated);
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x)
                ASSERT_NE(read.picture.Point(x, y), Background) << x << ", " << y;
    }
}

// Nobody knows whether another scan was to follow.
TEST(CutJpeg, BetweenScansMayLackSomething)
{
    const Bytes whole = MakeJpeg(Shaded(Width, Height), Progressive);
    const PictureRead read = whole.Without(2).Read();
    EXPECT_TRUE(read.truncated);
    EXPECT_EQ(read.picture, whole.Read().picture);
}

}  // namespace
}  // namespace pixano::test
