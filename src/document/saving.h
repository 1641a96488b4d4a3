// Saving the canvas as a BMP.
#pragma once

#include "document/session.h"

namespace pixano {

enum class SaveOutcome { Saved, Cancelled, Failed };

/// Asks for a name, and whether a file of that name may be replaced, and saves the canvas under it.
/// A failure is remarked and changes nothing.
SaveOutcome SalvaFile(Session& s);

/// Saves the canvas under `name` without asking. False when that failed, which is remarked.
bool SaveCanvas(Session& s, const QString& name);

}  // namespace pixano
