// Snapshots and the preview's copy: pictures that only the program itself writes and reads.
#pragma once

#include "canvas/surface.h"

#include <QString>

namespace pixano {

/// Writes the surface as a bitmap under `name` (see NativePath), replacing what bears it. Throws
/// Fault FileAccess.
void SaveWorkingPicture(const Surface& surface, const QString& name);

/// The bitmap under `name`, which must be as large as `like`: a picture of another size is not one
/// of the program's own. Throws Fault FileNotFound or FileAccess.
Surface LoadWorkingPicture(const QString& name, const Surface& like);

/// Deletes the file if it exists. Throws Fault FileAccess.
void KillWorkingPicture(const QString& name);

}  // namespace pixano
