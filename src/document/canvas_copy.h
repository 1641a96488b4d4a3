// Which working picture holds the canvas as it is, for the start after a run that ended badly.
#pragma once

#include "document/session.h"

namespace pixano {

/// At the end of a command: unsaved changes get a copy on disk, if the command left none, and the
/// note tells which file it is. What cannot be done is remarked. Without unsaved changes there is
/// nothing to bring back.
void SecureCanvas(Session& s);

/// Nothing is unsaved any more. Errors are passed over.
void ForgetCanvasCopy(Session& s);

}  // namespace pixano
