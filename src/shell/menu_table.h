// The 62 menu entries as data: what each is called, where it hangs, which commands it stands for.
#pragma once

#include <span>

namespace pixano {

/// One entry. Its `Index` is its place in the table, counted from 1.
struct MenuEntry {
    const char* name;     ///< name of the control
    const char* caption;  ///< UTF-8; "-" is a separator
    int parent;           ///< `Index` of the entry that it hangs under; 0 = the menu bar
    bool designedOff = false;
};

std::span<const MenuEntry> MenuEntries();

/// The entries that code reaches by name, as `Index`.
namespace entry {
inline constexpr int Apri = 2;
inline constexpr int Salva = 3;
inline constexpr int Dopfoto = 24;
inline constexpr int Esci = 35;
inline constexpr int Undo = 58;
inline constexpr int Orig = 59;
inline constexpr int Redo = 60;
inline constexpr int Inf = 61;
inline constexpr int Inter = 62;
}  // namespace entry

}  // namespace pixano
