// The program's shut-down.
#pragma once

#include "document/session.h"

namespace pixano {

/// The main window is to close: offers to save, then ends the program. False when saving failed,
/// which calls the closing off. Throws Fault when the snapshots cannot be deleted.
bool Form_Unload(Session& s);

}  // namespace pixano
