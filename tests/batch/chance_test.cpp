// What of a result chance decides, and what besides its pixels comes from the picture that was
// read.
#include "batch/tool_run.h"

#include "support/effect_run.h"

#include <set>

namespace pixano::batch::test {
namespace {

TEST_F(Tool, DrawsOtherNumbersAtEveryRunUnlessASeedIsGiven)
{
    SaveBitmap(pixano::test::Varied(120, 90), File("a.bmp"));
    const auto results = [this](const std::vector<std::string>& seed) {
        std::set<std::string> different;
        for (int i = 0; i < 3; ++i) {
            std::vector<std::string> arguments{"-e", "Distorsione 1", "-o", "b.bmp", "a.bmp"};
            arguments.insert(arguments.end(), seed.begin(), seed.end());
            EXPECT_EQ(Run(arguments).status, 0);
            different.insert(Bytes("b.bmp"));
        }
        return different;
    };
    EXPECT_EQ(results({}).size(), 3U);
    const auto five = results({"--seme", "5"});
    EXPECT_EQ(five.size(), 1U);
    EXPECT_NE(results({"--seme", "6"}), five);
    // Nought is a seed as any other.
    EXPECT_EQ(results({"--seme", "0"}).size(), 1U);
}

/// A colour profile of the least length: its head says how long it is, and for which colours.
std::vector<std::byte> Profile()
{
    std::vector<std::byte> profile(132);
    const auto put = [&profile](std::size_t at, std::string_view text) {
        std::ranges::copy(std::as_bytes(std::span(text)),
                          profile.begin() + static_cast<std::ptrdiff_t>(at));
    };
    profile[3] = std::byte{132};
    profile[8] = std::byte{4};
    put(12, "mntrRGB XYZ ");
    put(36, "acsp");
    put(68, std::string_view("\0\0\xF6\xD6\0\1\0\0\0\0\xD3\x2D", 12));
    return profile;
}

TEST_F(Tool, HandsTheColourProfileOnToJpegResults)
{
    SaveWithExtras(Drawn({"abcd", "efgh"}), File("a.jpg"), {.profile = Profile()});
    ASSERT_EQ(ReadPicture(File("a.jpg")).profile, Profile());
    EXPECT_EQ(Run({"-e", "Specchio", "-o", "b.jpg", "a.jpg"}).status, 0);
    EXPECT_EQ(ReadPicture(File("b.jpg")).profile, Profile());
    EXPECT_EQ(Run({"-o", "b.png", "a.jpg"}).status, 0);
    EXPECT_NE(Bytes("b.png").find("iCCP"), std::string::npos);
    EXPECT_EQ(Run({"-o", "b.bmp", "a.jpg"}).status, 0);
    EXPECT_EQ(ReadPicture(File("b.bmp")).profile.size(), 0U);
}

}  // namespace
}  // namespace pixano::batch::test
