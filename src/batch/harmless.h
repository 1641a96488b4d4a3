// Texts for a terminal: a name in them can neither move its cursor nor begin a line of its own.
#pragma once

#include <string>
#include <string_view>

namespace pixano::batch {

/// The text with every control character, of UTF-8 or of one byte, as \xHH.
std::string Harmless(std::string_view text);

}  // namespace pixano::batch
