// The preview after an effect, and at another scale.
#pragma once

#include "document/session.h"

namespace pixano {

/// Copies the canvas to the preview by way of its file, at the scale `Zoom`, and shows it. Whether
/// the file holds the canvas now; where it does not, the preview shows the canvas all the same, and
/// the reason is told unless it was told for the copy before.
bool Mostra(Session& s);

/// Changes `Zoom` by `change` (1 = 100 %) and shows the preview again.
void ChangeZoom(Session& s, double change);

}  // namespace pixano
