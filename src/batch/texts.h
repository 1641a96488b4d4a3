// What the tool says about itself.
#pragma once

#include <string>

namespace pixano::batch {

std::string HelpText();

/// Why standard output did not take a line: `error` is the errno.
std::string UnprintedText(int error);

/// One effect a line: name, family, range of its strength (empty if it has none), parted by tabs.
std::string EffectList();

inline constexpr const char* VersionText = "Pixano 2.3\n";

}  // namespace pixano::batch
