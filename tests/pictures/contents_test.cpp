// Contents that are no picture, and pictures under whatever name.
#include "pictures/bmp_maker.h"

#include <gmock/gmock.h>

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

TEST(Contents, NothingAtAll)
{
    EXPECT_THAT(Bytes().Refusal(), HasSubstr("il file è vuoto"));
}

}  // namespace
}  // namespace pixano::test
