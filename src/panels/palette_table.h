// The palette's buttons as data: what each shows, in which frame it stands, what a click does.
#pragma once

#include <span>

namespace pixano {

/// From top to bottom; the two buttons without a frame stand last.
enum class PaletteFrame { Funzioni, Riflessi, Effetti, None };

/// One button. Exactly one of the last three says what it does.
struct PaletteButton {
    const char* name;     ///< name of the control
    const char* caption;  ///< UTF-8; empty when it shows a picture
    const char* toolTip;  ///< UTF-8; empty for none
    PaletteFrame frame;
    const char* picture;           ///< file of its picture, or nullptr
    const char* accessible;        ///< what it is called where it cannot be seen
    int entry = 0;                 ///< `Index` of the menu entry that it stands for
    const char* effect = nullptr;  ///< name of the effect that it starts
    double zoom = 0;               ///< by how much it changes `Zoom`
};

/// All buttons in their order.
std::span<const PaletteButton> PaletteButtons();

}  // namespace pixano
