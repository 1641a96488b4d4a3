// Closing the document, and with it the windows that hold the picture.
#pragma once

#include "document/session.h"

namespace pixano {

/// Offers to save; then no picture is open any more. False when saving failed, which calls the
/// closing off.
bool CloseDocument(Session& s);

/// The canvas is to close: closes the document, and the preview with it. False as above.
bool Form2_Unload(Session& s);

/// The preview is to close: closes the document, and the palette with it. False as above.
bool Form9_Unload(Session& s);

}  // namespace pixano
