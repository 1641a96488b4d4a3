// The preview after an effect, and at another scale.
#pragma once

#include "document/session.h"

namespace pixano {

/// Copies the canvas to the preview by way of its file, at the scale `Zoom`, and shows it. Throws
/// Fault when the file cannot be written or read, after all that.
void Mostra(Session& s);

/// Changes `Zoom` by `change` (1 = 100 %) and shows the preview again. Throws Fault FileAccess.
void ChangeZoom(Session& s, double change);

}  // namespace pixano
