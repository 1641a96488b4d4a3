// Colour values as text: how lines are formatted, and what counts as a value when they are read.
#pragma once

#include "canvas/surface.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace pixano {

/// Characters of the longest line: "-2147483648", CR, LF, rounded up.
inline constexpr std::size_t LongestLine = 16;

/// Writes each value as a signed decimal number and CR LF to `text`, which has room for
/// `LongestLine` characters a value. Gives the end of the text.
char* FormatLines(std::span<const Colour> values, char* text);

/// Takes plain lines (an optional minus, one to eight digits, CR LF) from the front of `text` while
/// there is room in `values` and `LongestLine` characters are left. Gives the end of the values.
Colour* ParseLines(std::string_view& text, std::span<Colour> values);

/// Takes the next item from the front of `text`, as sequential input separates them: leading blanks
/// skipped, ended by a comma or a line end, double quotes around a text dropped. Nothing when no
/// complete item is there; with `atEnd` the end of the text ends an item too.
std::optional<std::string_view> TakeItem(std::string_view& text, bool atEnd);

/// The item as a 32-bit value: a number, rounded half to even; an empty item is 0. Throws
/// TypeMismatch or Overflow, naming the file `name`.
Colour ValueOf(std::string_view item, std::string_view name);

}  // namespace pixano
