// A pixel working file in a folder of a test's own.
#pragma once

#include "files/text_store.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace pixano::test {

class TextFile : public testing::Test {
  protected:
    void Write(const std::vector<Colour>& values)
    {
        file.OpenForOutput();
        for (const Colour value : values)
            file.Write(value);
        file.Close();
    }

    TemporaryFolder folder;
    std::filesystem::path path = folder / "elab.ser";
    PixelFile file{TextStore(path.string())};
};

}  // namespace pixano::test
