// What the tools palette takes of the screen, so that other windows can leave it free.
#pragma once

#include "windows/twips.h"

namespace pixano {

/// The palette stands this far from the right edge of the screen, and is no wider.
inline constexpr double PaletteStripTwips = 3250;

/// The same in pixels.
inline int PaletteStrip()
{
    return Pixels(PaletteStripTwips);
}

}  // namespace pixano
