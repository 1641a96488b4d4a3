// Contents that are no picture, and pictures under whatever name.
#include "pictures/bmp_maker.h"

#include "files/refusal.h"
#include "pictures/picture_size.h"

#include <gmock/gmock-matchers.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;

TEST(Contents, OtherThanBmpJpegAndGifAreRefused)
{
    constexpr auto Message = "non è un'immagine BMP, JPEG o GIF";
    EXPECT_THAT(Bytes().Add("\x89PNG\r\n\x1A\n").Refusal(), HasSubstr(Message));
    EXPECT_THAT(Bytes().Add("<svg xmlns=\"http://www.w3.org/2000/svg\"/>").Refusal(),
                HasSubstr(Message));
    EXPECT_THAT(Bytes().Add("B").Refusal(), HasSubstr(Message));
    EXPECT_THAT((Bytes{0xFF, 0xD9}).Refusal(), HasSubstr(Message));
    EXPECT_THAT(Bytes().Zeros(1000).Refusal(), HasSubstr(Message));
}

struct Sides {
    std::int64_t width;
    std::int64_t height;
    const char* refused;  ///< what is said; nullptr when such a picture is opened
};

// 16384 x 16384 is 256 times 1024 times 1024, 268 million.
constexpr Sides Limits[] = {
    {1, 1, nullptr},
    {32767, 1, nullptr},
    {1, 32767, nullptr},
    {32768, 1, "troppo grande (32768 x 1): i lati possono avere al massimo 32767 pixel"},
    {1, 32768, "troppo grande (1 x 32768): i lati possono avere al massimo 32767 pixel"},
    {16384, 16384, nullptr},
    {32767, 8192, nullptr},
    {16384, 16385, "troppo grande (16384 x 16385): può avere al massimo 268 milioni di pixel"},
    {16385, 16384, "troppo grande (16385 x 16384): può avere al massimo 268 milioni di pixel"},
    {0, 1, "le misure dell'immagine non sono valide (0 x 1)"},
    {1, 0, "le misure dell'immagine non sono valide (1 x 0)"},
    {-1, 1, "le misure dell'immagine non sono valide (-1 x 1)"},
    {1, -1, "le misure dell'immagine non sono valide (1 x -1)"},
};

TEST(Contents, AreOpenedUpToTheirLargestSizes)
{
    for (const auto& [width, height, refused] : Limits) {
        std::string said;
        try {
            CheckSize(width, height);
        } catch (const Refusal& refusal) {
            said = refusal.what();
        }
        EXPECT_EQ(said.empty(), refused == nullptr) << width << " x " << height;
        EXPECT_THAT(said, testing::EndsWith(refused == nullptr ? "" : refused));
    }
}

TEST(Contents, NothingAtAll)
{
    EXPECT_THAT(Bytes().Refusal(), HasSubstr("il file è vuoto"));
}

}  // namespace
}  // namespace pixano::test
