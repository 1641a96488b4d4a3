// Bringing the last picture back after a run that ended badly. Every state of the canvas is on disk
// already, in one of the working files; what is kept here is which one.
#pragma once

#include "shell/session.h"

namespace pixano {

/// Notes that the working picture `name` holds the canvas as it is now. Errors are passed over: the
/// command that was asked for matters more.
void NoteCanvasCopy(const Session& s, const QString& name);

/// Nothing is unsaved any more: there is nothing to bring back.
void ForgetCanvasCopy();

/// After a run that ended with unsaved work: asks whether to bring it back, and does so. A picture
/// that is not wanted is put aside in the data folder, never deleted.
void OfferRecovery(Session& s);

}  // namespace pixano
