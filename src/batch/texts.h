// What the tool says about itself.
#pragma once

#include <string>

namespace pixano::batch {

std::string HelpText();

/// One effect a line: name, family, range of its strength (empty if it has none), parted by tabs.
std::string EffectList();

inline constexpr const char* VersionText = "Pixano " PIXANO_VERSION "\n";

}  // namespace pixano::batch
