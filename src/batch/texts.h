// What the tool says about itself.
#pragma once

#include "effects/effect.h"

#include <string>
#include <string_view>

namespace pixano::batch {

std::string HelpText();

/// What a family of effects is called.
std::string_view FamilyName(Family family);

/// Why standard output did not take a line: `error` is the errno.
std::string UnprintedText(int error);

/// One effect a line: name, family, range of its strength (empty if it has none), parted by tabs.
std::string EffectList();

}  // namespace pixano::batch
