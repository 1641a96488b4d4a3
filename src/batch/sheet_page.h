// The page that shows all effects on one picture, as HTML. Knows texts, writes no file.
#pragma once

#include "batch/step.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace pixano::batch {

/// A small picture beside the page.
struct SmallPicture {
    std::string file;  ///< without its folder
    int width = 0;
    int height = 0;
};

/// One effect: either its small picture, or why there is none.
struct SheetEntry {
    Step step;
    SmallPicture shown{};
    std::string refusal;
};

struct SheetContents {
    std::string input;  ///< the picture's file as it was named to the tool
    int width = 0;      ///< its size, as the effects saw it
    int height = 0;
    std::optional<int> within;
    std::uint64_t seed = 0;
    SmallPicture original;
    std::vector<SheetEntry> entries;
};

/// The whole page, UTF-8.
std::string SheetPage(const SheetContents& contents);

/// The command that makes the effect's picture in full, as one line for a shell.
std::string RepeatingCommand(const SheetContents& contents, const SheetEntry& entry);

}  // namespace pixano::batch
