// A picture of a few pixels that is saved in a folder of a test's own, and what a refusal says.
#pragma once

#include "pictures/byte_files.h"

#include <gmock/gmock-matchers.h>

#include <string>

namespace pixano::test {

/// Two rows of three pixels.
inline Surface Small()
{
    Surface surface(3, 2);
    for (int i = 0; i < 6; ++i)
        surface.PSet(i % 3, i / 3, Rgb(10 * i + 1, 10 * i + 2, 10 * i + 3));
    return surface;
}

class Saving : public testing::Test {
  protected:
    /// What is told when that is not saved; empty when it is.
    template <class Save>
    static std::string RefusalOf(Save save, const Surface& surface, const std::string& path)
    {
        try {
            save(surface, path);
        } catch (const PictureError& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr("Impossibile salvare «" + path + "»: "));
            return error.what();
        }
        return {};
    }

    TemporaryFolder folder;
    std::string path = folder / "figura.bmp";
    const Bytes old = Bytes().Add("vecchio");
};

}  // namespace pixano::test
