// Files that the program keeps for itself: whatever bears their name is replaced, no link is
// followed, nothing but a file is opened, only the user may read them. Knows not what is in them.
#pragma once

#include "files/descriptor.h"
#include "files/regular_file.h"

#include <optional>
#include <string>

namespace pixano {

/// A new, empty file `path` (UTF-8) to be written piece by piece. Throws Refusal.
Descriptor CreateOwnFile(const std::string& path);

/// Replaces the file at one stroke; when that fails the old one is untouched. Throws Refusal.
void ReplaceOwnFile(const std::string& path, const std::string& text);

/// Deletes the file; a folder is not the program's own, however empty it is. Throws Refusal.
void DeleteOwnFile(const std::string& path);

/// The text in the file. Throws Refusal when it cannot be read or is absurdly long.
std::string ReadOwnFile(const std::string& path, Links links = Links::Refused);

}  // namespace pixano
