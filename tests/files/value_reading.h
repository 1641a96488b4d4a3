// Texts that are read as the pixel working file is, value by value.
#pragma once

#include "files/text_store.h"
#include "support/faults.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace pixano::test {

class ValueText : public testing::Test {
  protected:
    /// Reads the text to its first fault; `fault` tells which.
    std::vector<Colour> Read(const std::string& text)
    {
        const auto path = folder / "elab.ser";
        WriteBytes(path, text);
        PixelFile file(TextStore(path));
        std::vector<Colour> values;
        fault = FaultIn([&] {
            for (;;)
                values.push_back(file.Input());
        });
        return values;
    }
    /// Reads a text in which all is well up to its end.
    std::vector<Colour> ReadAll(const std::string& text)
    {
        std::vector<Colour> values = Read(text);
        EXPECT_EQ(fault, FaultKind::InputPastEnd) << text;
        return values;
    }

    TemporaryFolder folder;
    std::optional<FaultKind> fault;
};

using Numbers = std::vector<Colour>;

}  // namespace pixano::test
