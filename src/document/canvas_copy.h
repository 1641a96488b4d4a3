// Which working picture holds the canvas as it is. Every state of it is on disk already, in one of
// the working files; the note of which one is kept here, for the next start.
#pragma once

#include "document/session.h"

namespace pixano {

/// Notes that the working picture `name` holds the canvas as it is now. Errors are passed over: the
/// command that was asked for matters more.
void NoteCanvasCopy(const Session& s, const QString& name);

/// Nothing is unsaved any more: there is nothing to bring back.
void ForgetCanvasCopy();

}  // namespace pixano
