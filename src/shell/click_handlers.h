// The commands that controls of both tables start.
#pragma once

#include "document/history.h"
#include "windows/command.h"

namespace pixano::click {

inline constexpr Command Annulla{"Annulla", Undo_Click};
inline constexpr Command Originale{"Originale", Orig_Click};
inline constexpr Command Ripristina{"Ripristina", Redo_Click};

}  // namespace pixano::click
