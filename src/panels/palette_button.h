// A row of the palette's table: what a button shows, in which frame it stands, what it starts.
#pragma once

#include "windows/command.h"

#include <span>

namespace pixano {

/// From top to bottom; the two buttons without a frame stand last.
enum class PaletteFrame { Funzioni, Riflessi, Effetti, None };

/// One button. All of them need a picture: the palette is shown with one only.
struct PaletteButton {
    const char* name;     ///< name of the control
    const char* caption;  ///< UTF-8; empty when it shows a picture
    const char* toolTip;  ///< UTF-8; empty for none
    PaletteFrame frame;
    const char* accessible;  ///< what it is called where it cannot be seen
    Starts starts;
    const char* picture = nullptr;  ///< file of its picture, or nullptr
};

/// All buttons in their order.
using PaletteTable = std::span<const PaletteButton>;

}  // namespace pixano
