// One step back, one step forward, and back to the picture as it was opened.
#pragma once

#include "document/session.h"

namespace pixano {

/// Every effect begins with this: counts it and switches the history entries.
void Abil(Session& s);

/// Back to the picture before the last effect. Errors are passed over: the next step follows.
void Undo_Click(Session& s);

/// Forward again. Throws Fault when there is no picture to go forward to.
void Redo_Click(Session& s);

/// Back to the picture as it was opened. Errors are passed over; a picture that cannot be read any
/// more is told, and the unsaved changes stay marked.
void Orig_Click(Session& s);

}  // namespace pixano
