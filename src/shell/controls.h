// Every control that starts something, as data: the 62 menu entries and the 28 palette buttons.
#pragma once

#include "document/session.h"

namespace pixano {

/// A row for each; nothing else says what a control does.
Controls ProgramControls();

MenuTable MenuEntries();
PaletteTable PaletteButtons();

}  // namespace pixano
