// Small texts that the program keeps for itself: read and written whole, no link followed, nothing
// but a file opened.
#pragma once

#include <optional>
#include <string>

namespace pixano {

/// The text in the file `path` (UTF-8); nothing when it cannot be read, is empty or absurdly long.
std::optional<std::string> ReadOwnText(const std::string& path);

/// Replaces the file `path` (UTF-8), or whatever has that name, at one stroke; only the user may
/// read it. False when that failed: the old file is untouched then.
bool WriteOwnText(const std::string& path, const std::string& text);

}  // namespace pixano
