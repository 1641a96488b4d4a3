// A row of the menu table: what an entry is called, where it hangs, what it starts.
#pragma once

#include "windows/command.h"

#include <span>

namespace pixano {

/// When an entry can be used.
enum class Needs {
    Nothing,
    Picture,
    /// It needs one, yet stays usable without: kept exactly. The menu that it hangs under is off.
    PictureButStaysOn,
    /// Off without a picture; with one the history commands switch it.
    History,
};

/// One entry. Its `Index` is its place in the table, counted from 1.
struct MenuEntry {
    const char* name;         ///< name of the control
    const char* caption;      ///< UTF-8; "-" is a separator
    const char* parent = "";  ///< name of the entry above that it hangs under; "" = the menu bar
    Needs needs = Needs::Nothing;
    Starts starts = {};
    const char* keys = "";  ///< its shortcut; "" = none
    bool designedOff = false;
};

using MenuTable = std::span<const MenuEntry>;

/// The entries that commands switch on and off one by one.
namespace control {
inline constexpr const char* Salva = "Salva";
inline constexpr const char* Undo = "Undo";
inline constexpr const char* Orig = "Orig";
inline constexpr const char* Redo = "Redo";
}  // namespace control

}  // namespace pixano
